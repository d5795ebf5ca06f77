// Exceptions that nobody caught, the interfaces that modules ask for, and tool tips.
#include "standin/qt_application/host_application.h"

#include "host/app.h"
#include "host/modal_runner.h"
#include "sdk/rx/od_error.h"
#include "standin/console/console.h"
#include "standin/params/service_hub.h"
#include "standin/registry.h"
#include "tests/support/fixture_services.h"

#include <QDialog>
#include <QHelpEvent>
#include <QTimer>
#include <QToolTip>
#include <gtest/gtest.h>
#include <stdexcept>

using standin::HostApplication;

namespace {

HostApplication& application() { return *static_cast<HostApplication*>(QCoreApplication::instance()); }

struct HostApplicationTest : testing::Test {
    HostApplicationTest() {
        application().report = [this](const QString& problem) { problems << problem; };
        hub->add(application().loopExceptions());
        theOnlyIApp = hub.get();
    }
    ~HostApplicationTest() override {
        theOnlyIApp = nullptr;
        application().report = nullptr;
    }

    // Runs each step as an event of its own, when the one before has ended, and then leaves the main loop.
    template <class... Steps> void run(Steps... steps) {
        const std::vector<std::function<void()>> all{steps...};
        post(all, 0);
        EXPECT_EQ(QApplication::exec(), 0);
    }
    static void post(const std::vector<std::function<void()>>& steps, std::size_t number) {
        struct PostsNext {
            ~PostsNext() { post(steps, number + 1); }
            const std::vector<std::function<void()>>& steps;
            std::size_t number;
        };
        QTimer::singleShot(0, &application(), [&steps, number] {
            if (number == steps.size())
                return QCoreApplication::quit();
            const PostsNext next{steps, number};
            steps[number]();
        });
    }
    // Events of several kinds that wait while another one is delivered.
    void postOthers() {
        for (int i = 0; i < 3; ++i) {
            QTimer::singleShot(0, &application(), [this] { ++delivered; });
            QMetaObject::invokeMethod(
                &application(), [this] { ++delivered; }, Qt::QueuedConnection);
        }
    }

    const Ref<standin::ServiceHub> hub = Ref<standin::ServiceHub>::share(new standin::ServiceHub);
    QStringList problems;
    int delivered = 0;
};

} // namespace

TEST_F(HostApplicationTest, AnExceptionEndsItsEventIsReportedAndTheLoopGoesOn) {
    bool wentOn = false;
    run([] { throw std::runtime_error("out of paper"); }, [] { throw OdError(eInvalidInput); },
        [] { throw 5; }, [&] { wentOn = true; });
    ASSERT_EQ(problems.size(), 3);
    EXPECT_EQ(problems[0], "out of paper");
    EXPECT_FALSE(problems[1].isEmpty());
    EXPECT_EQ(problems[2], "ended by an unknown error");
    EXPECT_TRUE(wentOn);
}

TEST_F(HostApplicationTest, AnExceptionOfAModalDialogPassesToWhoeverRunsIt) {
    QString caught;
    run([&] {
        QDialog dialog;
        QTimer::singleShot(0, &dialog, [] { throw std::runtime_error("no such layer"); });
        try {
            runModal(dialog);
        } catch (const std::runtime_error& error) {
            caught = error.what();
        }
    });
    EXPECT_EQ(caught, "no such layer");
    EXPECT_TRUE(problems.isEmpty());
}

TEST_F(HostApplicationTest, AnExceptionThatPassesThroughAModalDialogEndsAtTheMainLoop) {
    run([] {
        QDialog dialog;
        QTimer::singleShot(0, &dialog, [] { throw std::runtime_error("no such layer"); });
        runModal(dialog);
    });
    EXPECT_EQ(problems, QStringList("no such layer"));
}

TEST_F(HostApplicationTest, EventsThatWaitWhileADialogThrowsAreDelivered) {
    QString caught;
    run([&] {
        QDialog dialog;
        QTimer::singleShot(0, &dialog, [this] {
            postOthers();
            throw std::runtime_error("no such layer");
        });
        try {
            runModal(dialog);
        } catch (const std::runtime_error& error) {
            caught = error.what();
        }
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(caught, "no such layer");
    EXPECT_EQ(delivered, 6);
}

TEST_F(HostApplicationTest, EventsThatWaitWhileTheMainLoopDeliversAThrowingOneAreDelivered) {
    run([this] {
        postOthers();
        throw std::runtime_error("early");
    });
    EXPECT_EQ(problems, QStringList("early"));
    EXPECT_EQ(delivered, 6);
}

TEST_F(HostApplicationTest, OfTwoExceptionsOfADialogTheFirstEndsItAndTheOtherIsReported) {
    QString caught;
    run([&] {
        QDialog dialog;
        QTimer::singleShot(0, &dialog, [] { throw std::runtime_error("first"); });
        QTimer::singleShot(0, &dialog, [] { throw std::runtime_error("second"); });
        try {
            runModal(dialog);
            QCoreApplication::processEvents();
        } catch (const std::runtime_error& error) {
            caught = error.what();
        }
    });
    EXPECT_EQ(caught, "first");
    EXPECT_EQ(problems, QStringList("second"));
}

TEST_F(HostApplicationTest, AnExceptionOfAnInnerDialogGoesThroughBothWithoutCrossingTheirLoops) {
    QStringList passed;
    run([&] {
        QDialog outer;
        QTimer::singleShot(0, &outer, [&] {
            QDialog inner(&outer);
            QTimer::singleShot(0, &inner, [] { throw std::runtime_error("inner"); });
            try {
                runModal(inner);
            } catch (...) {
                passed << "inner";
                throw;
            }
        });
        try {
            runModal(outer);
        } catch (const std::runtime_error& error) {
            passed << QString("outer: %1").arg(error.what());
        }
    });
    EXPECT_EQ(passed, QStringList({"inner", "outer: inner"}));
}

TEST_F(HostApplicationTest, ADialogWithALoopOfQtsOwnIsClosedAndTheExceptionGoesOn) {
    int result = -1;
    run([&] {
        QDialog dialog;
        QTimer::singleShot(0, &dialog, [] { throw std::runtime_error("beside a dialog of Qt"); });
        result = dialog.exec();
    });
    EXPECT_EQ(result, QDialog::Rejected);
    EXPECT_EQ(problems, QStringList("beside a dialog of Qt"));
}

TEST_F(HostApplicationTest, AnExceptionAmongEventsThatAreProcessedInBetweenGoesNoFurther) {
    bool wentOn = false;
    run([&] {
        QTimer::singleShot(0, &application(), [] { throw std::runtime_error("in between"); });
        EXPECT_NO_THROW(QCoreApplication::processEvents());
        wentOn = true;
    });
    EXPECT_TRUE(wentOn);
    EXPECT_EQ(problems, QStringList("in between"));
}

namespace {

class ThrowingReceiver : public QObject {
public:
    bool event(QEvent*) override { throw std::runtime_error("to the sender"); }
};

} // namespace

TEST_F(HostApplicationTest, AnExceptionOfAnEventThatCodeSendsIsItsSenders) {
    QString caught;
    run([&] {
        ThrowingReceiver receiver;
        QEvent event(QEvent::User);
        try {
            QCoreApplication::sendEvent(&receiver, &event);
        } catch (const std::runtime_error& error) {
            caught = error.what();
        }
    });
    EXPECT_EQ(caught, "to the sender");
    EXPECT_TRUE(problems.isEmpty());
}

TEST_F(HostApplicationTest, APromptThatWaitsGetsTheException) {
    standin::Console console;
    QString caught;
    run([&] {
        QTimer::singleShot(0, &application(), [] { throw std::runtime_error("at the prompt"); });
        try {
            console.getInput(L"Name", nullptr, 0, nullptr, 0);
        } catch (const std::runtime_error& error) {
            caught = error.what();
        }
    });
    EXPECT_EQ(caught, "at the prompt");
    EXPECT_EQ(console.openPrompt(), nullptr);
}

TEST_F(HostApplicationTest, OutsideTheMainLoopAnExceptionPassesToTheCaller) {
    QObject receiver;
    QObject::connect(&receiver, &QObject::objectNameChanged, [] { throw std::runtime_error("early"); });
    EXPECT_THROW(receiver.setObjectName("name"), std::runtime_error);
    QTimer::singleShot(0, &receiver, [] { throw std::runtime_error("early"); });
    EXPECT_THROW(QCoreApplication::processEvents(QEventLoop::AllEvents, 50), std::runtime_error);
    EXPECT_TRUE(problems.isEmpty());
}

TEST_F(HostApplicationTest, TheTwoInterfacesAreFoundByTheirNames) {
    auto* const found =
        static_cast<IqApplication*>(QCoreApplication::instance()->qt_metacast("oda.IqApplication"));
    ASSERT_NE(found, nullptr);
    QObject* const console = found->extension("oda.IqConsole");
    ASSERT_NE(console, nullptr);
    EXPECT_NE(console->qt_metacast("oda.IqConsole"), nullptr);
    EXPECT_EQ(found->extension("oda.IqOther"), nullptr);
}

namespace {

struct Documents : HostDocumentManager {
    HostDocument* currentDocument() override { return nullptr; }
    HostCommandIO* fallbackIO() override { return nullptr; }
    HostVarService* varService() override { return &vars; }
    FixtureVars vars;
};

class TipCount : public QWidget {
public:
    bool event(QEvent* event) override {
        asked += event->type() == QEvent::ToolTip;
        return QWidget::event(event);
    }
    int asked = 0;
};

int tipsAskedFor() {
    TipCount widget;
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
    QCoreApplication::sendEvent(&widget, &event);
    return widget.asked;
}

} // namespace

TEST_F(HostApplicationTest, ToolTipsFollowTheirVariable) {
    Documents documents;
    const standin::HostRegistry saved = standin::registry();
    EXPECT_EQ(tipsAskedFor(), 1) << "without variables";
    standin::registry().documents = &documents;
    EXPECT_EQ(tipsAskedFor(), 1) << "without the variable";
    documents.vars.set("TOOLTIPS", false);
    EXPECT_EQ(tipsAskedFor(), 0);
    documents.vars.set("TOOLTIPS", true);
    EXPECT_EQ(tipsAskedFor(), 1);
    standin::registry() = saved;
}
