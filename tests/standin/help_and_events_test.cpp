// Help pages and messages to the user.
#include "standin/events/events.h"
#include "standin/help/help_service.h"
#include "standin/registry.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QtTest>
#include <gtest/gtest.h>

using namespace standin;

namespace {

struct HelpTest : testing::Test {
    HelpTest() {
        EXPECT_TRUE(QDir(folder.path()).mkdir("pages"));
        write("pages/IDH_GroupCmd[1].html",
              "<html><head><title>Groups</title></head><body>About groups.</body></html>");
        write("IDH_Outside.html", "<html><body>Not for you.</body></html>");
    }
    void write(const char* file, const char* contents) const {
        QFile page(folder.filePath(file));
        EXPECT_TRUE(page.open(QIODevice::WriteOnly));
        page.write(contents);
    }
    QString shown() {
        return help->window()->findChild<QTextBrowser*>(QStringLiteral("pageBrowser"))->toPlainText();
    }
    QTemporaryDir folder;
    Ref<HelpService> help = Ref<HelpService>::share(new HelpService(folder.filePath("pages")));
};

TEST_F(HelpTest, PageOfTheTopicIsShown) {
    help->showTopic("IDH_GroupCmd[1]");
    ASSERT_NE(help->window(), nullptr);
    EXPECT_TRUE(help->window()->isVisible());
    EXPECT_EQ(shown(), "About groups.");
    EXPECT_EQ(help->window()->windowTitle(), "Help - Groups");
}

TEST_F(HelpTest, MissingPageIsTold) {
    help->showTopic("IDH_None");
    EXPECT_EQ(shown(), "There is no help page \"IDH_None\".");
}

TEST_F(HelpTest, TopicDoesNotLeadOutOfTheFolder) {
    help->showTopic("../IDH_Outside");
    EXPECT_EQ(shown(), "There is no help page \"../IDH_Outside\".");
}

TEST_F(HelpTest, WindowBelongsToTheModalDialogSoThatItCanBeUsed) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    help->showTopic("IDH_GroupCmd[1]");
    EXPECT_EQ(help->window()->parentWidget(), &dialog);
    dialog.hide();
    help->showTopic("IDH_GroupCmd[1]");
    EXPECT_EQ(help->window()->parentWidget(), nullptr);
}

TEST_F(HelpTest, EscapeClosesTheWindow) {
    help->showTopic("IDH_GroupCmd[1]");
    help->window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(help->window()));
    QTest::keyClick(help->window()->findChild<QTextBrowser*>(QStringLiteral("pageBrowser")), Qt::Key_Escape);
    EXPECT_TRUE(!help->window() || !help->window()->isVisible());
}

struct EventsTest : testing::Test {
    EventsTest() {
        registry().messageBox = [this](MessageKind kind, const QString&, const QString& text,
                                       EV_MB_RET offered) {
            boxKind = kind;
            box = text;
            buttons = offered;
            return answer;
        };
    }
    ~EventsTest() override { registry() = saved; }
    const HostRegistry saved = registry();
    QString printed, box;
    MessageKind boxKind = MessageKind::Critical;
    EV_MB_RET buttons{}, answer = EV_MB_OK;
    Ref<Events> events = Ref<Events>::share(new Events([this](const QString& text) { printed = text; }));
};

TEST_F(EventsTest, MessageIsShownAndPrinted) {
    for (const int kind : {0, 12}) {
        box = printed = QString();
        buttons = {};
        EXPECT_EQ(events->notify(kind, L"Invalid insertion point.", 0, 7), 1);
        EXPECT_EQ(box, "Invalid insertion point.");
        EXPECT_EQ(printed, box);
        EXPECT_EQ(buttons, EV_MB_OK);
    }
}

TEST_F(EventsTest, NoToAQuestionIsCancel) {
    answer = EV_MB_NO;
    EXPECT_EQ(events->notify(14, L"Continue?", 0, 7), 2);
    EXPECT_EQ(boxKind, MessageKind::Question);
    EXPECT_EQ(buttons, EV_MB_YES | EV_MB_NO);
    answer = EV_MB_YES;
    EXPECT_NE(events->notify(14, L"Continue?", 0, 7), 2);
}

class DialogParentTest : public testing::Test {
protected:
    ~DialogParentTest() override { registry() = saved; }
    const HostRegistry saved = registry();
};

TEST_F(DialogParentTest, AMenuThatIsAboutToCloseIsNeverTheParentOfADialog) {
    QWidget window, other;
    registry().mainWindow = &other;
    QMenu menu(&window), subMenu(&menu), loose;
    for (QWidget* const popup : {static_cast<QWidget*>(&menu), static_cast<QWidget*>(&subMenu)}) {
        registry().dialogParent = popup;
        EXPECT_EQ(host_qt_ui_core::parentForDialog(), &window);
    }
    registry().dialogParent = &loose;
    EXPECT_EQ(host_qt_ui_core::parentForDialog(), &other) << "the main window";
    QWidget page;
    page.setAttribute(Qt::WA_DeleteOnClose);
    registry().dialogParent = &page;
    EXPECT_EQ(host_qt_ui_core::parentForDialog(), &other)
        << "a page of help takes its children along when it closes";
    QDialog dialog(&window);
    registry().dialogParent = &dialog;
    EXPECT_EQ(host_qt_ui_core::parentForDialog(), &dialog);
}

TEST(MessageBoxTest, NamesAreShownAsTheyAreAndTheButtonPressedIsTheAnswer) {
    const QString text = QStringLiteral("The <b>group</b> &amp; \"A<br>B\"");
    for (const EV_MB_RET answer : {EV_MB_YES, EV_MB_NO}) {
        QPointer<QMessageBox> box;
        QTimer::singleShot(0, qApp, [&] {
            box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_EQ(box->text(), text);
            EXPECT_EQ(box->icon(), QMessageBox::Question);
            box->button(QMessageBox::StandardButton(int(answer)))->click();
        });
        EXPECT_EQ(host_qt_ui_core::QHostMessageBox::question("Title", text, EV_MB_YES | EV_MB_NO), answer);
    }
}

} // namespace
