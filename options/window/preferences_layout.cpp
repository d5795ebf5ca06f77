// Where the controls of the Options dialog stand: the tree with the column beside it, and the rows below.
#include "options/window/preferences.h"

#include "options/pages/search/collapse_widget.h"
#include "options/pages/search/searching_line_edit.h"
#include "options/window/option_keys.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpacerItem>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const int kRightColumnWidth = 180;
const int kGapBeforeOk = 30;

} // namespace

void Preferences::layOut() {
    auto* left = new QWidget(this);
    auto* leftBox = new QVBoxLayout(left);
    leftBox->setContentsMargins(0, 0, 0, 0);
    leftBox->addWidget(tree);

    auto* columns = new QHBoxLayout;
    columns->addWidget(left);
    columns->addWidget(layOutRightColumn());

    auto* outer = new QVBoxLayout;
    outer->addLayout(columns);
    outer->addWidget(layOutBottomRows());
    setLayout(outer);
    if (keys)
        keys->orderTabs();
}

QWidget* Preferences::layOutRightColumn() {
    auto* column = new QWidget(this);
    column->setFixedWidth(kRightColumnWidth);
    auto* box = new QVBoxLayout(column);
    box->setContentsMargins(0, 0, 0, 0);
    box->addLayout(layOutConfiguration());
    box->addWidget(toolBar);
    box->addWidget(description);
    return column;
}

QLayout* Preferences::layOutConfiguration() {
    auto* profileRow = new QHBoxLayout;
    profileRow->addWidget(profileCombo);
    profileRow->addWidget(profileButton);
    profileRow->addStretch();

    configurationLabel->setWordWrap(true); // the column is narrow for large fonts and long names
    configurationValue->setWordWrap(true);
    profileLabel->setWordWrap(true);
    auto* box = new QVBoxLayout;
    box->addWidget(configurationLabel);
    box->addWidget(configurationValue);
    box->addWidget(profileLabel);
    box->addLayout(profileRow);
    return box;
}

QWidget* Preferences::layOutBottomRows() {
    auto* statusRow = new QHBoxLayout;
    statusRow->addWidget(searchEdit->statusLabel);

    auto* buttonRow = new QHBoxLayout;
    buttonRow->addWidget(searchEdit);
    buttonRow->addWidget(collapseWidget->collapseButton);
    buttonRow->addWidget(collapseWidget->expandButton);
    buttonRow->addWidget(applyButton);
    buttonRow->addItem(new QSpacerItem(kGapBeforeOk, 0, QSizePolicy::Minimum, QSizePolicy::Minimum));
    buttonRow->addWidget(okButton);
    buttonRow->addWidget(cancelButton);
    buttonRow->addWidget(helpButton);

    auto* rows = new QWidget(this);
    auto* box = new QVBoxLayout(rows);
    box->setContentsMargins(0, 0, 0, 0);
    box->addLayout(statusRow);
    box->addLayout(buttonRow);
    return rows;
}
