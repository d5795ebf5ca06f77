// Exceptions that nobody caught, the interfaces that modules ask for, and tool tips.
#include "standin/qt_application/host_application.h"

#include "host/modal_runner.h"
#include "sdk/rx/od_error.h"
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
    }
    ~HostApplicationTest() override { application().report = nullptr; }

    // Runs each step as an event of its own, and then leaves the main loop.
    template <class... Steps> void run(Steps... steps) {
        (QTimer::singleShot(0, &application(), steps), ...);
        QTimer::singleShot(0, &application(), [] { QCoreApplication::quit(); });
        EXPECT_EQ(application().run(), 0);
    }

    QStringList problems;
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
