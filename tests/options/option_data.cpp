// What the tests of the Options dialog read off its rows.
#include "tests/options/option_data.h"

#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/pref_widget.h"

QString shownText(const Preferences& preferences, TreeItem* item) {
    QPrefWidget* const row = preferences.rowWidgets.value(item);
    return row ? row->label()->text() : QStringLiteral("(no row)");
}

QString shownText(const Preferences& preferences, const char* nodeName) {
    return shownText(preferences, itemOf(preferences, nodeName));
}

QStringList namesBelow(const TreeItem* item) {
    QStringList names;
    for (int i = 0; i < item->childCount(); ++i)
        names << QString::fromLocal8Bit(item->childItem(i)->nodeName);
    return names;
}
