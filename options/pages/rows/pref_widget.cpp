// The row of an option: a label, an editor before or behind it, and the style sheets that make both blend
// into the tree.
#include "options/pages/rows/pref_widget.h"

#include "host/dialog_habits.h"
#include "host/style.h"
#include "options/pages/rows/clickable_label.h"
#include "options/store/tree_item.h"

#include <QGridLayout>

namespace {

QString rowStyleSheet() {
    return QStringLiteral(
        "QWidget#QPrefWidget { background-color: transparent; }"
        "QWidget#QPrefWidget QLabel { background-color: transparent; } "
        "QWidget#QPrefWidget QCheckBox,QWidget#QPrefWidget QRadioButton {"
        "    background-color: transparent;    padding: 0px;    margin: 0px;    spacing: 5px;}");
}

QString rowText(TreeItem* item, bool cutAtAngleBracket) {
    const QString text = item->data(0, Qt::DisplayRole).toString();
    if (!cutAtAngleBracket)
        return text.trimmed();
    return text.left(text.indexOf('<', 0, Qt::CaseSensitive)).trimmed(); // without a "<": the whole text
}

} // namespace

QPrefWidget::QPrefWidget(TreeItem* item, int position, QWidget* editor, bool cutAtAngleBracket,
                         int doubleClickEnabled, QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("QPrefWidget"));
    setStyleSheet(rowStyleSheet());
    buildLabel(rowText(item, cutAtAngleBracket), doubleClickEnabled);
    layOut(position, editor);
    item->setData(0, Qt::DisplayRole, QString()); // the tree is to paint nothing but the row
}

QPrefWidget::~QPrefWidget() = default;

void QPrefWidget::buildLabel(const QString& text, int doubleClickEnabled) {
    rowLabel = new ClickableLabel(text, this, doubleClickEnabled);
    rowLabel->setObjectName(QStringLiteral("label"));
    showText(text);
    labelStyleSheet = rowLabel->styleSheet();
    applyToolTipStyle();
    rowLabel->setContextMenuPolicy(Qt::CustomContextMenu);
    rowLabel->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
}

void QPrefWidget::showText(const QString& text) {
    rowLabel->setText(text);
    rowLabel->setToolTip(text);
}

void QPrefWidget::layOut(int position, QWidget* editor) {
    auto* grid = new QGridLayout;
    grid->setSpacing(5);
    grid->setContentsMargins(0, 2, 0, 2);
    const int labelColumn = position == 0 ? 1 : 0;
    if (editor && (position == 0 || position == 1))
        grid->addWidget(editor, 0, 1 - labelColumn);
    grid->addWidget(rowLabel, 0, labelColumn);
    if (position != 1)
        grid->setColumnStretch(labelColumn + 1, 1);
    setLayout(grid);
}

void QPrefWidget::applyToolTipStyle() {
    if (hasHabit(DialogHabit::ToolTipsInThemeColours))
        return rowLabel->setStyleSheet(labelStyleSheet);
    switch (hostGetQtStyleManager()->themeNumber()) {
    case 0:
        rowLabel->setStyleSheet(QStringLiteral("QToolTip { background-color: #ffffff;}"));
        break;
    case 1:
        rowLabel->setStyleSheet(QStringLiteral("QToolTip { background-color: #f5f5f5;}"));
        break;
    default:
        rowLabel->setStyleSheet(labelStyleSheet);
    }
}
