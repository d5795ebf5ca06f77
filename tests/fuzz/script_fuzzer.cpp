// The libFuzzer target for scripts: whatever its lines are, a script comes to its end and leaves neither a
// prompt nor a dialog behind. It plays on a small window and on commands that write nothing.
#include "host/modal_runner.h"
#include "sdk/rx/od_string.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/qt_application/host_application.h"
#include "tests/fuzz/fuzz_fault.h"
#include "workbench/script/script_player.h"

#include <QComboBox>
#include <QDialog>
#include <QEventLoop>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace standin;

namespace {

void addParts(QWidget* window) {
    auto* const layout = new QVBoxLayout(window);
    auto* const edit = new QLineEdit(window);
    edit->setObjectName("edit");
    auto* const box = new QComboBox(window);
    box->setObjectName("box");
    box->addItems({"one", "two"});
    auto* const tree = new QTreeWidget(window);
    tree->setObjectName("tree");
    auto* const row = new QTreeWidgetItem(tree, {"row"});
    new QTreeWidgetItem(row, {"leaf"});
    auto* const tabs = new QTabWidget(window);
    tabs->addTab(new QWidget, "first");
    tabs->addTab(new QWidget, "second");
    for (QWidget* part : std::initializer_list<QWidget*>{edit, box, tree, tabs})
        layout->addWidget(part);
}

void openDialog() {
    QDialog dialog;
    dialog.setObjectName("dialog");
    addParts(&dialog);
    auto* const ok = new QPushButton("OK", &dialog);
    ok->setObjectName("okButton");
    dialog.layout()->addWidget(ok);
    QObject::connect(ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    runModal(dialog);
}

void askFor(Console& console) {
    OdString text;
    OdGePoint3d point;
    double number = 0;
    console.getInput(L"Choose", L"One Two THree _ One Two THree", 4, &text, 0);
    console.getPoint(nullptr, &point, L"Point", L"Undo", 4, &text, nullptr);
    console.getDistance(point, &number, L"Distance", L"", 0, &text, nullptr);
    console.getAngle(point, &number, L"Angle", L"", 0, &text, nullptr);
    console.getReal(&number, L"Number", L"", 0, 0, 0);
    console.printLine(text.c_str());
}

HostApplication& application() {
    static int count = 1;
    static char name[] = "script_fuzzer";
    static char* arguments[] = {name, nullptr};
    static HostApplication only(count, arguments);
    return only;
}

// Pictures of windows would be written to wherever the script says.
QString withoutPictures(QString text) { return text.remove(QStringLiteral("@screenshot")); }

void play(const QString& text) {
    Console console;
    CommandLoop commands(console);
    commands.add({"ASK", {}, [&] { askFor(console); }});
    commands.add({"DIALOG", {}, openDialog});
    QMainWindow window;
    auto* const middle = new QWidget;
    addParts(middle);
    window.setCentralWidget(middle);
    window.show();
    window.activateWindow();
    workbench::ScriptPlayer player("fuzzed", withoutPictures(text), console, commands);
    player.setPace(0);
    player.setPatience(0);
    QEventLoop loop;
    QTimer leaving; // a prompt that is open after the last line stays open for the user
    QObject::connect(&leaving, &QTimer::timeout, &loop,
                     [&] { commands.isRunning() ? console.escape() : loop.quit(); });
    QObject::connect(&player, &workbench::ScriptPlayer::finished, &leaving, [&] { leaving.start(0); });
    player.start();
    loop.exec();
    fuzz::expect(!commands.isRunning(), "a command is still running");
    fuzz::expect(!QApplication::activeModalWidget(), "a dialog is still open");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    play(QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    return 0;
}
