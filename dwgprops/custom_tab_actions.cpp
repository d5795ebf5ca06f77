// Adding and deleting custom properties.
#include "dwgprops/custom_tab.h"

#include "dwgprops/add_dlg.h"
#include "dwgprops/custom_table.h"
#include "host/app.h"
#include "host/modal_runner.h"
#include "host/property_names.h"
#include "host/qt_ui_core.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

// A name of other blanks than code 32 passes the dialog's own check, and is trimmed away afterwards.
bool isRefusedByHost(const QString& name) {
    const auto names = appService<IPropertyNames>();
    return names && !names->isName(name.toStdWString().c_str());
}

} // namespace

// The dialog is not deleted here, on purpose: it goes with the tab.
void CustomTab::onAdd() {
    auto* const dialog = new AddDlg(this);
    connect(dialog->okButton, &QPushButton::clicked, dialog, [this, dialog] { checkName(*dialog); });
    if (runModal(*dialog) != QDialog::Accepted)
        return;
    const QString name = dialog->nameEdit->text().trimmed();
    const QString typed = dialog->valueEdit->text();
    const QString value = typed.trimmed().isEmpty() ? typed : typed.trimmed();
    const int row = countNamedRows(*table);
    table->setRowCount(minimumRows(row + 1));
    setRow(row, name, value);
    updateDeleteButton();
}

// The checks look at the untrimmed text, so a name with a blank before it passes beside the same name
// without; both then read alike, and that is meant. So are the commas without a blank around the name.
void CustomTab::checkName(AddDlg& dialog) {
    const QString name = dialog.nameEdit->text();
    QString fault;
    if (name.size() > maxNameLength)
        fault = tr("This name is too long. Maximum length is %1 characters.").arg(maxNameLength);
    else if (isBlankName(name) || isRefusedByHost(name))
        fault = tr("This name must be at least one char long.");
    else if (nameInUse(name))
        fault = tr("The name,%1, is already in use.\nYou will need to enter a different name.").arg(name);
    else if (hasForbiddenChar(name))
        fault =
            tr("The name contains unsupported characters.\nThe following characters are not supported:\n%1")
                .arg(forbiddenChars);
    if (fault.isEmpty()) {
        dialog.accept();
        return;
    }
    host_qt_ui_core::QHostMessageBox::critical(tr("Warning"), fault, EV_MB_OK);
    dialog.nameEdit->setFocus(Qt::OtherFocusReason);
}

// From the last to the first, so that row numbers stay valid. What a change of selection asks for is done
// once for all rows: thousands of them would take minutes.
void CustomTab::removeRows(const std::set<int>& rows) {
    closeEditor();
    {
        const QSignalBlocker quiet(table);
        for (auto row = rows.rbegin(); row != rows.rend(); ++row)
            table->removeRow(*row);
    }
    updateDeleteButton();
}

void CustomTab::onDelete() {
    const QList<QTableWidgetItem*> selected = table->selectedItems();
    if (selected.isEmpty())
        return;
    std::set<int> rows; // ascending, each once
    for (const QTableWidgetItem* item : selected)
        rows.insert(item->row());
    removeRows(rows);
    table->setRowCount(minimumRows(countNamedRows(*table)));
    table->selectRow(rows.size() == 1 ? *rows.begin() : 0);
}
