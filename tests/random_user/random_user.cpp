// What a random user does, by the kind of window that waits. File dialogs are answered by names in the
// present folder or left, so that no file outside of it is touched.
#include "tests/random_user/random_user.h"

#include "workbench/canvas/canvas.h"
#include "workbench/window/console_line.h"
#include "workbench/window/console_panel.h"
#include "workbench/window/main_window.h"
#include "workbench/workbench.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTextEdit>
#include <QtTest>

namespace {

const std::size_t rememberedSteps = 30;

// Commands that end the program, or wait for a file dialog of their own.
const QStringList avoided{"QUIT", "EXIT"};

QString described(const QWidget& widget) {
    return QString::fromLatin1(widget.metaObject()->className()) + ' ' + widget.objectName();
}

bool isControl(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && widget.focusPolicy() != Qt::NoFocus &&
           (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
            qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractItemView*>(&widget) ||
            qobject_cast<const QTextEdit*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget));
}

std::vector<QWidget*> controlsOf(const QWidget& dialog) {
    std::vector<QWidget*> controls;
    for (QWidget* widget : dialog.findChildren<QWidget*>())
        if (isControl(*widget) && widget->window() == &dialog)
            controls.push_back(widget);
    return controls;
}

} // namespace

RandomUser::RandomUser(workbench::Workbench& workbench, unsigned seed) : bench(workbench), random(seed) {}

// Not by a distribution of the library, whose numbers differ between libraries.
int RandomUser::below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }

void RandomUser::note(const QString& step) {
    steps.push_back(step);
    if (steps.size() > rememberedSteps)
        steps.pop_front();
}

std::string RandomUser::lastSteps() const {
    std::string text;
    for (const QString& step : steps)
        text += "  " + step.toStdString() + "\n";
    return text;
}

bool RandomUser::isAtRest() const {
    return !QApplication::activePopupWidget() && !QApplication::activeModalWidget() &&
           !bench.commands().isRunning() && bench.commands().isReady();
}

void RandomUser::act() {
    if (QWidget* menu = QApplication::activePopupWidget())
        return actOnMenu(*menu);
    if (QWidget* dialog = QApplication::activeModalWidget())
        return actOnDialog(*dialog);
    if (bench.commands().isRunning())
        return answerPrompt();
    if (below(6) == 0)
        return useMouse();
    giveCommand();
}

// By its own button where it has one: the dialog of groups comes back after Escape.
void RandomUser::leave(QDialog& dialog) {
    if (auto* const button = dialog.findChild<QPushButton*>(QStringLiteral("cancelButton")))
        button->click();
    else
        dialog.reject();
}

bool RandomUser::comeToRest() {
    if (QWidget* menu = QApplication::activePopupWidget())
        menu->close();
    else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        leave(*dialog);
    else if (bench.commands().isRunning())
        bench.console().escape();
    return isAtRest();
}

void RandomUser::actOnMenu(QWidget& menu) {
    static const std::vector<Qt::Key> keys{Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Escape,
                                           Qt::Key_Right};
    const Qt::Key key = oneOf(keys);
    note("menu " + described(menu) + ": key " + QString::number(key, 16));
    QTest::keyClick(&menu, key);
}

void RandomUser::actOnDialog(QWidget& dialog) {
    if (qobject_cast<QFileDialog*>(&dialog)) {
        note("leaves the file dialog");
        return static_cast<QDialog&>(dialog).reject();
    }
    const std::vector<QWidget*> controls = controlsOf(dialog);
    if (controls.empty() || below(40) == 0) {
        note("Escape in " + described(dialog));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    } else {
        actOnControl(*oneOf(controls));
    }
}

void RandomUser::actOnControl(QWidget& control) {
    static const std::vector<Qt::Key> keys{Qt::Key_Tab,  Qt::Key_Return, Qt::Key_Space, Qt::Key_Down,
                                           Qt::Key_Up,   Qt::Key_Left,   Qt::Key_Right, Qt::Key_F2,
                                           Qt::Key_Home, Qt::Key_Delete};
    if (const int way = below(3); way == 0) {
        note("clicks " + described(control));
        auto* view = qobject_cast<QAbstractItemView*>(&control);
        QWidget* target = view ? view->viewport() : &control;
        QTest::mouseClick(target, Qt::LeftButton, {},
                          QPoint(below(std::max(1, target->width())), below(std::max(1, target->height()))));
    } else if (way == 1 && (qobject_cast<QLineEdit*>(&control) || qobject_cast<QTextEdit*>(&control))) {
        const QString text = someText();
        note("types '" + text + "' into " + described(control));
        for (const QChar letter : text)
            if (letter.unicode() < 128) // the test library has no keys for others
                QTest::keyClick(&control, letter.toLatin1());
    } else {
        const Qt::Key key = oneOf(keys);
        note("key " + QString::number(key, 16) + " on " + described(control));
        QTest::keyClick(&control, key);
    }
}

QString RandomUser::someText() {
    static const std::vector<QString> texts{
        "",         "0",      "1",    "-1",     "12.5",
        "1e300",    "abc",    "A B",  "STUDY",  QString::fromUtf8("Größe"),
        "*",        "?",      "15A",  "15C",    "155",
        "10,20",    "@5,5",   "All",  "%PATH%", "a\\b/c:d",
        "Last",     "window", "-5.5", "none",   "NEW1",
        "65536.5e", "NaN,1",  "''\"", "..",     "house"};
    return oneOf(texts);
}

void RandomUser::answerPrompt() {
    if (below(8) == 0) {
        note("Escape at '" + bench.commands().prompt() + "'");
        return bench.console().escape();
    }
    if (below(4) == 0)
        return useMouse();
    // One of the words that the prompt offers in its brackets, or something.
    const QString prompt = bench.commands().prompt();
    const QStringList words = prompt.section('[', 1).section(']', 0, 0).split('/', Qt::SkipEmptyParts);
    const QString text = !words.isEmpty() && below(2) ? words[below(words.size())] : someText();
    note("answers '" + text + "' at '" + prompt + "'");
    bench.console().enterLine(text);
}

QString RandomUser::someCommand() {
    QStringList names = bench.commands().names();
    for (const QString& name : avoided)
        names.removeAll(name);
    return names[below(names.size())];
}

void RandomUser::giveCommand() {
    const QString command = someCommand();
    ++commands;
    note("command " + command);
    bench.console().enterLine(command);
}

void RandomUser::useMouse() {
    QWidget& canvas = bench.window()->drawingArea();
    const auto somewhere = [&] {
        return QPoint(below(std::max(1, canvas.width())), below(std::max(1, canvas.height())));
    };
    const QPoint from = somewhere(), to = somewhere();
    note(QString("mouse from %1,%2 to %3,%4").arg(from.x()).arg(from.y()).arg(to.x()).arg(to.y()));
    const Qt::MouseButton button = below(5) ? Qt::LeftButton : Qt::MiddleButton;
    QTest::mousePress(&canvas, button, {}, from);
    if (below(2))
        QTest::mouseMove(&canvas, to);
    QTest::mouseRelease(&canvas, button, {}, below(2) ? from : to);
}
