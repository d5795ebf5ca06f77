// Opens the drawing properties on a drawing and acts in them as a user does, for checks by another reader:
//   props_tool show IN            prints what the dialog shows
//   props_tool ok IN OUT EDITS    types the edits, presses OK, saves
//   props_tool cancel IN OUT EDITS   the same with Cancel
// EDITS is JSON: {"fields": {"titleEdit": "..."}, "add": [["name", "value"]], "delete": [row]}.
#include "dwgprops/add_dlg.h"
#include "dwgprops/dwg_props.h"
#include "dwgprops/dwg_props_command.h"
#include "tests/support/fixture_host.h"
#include "tests/support/test_application.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTextEdit>
#include <QTimer>
#include <cstdio>

namespace {

const char* const lineEdits[] = {"titleEdit", "subjectEdit", "authorEdit", "keywordsEdit", "hyperlinkEdit"};
const char* const labels[] = {"createdLabel", "modifiedLabel", "lastSavedByLabel", "revisionNumberLabel",
                              "editingTimeLabel"};

QTableWidget& customTable(const QDialog& dialog) {
    return *dialog.findChild<QWidget*>("customTab")->findChild<QTableWidget*>("table");
}

// Acts on the next modal dialog once its loop runs.
void onNextDialog(const std::function<void(QDialog&)>& hands) {
    QTimer::singleShot(0, qApp,
                       [hands] { hands(*qobject_cast<QDialog*>(QApplication::activeModalWidget())); });
}

void addProperty(const QDialog& dialog, const QJsonArray& property) {
    onNextDialog([property](QDialog& add) {
        add.findChild<QLineEdit*>("nameEdit")->setText(property[0].toString());
        add.findChild<QLineEdit*>("valueEdit")->setText(property[1].toString());
        add.findChild<QPushButton*>("okButton")->click();
    });
    dialog.findChild<QPushButton*>("addButton")->click();
}

void deleteRow(const QDialog& dialog, int row) {
    customTable(dialog).clearSelection();
    customTable(dialog).selectRow(row);
    dialog.findChild<QPushButton*>("deleteButton")->click();
}

void type(const QDialog& dialog, const QJsonObject& edits) {
    const QJsonObject fields = edits["fields"].toObject();
    for (auto field = fields.begin(); field != fields.end(); ++field)
        if (auto* line = dialog.findChild<QLineEdit*>(field.key()))
            line->setText(field.value().toString());
        else
            dialog.findChild<QTextEdit*>(field.key())->setPlainText(field.value().toString());
    for (const QJsonValue row : edits["delete"].toArray())
        deleteRow(dialog, row.toInt());
    for (const QJsonValue property : edits["add"].toArray())
        addProperty(dialog, property.toArray());
}

QJsonArray shownProperties(const QTableWidget& table) {
    QJsonArray shown;
    for (int row = 0; row < table.rowCount(); ++row)
        if (table.item(row, 0))
            shown.append(QJsonArray{table.item(row, 0)->text(), table.item(row, 1)->text()});
    return shown;
}

void show(const QDialog& dialog) {
    QJsonObject all{{"custom", shownProperties(customTable(dialog))},
                    {"commentsEdit", dialog.findChild<QTextEdit*>("commentsEdit")->toPlainText()}};
    for (const char* name : lineEdits)
        all[name] = dialog.findChild<QLineEdit*>(name)->text();
    const auto* statistics = dialog.findChild<QWidget*>("statisticTab");
    for (const char* name : labels)
        all[name] = statistics->findChild<QLabel*>(name)->text();
    std::puts(QJsonDocument(all).toJson().constData());
}

int run(const QStringList& arguments) {
    const QString command = arguments.value(1);
    if (arguments.size() != (command == "show" ? 3 : 5))
        return 2;
    FixtureHost host;
    const OdDbDatabasePtr drawing = OdDbDatabase::readFile(OdString(arguments[2].toStdWString()));
    host.openDocument(drawing).path = OdString(arguments[2].toStdWString());
    onNextDialog([&](QDialog& dialog) {
        if (command == "show") {
            show(dialog);
            return dialog.reject();
        }
        type(dialog, QJsonDocument::fromJson(arguments[4].toUtf8()).object());
        dialog.findChild<QPushButton*>(command + "Button")->click();
    });
    runDwgProps();
    if (command != "show")
        drawing->writeFile(OdString(arguments[3].toStdWString()));
    host.closeDocument();
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    TestApplication application(argc, argv);
    try {
        return run(QCoreApplication::arguments());
    } catch (const OdError& error) {
        std::fprintf(stderr, "%s\n", error.description().toLocal8Bit().c_str());
        return 3;
    }
}
