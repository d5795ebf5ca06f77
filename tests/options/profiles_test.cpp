// The profile list of the Options dialog and its button, in a host that has profiles. Without one they do
// nothing: see dialog_test.cpp.
#include "host/profiles.h"
#include "tests/options/options_fixture.h"
#include "tests/support/test_habits.h"

#include <QCheckBox>
#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QToolButton>

namespace {

// Notes what it is asked for. Every profile but the first keeps the grid on.
class NotedProfiles : public CKWUnknownImpl<IProfiles> {
public:
    explicit NotedProfiles(IParam& options) : store(options) {}
    std::vector<OdString> names() override {
        std::vector<OdString> all;
        for (const QString& name : list)
            all.push_back(hostqt::odString(name));
        return all;
    }
    OdString current() override { return hostqt::odString(chosen); }
    OdString select(const wchar_t* name) override {
        chosen = hostqt::qString(name);
        calls << "select " + chosen;
        writeValue(openChild(&store, "Drawing", 1).get(), "Grid", chosen == list.first() ? 0 : 1);
        return {};
    }
    OdString create(const wchar_t* name) override { return added("create ", name); }
    OdString copyCurrent(const wchar_t* name) override { return added("copy ", name); }
    OdString renameCurrent(const wchar_t* name) override {
        calls << "rename " + hostqt::qString(name);
        list[list.indexOf(chosen)] = hostqt::qString(name);
        chosen = hostqt::qString(name);
        return {};
    }
    OdString remove(const wchar_t* name) override {
        calls << "remove " + hostqt::qString(name);
        list.removeOne(hostqt::qString(name));
        return {};
    }

    QStringList list{"Mine", "Plans"}, calls;
    QString chosen = "Mine", refusal;

private:
    OdString added(const QString& call, const wchar_t* name) {
        calls << call + hostqt::qString(name);
        if (refusal.isEmpty())
            list << hostqt::qString(name);
        return hostqt::odString(refusal);
    }
    IParam& store;
};

class OptionProfiles : public OptionsFixture {
protected:
    void SetUp() override {
        node("Grid").type(L"Check").profile("Drawing", "Grid").set("Default", 0);
        profiles = Ref<NotedProfiles>::share(new NotedProfiles(host.profile()));
        habits.add(profiles);
        show();
    }
    QCheckBox& grid() { return *dialog->rowWidgets.value(item("Grid"))->findChild<QCheckBox*>(); }
    QComboBox& list() { return *dialog->profileCombo; }
    // With the keys, as its user does.
    void pressInList(Qt::Key key) {
        list().setFocus();
        QTest::keyClick(&list(), key);
    }
    void choose(const char* action) { dialog->findChild<QAction*>(action)->trigger(); }
    // Later, when the next window is open above the dialog.
    template <class Window> void inNext(std::function<void(Window&)> act) {
        auto* const timer = new QTimer(dialog.get());
        QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
            auto* const window = qobject_cast<Window*>(QApplication::activeModalWidget());
            if (!window)
                return;
            timer->stop();
            act(*window);
        });
        timer->start(5);
    }
    void answerNext(QMessageBox::StandardButton button) {
        inNext<QMessageBox>([this, button](QMessageBox& box) {
            asked = box.text();
            EXPECT_EQ(box.textFormat(), Qt::PlainText) << "a name may look like markup";
            box.button(button)->click();
        });
    }
    void nameNext(const QString& name) {
        inNext<QInputDialog>([this, name](QInputDialog& input) {
            proposed = input.textValue();
            input.setTextValue(name);
            input.accept();
        });
    }
    int storedGrid() {
        int value = -1;
        readValue(openChild(&host.profile(), "Drawing").get(), "Grid", &value);
        return value;
    }

    TestHabits habits{{DialogHabit::FocusStaysInOptions}};
    Ref<NotedProfiles> profiles;
    QString asked, proposed;
};

TEST_F(OptionProfiles, TheListShowsTheCurrentOneAndChangesToAnother) {
    EXPECT_EQ(list().currentText(), "Mine");
    EXPECT_EQ(list().count(), 2);
    EXPECT_FALSE(grid().isChecked());
    pressInList(Qt::Key_Down);
    EXPECT_EQ(profiles->calls, QStringList{"select Plans"});
    EXPECT_EQ(list().currentText(), "Plans");
    EXPECT_TRUE(grid().isChecked()) << "the rows show the other profile";
    EXPECT_TRUE(list().hasFocus()) << "the focus stays in the list";
    pressInList(Qt::Key_Up);
    EXPECT_FALSE(grid().isChecked());
}

TEST_F(OptionProfiles, OpenChangesAreAskedAbout) {
    grid().click();
    answerNext(QMessageBox::Cancel);
    pressInList(Qt::Key_Down);
    EXPECT_EQ(asked,
              "Options of the profile \"Mine\" are changed and not applied yet. Apply them before changing "
              "to \"Plans\"?");
    EXPECT_EQ(profiles->calls, QStringList());
    EXPECT_EQ(list().currentText(), "Mine");
    EXPECT_TRUE(grid().isChecked()) << "the change is still open";
    answerNext(QMessageBox::Apply);
    pressInList(Qt::Key_Down);
    EXPECT_EQ(profiles->calls, QStringList{"select Plans"});
    grid().click();
    answerNext(QMessageBox::Discard);
    pressInList(Qt::Key_Up);
    EXPECT_EQ(list().currentText(), "Mine");
}

TEST_F(OptionProfiles, OnlyWhatApplyIsAskedForIsWritten) {
    grid().click();
    answerNext(QMessageBox::Discard);
    pressInList(Qt::Key_Down);
    pressInList(Qt::Key_Up);
    EXPECT_EQ(storedGrid(), 0);
    grid().click();
    apply();
    EXPECT_EQ(storedGrid(), 1);
    asked.clear();
    pressInList(Qt::Key_Down);
    EXPECT_EQ(asked, "") << "applied changes are not asked about";
}

TEST_F(OptionProfiles, TheButtonMakesCopiesRenamesAndDeletes) {
    nameNext(" New one ");
    choose("newProfileAction");
    nameNext("Second");
    choose("copyProfileAction");
    EXPECT_EQ(proposed, "Copy of New one");
    nameNext("Third");
    choose("renameProfileAction");
    EXPECT_EQ(proposed, "Second");
    EXPECT_EQ(list().currentText(), "Third");
    host.answer(EV_MB_NO);
    choose("deleteProfileAction");
    EXPECT_EQ(profiles->calls.last(), "rename Third");
    host.answer(EV_MB_YES);
    choose("deleteProfileAction");
    EXPECT_EQ(profiles->calls, (QStringList{"create New one", "select New one", "copy Second",
                                            "select Second", "rename Third", "select Mine", "remove Third"}));
    EXPECT_EQ(list().currentText(), "Mine");
}

TEST_F(OptionProfiles, DeletingAsksAboutOpenChangesToo) {
    grid().click();
    host.answer(EV_MB_YES);
    answerNext(QMessageBox::Cancel);
    choose("deleteProfileAction");
    EXPECT_EQ(profiles->calls, QStringList()) << "the profile stays";
    EXPECT_TRUE(grid().isChecked()) << "the change is still open";
    host.answer(EV_MB_YES);
    answerNext(QMessageBox::Discard);
    choose("deleteProfileAction");
    EXPECT_EQ(profiles->calls, (QStringList{"select Plans", "remove Mine"}));
}

TEST_F(OptionProfiles, ARefusalIsShownAndNothingChanges) {
    profiles->refusal = "No.";
    nameNext("Plans");
    choose("newProfileAction");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "No.");
    EXPECT_EQ(profiles->calls, QStringList{"create Plans"});
    EXPECT_EQ(list().currentText(), "Mine");
}

TEST_F(OptionProfiles, ASearchEndsWithItsProfile) {
    auto* const search = dialog->findChild<QLineEdit*>("searchEdit");
    search->setFocus();
    QTest::keyClicks(search, "Grid");
    QTest::keyClick(search, Qt::Key_Return);
    pressInList(Qt::Key_Down);
    EXPECT_TRUE(search->text().isEmpty() || search->text() == "*") << search->text().toStdString();
    EXPECT_FALSE(item("Grid")->isHidden());
}

} // namespace
