// Every control of every dialog whose slot throws while other events wait: the dialog ends, its command says
// why, and the workbench goes on.
#include "tests/e2e/dialog_ways.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QSet>
#include <QSpinBox>
#include <QTabBar>
#include <QToolButton>
#include <stdexcept>

namespace {

using Act = std::function<void()>;

[[noreturn]] void fail() { throw std::runtime_error("a slot that fails"); }

// What a user does to the control, with a slot that fails in the place of those that the dialog has
// connected. Null for a control that does nothing.
template <class Control, class Signal> Act armed(Control* control, Signal signal, const Act& act) {
    QObject::disconnect(control, signal, nullptr, nullptr);
    QObject::connect(control, signal, control, [] { fail(); });
    return act;
}

Act armed(QWidget* control) {
    if (auto* tool = qobject_cast<QToolButton*>(control); tool && tool->menu())
        return armed(tool->menu(), &QMenu::aboutToShow, [menu = tool->menu()] { emit menu->aboutToShow(); });
    if (auto* button = qobject_cast<QAbstractButton*>(control))
        return armed(button, &QAbstractButton::clicked, [button] {
            button->setEnabled(true);
            button->click();
        });
    if (auto* box = qobject_cast<QComboBox*>(control))
        return armed(box, QOverload<int>::of(&QComboBox::activated),
                     [box] { QMetaObject::invokeMethod(box, "activated", Q_ARG(int, 0)); });
    if (auto* edit = qobject_cast<QLineEdit*>(control))
        return armed(edit, &QLineEdit::textChanged, [edit] { edit->setText(edit->text() + "1"); });
    if (auto* bar = qobject_cast<QTabBar*>(control))
        return bar->count() > 1
                   ? armed(bar, &QTabBar::currentChanged,
                           [bar] { bar->setCurrentIndex((bar->currentIndex() + 1) % bar->count()); })
                   : nullptr;
    if (auto* view = qobject_cast<QAbstractItemView*>(control))
        return armed(view, &QAbstractItemView::clicked, [view] { emit view->clicked({}); });
    return nullptr;
}

struct ThrowingSlots : DialogWays, testing::WithParamInterface<DialogWay> {
    static QWidget* dialog() { return DialogWays::dialog(GetParam()); }
    // One control of each kind and name; the Options dialog has thousands of rows.
    static QList<QWidget*> controls() {
        QList<QWidget*> found;
        QSet<QString> seen;
        for (QWidget* const control : dialog()->findChildren<QWidget*>()) {
            const QString kind = QString(control->metaObject()->className());
            const bool inRow =
                GetParam().className == std::string("Preferences") && control->parentWidget() != dialog();
            const QString name = inRow ? kind : kind + control->objectName() + QString::number(found.size());
            if (control->isVisible() && !seen.contains(name) && isControl(control)) {
                seen.insert(name);
                found << control;
            }
        }
        return found;
    }
    static bool isControl(const QWidget* control) {
        const auto* const bar = qobject_cast<const QTabBar*>(control);
        return qobject_cast<const QAbstractButton*>(control) || qobject_cast<const QComboBox*>(control) ||
               qobject_cast<const QLineEdit*>(control) || (bar && bar->count() > 1) ||
               qobject_cast<const QAbstractItemView*>(control);
    }
    void open(const Act& whenOpen) { DialogWays::open(GetParam(), whenOpen); }
    // The slot is left while events of several kinds wait for the same loop.
    void throwFrom(int number) {
        delivered = 0;
        open([this, number] {
            ASSERT_TRUE(dialog()) << shown();
            const QPointer<QWidget> control = controls().value(number);
            ASSERT_TRUE(control);
            name = QString("%1 %2").arg(control->metaObject()->className(), control->objectName());
            const Act act = armed(control);
            for (int i = 0; i < 3; ++i) {
                QTimer::singleShot(0, bench.get(), [this] { ++delivered; });
                QMetaObject::invokeMethod(
                    bench.get(), [this] { ++delivered; }, Qt::QueuedConnection);
            }
            act();
        });
    }
    QString name;
    int delivered = 0;
};

TEST_P(ThrowingSlots, EndTheDialogWithTheCommandsMessageAndNothingElse) {
    int count = 0;
    open([&] {
        ASSERT_TRUE(dialog()) << shown();
        count = controls().size();
        workbench::cancelTopmost(); // the dialog of groups comes again after any other way out
    });
    EXPECT_GE(count, 2);
    for (int i = 0; i < count; ++i) {
        const int before = transcript().filter("a slot that fails").size();
        throwFrom(i);
        EXPECT_EQ(transcript().filter(QString("%1: a slot that fails").arg(GetParam().way.front())).size(),
                  before + 1)
            << name.toStdString() << '\n'
            << transcript().mid(transcript().size() - 4).join('\n').toStdString();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << name.toStdString();
        EXPECT_TRUE(waitUntil([this] { return delivered == 6; })) << name.toStdString();
        EXPECT_EQ(document().database()->numActiveTransactions(), 0) << name.toStdString();
        EXPECT_FALSE(document().database()->isUndoBlockStarted()) << name.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, ThrowingSlots, testing::ValuesIn(dialogWays()),
                         [](const auto& tested) { return std::string(tested.param.title); });

} // namespace
