// The command that opens the Options dialog, run as the host runs it.
#include "options/window/qpref_command.h"

#include "host/options_parent.h"
#include "options/pages/search/searching_line_edit.h"
#include "tests/options/option_data.h"
#include "tests/support/poll.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <QTranslator>
#include <gtest/gtest.h>

namespace {

class QprefCommand : public testing::Test {
protected:
    // Runs the command; `whileOpen` gets the dialog once it is on the screen.
    int run(const std::function<void(Preferences&)>& whileOpen) {
        QTimer::singleShot(0, qApp, [this, whileOpen] {
            auto* const dialog = qobject_cast<Preferences*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            opened = true;
            whileOpen(*dialog);
        });
        const auto command = Ref<ICmdProcess>::share(new QPREF);
        const int result = command->Run(nullptr);
        QCoreApplication::processEvents();
        return result;
    }

    FixtureHost host;
    bool opened = false;
};

// Translates every text into itself behind its context.
class ContextShown : public QTranslator {
public:
    ContextShown() { QCoreApplication::installTranslator(this); }
    QString translate(const char* context, const char* text, const char*, int) const override {
        return QStringLiteral("%1: %2").arg(QLatin1String(context), QLatin1String(text));
    }
    bool isEmpty() const override { return false; }
};

void click(Preferences& dialog, const char* buttonName) {
    dialog.findChild<QPushButton*>(buttonName)->click();
}

} // namespace

TEST_F(QprefCommand, ReturnsAtOnceWithoutADocument) {
    EXPECT_EQ(run([](Preferences&) { ADD_FAILURE() << "a dialog has come up"; }), 0);
    EXPECT_FALSE(opened);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(host.vars.treesOpened, 0);
}

TEST_F(QprefCommand, ShowsAModalWindowNamedOptions) {
    host.openDocument();
    EXPECT_EQ(run([](Preferences& dialog) {
                  EXPECT_TRUE(dialog.isModal());
                  EXPECT_EQ(dialog.windowTitle(), "Options");
                  click(dialog, "cancelButton");
              }),
              0);
    EXPECT_TRUE(opened);
}

TEST_F(QprefCommand, TranslatesItsTitleInTheContextOfQObjectAndTheDialogInItsOwn) {
    host.openDocument();
    optionTree(host);
    const ContextShown translator;
    run([](Preferences& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "QObject: Options");
        EXPECT_EQ(dialog.okButton->text(), "Preferences: OK");
        EXPECT_EQ(shownText(dialog, rootItem(dialog)), "Preferences: Application preferences");
        click(dialog, "cancelButton");
    });
    EXPECT_TRUE(opened);
}

TEST_F(QprefCommand, AsksForAWindowWithACloseButtonAndNoMore) {
    host.openDocument();
    run([](Preferences& dialog) {
        const Qt::WindowFlags flags = dialog.windowFlags();
        EXPECT_EQ(int(flags & Qt::WindowType_Mask), int(Qt::Window));
        EXPECT_TRUE(flags & Qt::WindowCloseButtonHint);
        EXPECT_FALSE(flags & (Qt::WindowContextHelpButtonHint | Qt::WindowMinMaxButtonsHint));
        click(dialog, "cancelButton");
    });
    EXPECT_TRUE(opened);
}

TEST_F(QprefCommand, TakesTheFirstTopLevelWidgetAsParent) {
    host.openDocument();
    QWidget window;
    const QWidgetList before = QApplication::topLevelWidgets();
    run([&before](Preferences& dialog) {
        EXPECT_EQ(dialog.parentWidget(), before.first());
        click(dialog, "cancelButton");
    });
    EXPECT_TRUE(opened);
}

TEST_F(QprefCommand, TakesTheFirstOfSeveralTopLevelWidgetsAsParent) {
    host.openDocument();
    std::vector<std::unique_ptr<QWidget>> windows;
    for (int i = 0; i < 4; ++i)
        windows.push_back(std::make_unique<QWidget>());
    const QWidgetList before = QApplication::topLevelWidgets();
    ASSERT_NE(before.first(), before.last());
    run([&before](Preferences& dialog) {
        EXPECT_EQ(dialog.parentWidget(), before.first());
        click(dialog, "cancelButton");
    });
    EXPECT_TRUE(opened);
}

TEST_F(QprefCommand, GoesQuietlyWhenTheProgramEndsWithTheSearchBoxInFocus) {
    host.openDocument();
    QTimer::singleShot(0, qApp, [this] {
        run([](Preferences& dialog) {
            dialog.searchEdit->setFocus();
            EXPECT_TRUE(waitUntil([&dialog] { return dialog.searchEdit->hasFocus(); }));
            QCoreApplication::quit();
        });
    });
    QCoreApplication::exec();
    EXPECT_TRUE(opened);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

// Names one window, whatever else there is.
class NamedParent : public CKWUnknownImpl<IOptionsParent> {
public:
    explicit NamedParent(QWidget* named) : parent(named) {}
    QWidget* optionsParent() override { return parent; }

private:
    QWidget* parent;
};

TEST_F(QprefCommand, TakesTheParentThatTheHostNames) {
    host.openDocument();
    QWidget windows[5];
    for (QWidget* const named : {&windows[1], &windows[4], static_cast<QWidget*>(nullptr)}) {
        const auto hub = Ref<standin::ServiceHub>::share(new standin::ServiceHub);
        hub->add(Ref<NamedParent>::share(new NamedParent(named)));
        hub->add(Ref<IKWUnknown>::share(host.application()));
        theOnlyIApp = hub.get();
        opened = false;
        run([named](Preferences& dialog) {
            EXPECT_EQ(dialog.parentWidget(), named);
            click(dialog, "cancelButton");
        });
        EXPECT_TRUE(opened);
        theOnlyIApp = host.application();
    }
}

TEST_F(QprefCommand, HasNoParentWhenThereIsNoTopLevelWidget) {
    host.openDocument();
    ASSERT_TRUE(QApplication::topLevelWidgets().isEmpty());
    run([](Preferences& dialog) {
        EXPECT_EQ(dialog.parentWidget(), nullptr);
        click(dialog, "cancelButton");
    });
    EXPECT_TRUE(opened);
}

TEST_F(QprefCommand, NeverSetsItsStatus) {
    host.openDocument();
    const auto command = Ref<ICmdProcess>::share(new QPREF);
    QTimer::singleShot(0, qApp, [this] {
        auto* const dialog = qobject_cast<Preferences*>(QApplication::activeModalWidget());
        opened = dialog != nullptr;
        if (dialog)
            click(*dialog, "okButton");
    });
    EXPECT_EQ(command->Run(nullptr), 0);
    EXPECT_TRUE(opened);
    EXPECT_EQ(command->getStatus(), 0);
}

TEST_F(QprefCommand, RunsAgainAfterTheDialogHasClosed) {
    host.openDocument();
    for (int i = 0; i < 2; ++i) {
        opened = false;
        run([](Preferences& dialog) { click(dialog, "okButton"); });
        EXPECT_TRUE(opened);
    }
    EXPECT_EQ(host.vars.treesOpened, 2);
    EXPECT_EQ(host.vars.treesClosed, 2);
}

TEST_F(QprefCommand, LetsAnExceptionOfTheHostEndTheDialogAndPass) {
    host.openDocument();
    optionTree(host).node("size").type(L"EditInt").set("Key", "GRIPSIZE").set("sysvar", 1);
    host.vars.set("GRIPSIZE", 3);
    // From the timer's slot: a button's click would lose its guard pointer when the exception passes it.
    EXPECT_THROW(run([this](Preferences& dialog) {
                     host.vars.beforeRead = [](const std::string&) { throw OdError(eUserBreak); };
                     dialog.applyChanges();
                 }),
                 OdError);
    EXPECT_TRUE(opened);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}
