// Modal dialogs through the runner.
#include "host/modal_runner.h"

#include <QApplication>
#include <QDialog>
#include <QHideEvent>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <qtestspontaneevent.h>
#include <stdexcept>

namespace {

// Does `work` once the dialog is shown.
template <class Work> void whenShown(QDialog& dialog, Work work) { QTimer::singleShot(0, &dialog, work); }

TEST(ModalRunnerTest, TheResultIsThatOfTheDialog) {
    QDialog dialog;
    whenShown(dialog, [&] { dialog.accept(); });
    EXPECT_EQ(runModal(dialog), QDialog::Accepted);
    whenShown(dialog, [&] { dialog.done(7); });
    EXPECT_EQ(runModal(dialog), 7);
    whenShown(dialog, [&] { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(runModal(dialog), QDialog::Rejected);
    whenShown(dialog, [&] { dialog.close(); });
    EXPECT_EQ(runModal(dialog), QDialog::Rejected);
}

TEST(ModalRunnerTest, TheDialogIsModalWhileItRunsOnly) {
    QDialog dialog;
    bool modalInside = false;
    whenShown(dialog, [&] {
        modalInside = QApplication::activeModalWidget() == &dialog;
        dialog.accept();
    });
    runModal(dialog);
    EXPECT_TRUE(modalInside);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(dialog.testAttribute(Qt::WA_ShowModal));
}

TEST(ModalRunnerTest, ADialogThatIsModalByItselfStaysSo) {
    QDialog dialog;
    dialog.setModal(true);
    whenShown(dialog, [&] { dialog.accept(); });
    runModal(dialog);
    EXPECT_TRUE(dialog.testAttribute(Qt::WA_ShowModal));
}

TEST(ModalRunnerTest, ADialogThatIsOnlyHiddenEndsWithARejection) {
    QDialog dialog;
    dialog.setResult(7);
    whenShown(dialog, [&] { dialog.hide(); });
    EXPECT_EQ(runModal(dialog), QDialog::Rejected);
}

TEST(ModalRunnerTest, ADialogThatIsMinimisedGoesOn) {
    QDialog dialog;
    bool wentOn = false;
    whenShown(dialog, [&] {
        QHideEvent minimised;
        QSpontaneKeyEvent::setSpontaneous(&minimised); // as one of the window system
        qApp->notify(&dialog, &minimised);
        QTimer::singleShot(0, &dialog, [&] {
            wentOn = true;
            dialog.done(3);
        });
    });
    EXPECT_EQ(runModal(dialog), 3);
    EXPECT_TRUE(wentOn);
}

TEST(ModalRunnerTest, AnExceptionInASlotEndsTheDialogAndReachesTheCaller) {
    QDialog dialog;
    // From a timer's slot: a button's click would lose its guard pointer when the exception passes it.
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &dialog, [] { throw std::runtime_error("from the slot"); });
    timer.start(0);
    std::string reason;
    try {
        runModal(dialog);
    } catch (const std::runtime_error& error) {
        reason = error.what();
    }
    EXPECT_EQ(reason, "from the slot");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(ModalRunnerTest, ADialogThatHasThrownCanBeDestroyedAndAnotherOneRun) {
    {
        QDialog dialog;
        whenShown(dialog, [] { throw 5; });
        EXPECT_THROW(runModal(dialog), int);
    }
    QDialog next;
    whenShown(next, [&] { next.accept(); });
    EXPECT_EQ(runModal(next), QDialog::Accepted);
}

TEST(ModalRunnerTest, AnExceptionOfAnInnerDialogEndsBothWhenNobodyCatchesIt) {
    QDialog outer;
    whenShown(outer, [&] {
        QDialog inner(&outer);
        whenShown(inner, [] { throw std::runtime_error("inner"); });
        runModal(inner);
    });
    EXPECT_THROW(runModal(outer), std::runtime_error);
    EXPECT_FALSE(outer.isVisible());
}

TEST(ModalRunnerTest, AnInnerDialogLeavesTheOuterOneRunning) {
    QDialog outer;
    int innerResult = -1;
    whenShown(outer, [&] {
        QDialog inner(&outer);
        whenShown(inner, [&] { inner.accept(); });
        innerResult = runModal(inner);
        EXPECT_TRUE(outer.isVisible());
        outer.done(3);
    });
    EXPECT_EQ(runModal(outer), 3);
    EXPECT_EQ(innerResult, QDialog::Accepted);
}

} // namespace
