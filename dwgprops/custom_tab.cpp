// The table of custom properties: how it is filled, edited in its cells, and watched.
#include "dwgprops/custom_tab.h"

#include "dwgprops/custom_delegate.h"
#include "dwgprops/custom_keys.h"
#include "dwgprops/custom_table.h"
#include "dwgprops/db_text.h"
#include "host/dialog_habits.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPushButton>
#include <QSignalBlocker>
#include <algorithm>

CustomTab::CustomTab(const QFileInfo&, const OdDbDatabaseSummaryInfoPtr& summaryInfo) {
    build(*summaryInfo);
    layOut();
    connectSignals();
    qApp->installEventFilter(this);
    if (hasHabit(DialogHabit::PropertiesByKeyboard))
        new CustomKeys(*this);
}

void CustomTab::build(const OdDbDatabaseSummaryInfo& info) {
    // Made without sizes: with sorting on, the table would sort by a column that is there from the start, and
    // tear the rows apart while they are filled in.
    table = new CustomTableWidget(this);
    table->setObjectName(QStringLiteral("table"));
    table->setSortingEnabled(true);
    setUpPropertyTable(*table, {tr("Name"), tr("Value")});
    table->setAutoScroll(false);
    table->setRowCount(minimumRows(info.numCustomInfo()));
    delegate = new CustomDelegate(table);
    table->setItemDelegate(delegate);
    fill(info);
    addButton = new QPushButton(tr("Add"), this);
    addButton->setObjectName(QStringLiteral("addButton"));
    addButton->setFocusPolicy(Qt::ClickFocus);
    deleteButton = new QPushButton(tr("Delete"), this);
    deleteButton->setObjectName(QStringLiteral("deleteButton"));
    deleteButton->setFocusPolicy(Qt::ClickFocus);
    deleteButton->setEnabled(false);
}

void CustomTab::fill(const OdDbDatabaseSummaryInfo& info) {
    const QSignalBlocker quiet(table->model()); // nobody looks at the table yet
    const int count = info.numCustomInfo();
    for (int index = 0; index < count; ++index) {
        OdString key, value;
        info.getCustomSummaryInfo(index, key, value);
        setRow(index, convertToNormalShow(std::move(key)), convertToNormalShow(std::move(value)));
    }
}

void CustomTab::setRow(int row, const QString& name, const QString& value) {
    table->setItem(row, 0, new QTableWidgetItem(name));
    table->setItem(row, 1, new QTableWidgetItem(value));
}

void CustomTab::layOut() {
    auto* const buttons = new QVBoxLayout;
    buttons->addWidget(addButton);
    buttons->addWidget(deleteButton);
    buttons->addStretch();
    auto* const row = new QHBoxLayout;
    row->addWidget(table);
    row->addLayout(buttons);
    auto* const column = new QVBoxLayout(this);
    auto* const label = new QLabel(tr("Custom properties:"), this);
    label->setBuddy(table);
    table->setAccessibleName(label->text());
    column->addWidget(label);
    column->addLayout(row);
}

void CustomTab::connectSignals() {
    connect(table, &QTableWidget::itemDoubleClicked, this, &CustomTab::startEdit);
    connect(table, &QTableWidget::cellChanged, this, &CustomTab::normaliseCell);
    connect(table, &QTableWidget::itemSelectionChanged, this, [this] {
        closeEditor();
        updateDeleteButton();
    });
    connect(delegate, &CustomDelegate::tabPressed, this, &CustomTab::editNextRow);
    connect(addButton, &QPushButton::clicked, this, &CustomTab::onAdd);
    connect(deleteButton, &QPushButton::clicked, this, &CustomTab::onDelete);
}

bool CustomTab::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationDeactivate)
        closeEditor();
    return QWidget::eventFilter(watched, event);
}

bool CustomTab::nameInUse(const QString& text) const {
    const int named = countNamedRows(*table);
    for (int row = 0; row < named; ++row)
        if (cellText(*table, row, 0) == text)
            return true;
    return false;
}

bool CustomTab::isBlankName(const QString& text) const {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c == QLatin1Char(' '); });
}

bool CustomTab::hasForbiddenChar(const QString& text) const {
    return std::any_of(text.begin(), text.end(), [this](QChar c) { return forbiddenChars.contains(c); });
}

int CustomTab::minimumRows(int n) const { return std::max(n, minRows); }

void CustomTab::closeEditor() { table->closePersistentEditor(table->item(editingRow, 1)); }

// Only the value is edited, also when the double click falls on the name.
void CustomTab::startEdit(QTableWidgetItem* item) {
    editingRow = item->row();
    QTableWidgetItem* const valueItem = table->item(editingRow, 1);
    table->openPersistentEditor(valueItem);
    if (auto* const editor = table->findChild<QLineEdit*>()) {
        const QPersistentModelIndex cell(table->model()->index(editingRow, 1));
        connect(editor, &QLineEdit::editingFinished, table, [this, editor, cell, valueItem] {
            if (table->item(cell.row(), cell.column()) == valueItem) // its row may be gone by now
                valueItem->setData(Qt::DisplayRole, editor->text());
        });
    }
    table->setCurrentItem(valueItem);
}

// A value of blanks stays; any other text loses the blanks at its ends.
void CustomTab::normaliseCell(int row, int column) {
    QTableWidgetItem* const item = table->item(row, column);
    if (!item)
        return;
    const QString text = item->text();
    const QString trimmed = text.trimmed();
    item->setText(column == 0 || !trimmed.isEmpty() ? trimmed : text);
}

// There is a named row, since an editor is open on one; none at all is not guarded against, on purpose.
void CustomTab::editNextRow() {
    closeEditor();
    editingRow = (editingRow + 1) % countNamedRows(*table);
    table->setCurrentCell(editingRow, 1);
    table->edit(table->currentIndex());
}

void CustomTab::updateDeleteButton() {
    const QList<QTableWidgetItem*> selected = table->selectedItems();
    deleteButton->setEnabled(!selected.isEmpty() && !selected.first()->text().isEmpty());
}

#include "moc_custom_tab.cpp"
