// The row of the plain loops beside which the option rows are measured: the same widgets with the same style
// sheets, made in the order in which one writes them down.
#pragma once
#include <QGridLayout>
#include <QLabel>

// With `editor` null the row has nothing but its label.
inline QWidget* plainRow(const QString& text, QWidget* editor, bool editorFirst, QWidget* parent) {
    auto* row = new QWidget(parent);
    row->setObjectName("QPrefWidget");
    row->setStyleSheet("QWidget#QPrefWidget { background-color: transparent; }QWidget#QPrefWidget QLabel { "
                       "background-color: transparent; } QWidget#QPrefWidget "
                       "QCheckBox,QWidget#QPrefWidget QRadioButton {    background-color: transparent;    "
                       "padding: 0px;    margin: 0px;    spacing: 5px;}");
    auto* grid = new QGridLayout;
    grid->setSpacing(5);
    grid->setContentsMargins(0, 2, 0, 2);
    auto* label = new QLabel(text, row);
    label->setToolTip(text);
    label->setStyleSheet("QToolTip { background-color: #ffffff;}");
    label->setContextMenuPolicy(Qt::CustomContextMenu);
    label->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    if (editor)
        grid->addWidget(editor, 0, editorFirst ? 0 : 1);
    grid->addWidget(label, 0, editorFirst ? 1 : 0);
    row->setLayout(grid);
    return row;
}
