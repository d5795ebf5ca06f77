// Tabs may give up the room beside their texts before arrows would have to come up.
#include "dwgprops/property_tabs.h"

namespace {
const int leastRoom = 6; // beside the text of a tab, on both sides together
}

PropertyTabBar::PropertyTabBar(QWidget* parent) : QTabBar(parent) {}

QSize PropertyTabBar::minimumTabSizeHint(int index) const {
    const QSize hint = QTabBar::minimumTabSizeHint(index);
    const int text = fontMetrics().size(Qt::TextShowMnemonic, tabText(index)).width();
    return {qMin(hint.width(), text + leastRoom), hint.height()};
}

PropertyTabs::PropertyTabs(QWidget* parent) : QTabWidget(parent) { setTabBar(new PropertyTabBar(this)); }

#include "moc_property_tabs.cpp"
