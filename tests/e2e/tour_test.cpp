// The first page of the user guide, played as a newcomer reads it: what it sets as code is typed, what is
// bold is clicked.
#include "sdk/db/block_reference.h"
#include "sdk/db/summary_info.h"
#include "standin/themes/style_manager.h"
#include "tests/e2e/drawing_fixture.h"
#include "tests/support/text_file.h"
#include "workbench/script/window_actions.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

namespace {

struct Action {
    QString text;
    bool isTyped;
};

// Those of one numbered entry each.
std::vector<std::vector<Action>> stepsOfTour() {
    const QString guide = QString::fromUtf8(readText(SHIPPED_DOCS_DIR "/user-guide.md"));
    const QString page = guide.section("\n## ", 1, 1);
    EXPECT_TRUE(page.startsWith("A tour of five minutes")) << "it is the first page of the guide";
    std::vector<std::vector<Action>> steps;
    for (const QString& entry : page.split(QRegularExpression("\\n\\d+\\. ")).mid(1)) {
        static const QRegularExpression marked("`([^`]+)`|\\*\\*([^*]+)\\*\\*");
        steps.emplace_back();
        for (auto found = marked.globalMatch(entry); found.hasNext();) {
            const auto match = found.next();
            const bool isTyped = !match.captured(1).isEmpty();
            steps.back().push_back({match.captured(isTyped ? 1 : 2), isTyped});
        }
    }
    return steps;
}

QWidget* fieldNamed(const QString& name) {
    QWidget& window = *workbench::activeWindowForScript();
    for (const QLabel* label : window.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy() && label->text().remove('&').remove(':') == name)
            return label->buddy();
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && widget->accessibleName() == name)
            return widget;
    return nullptr;
}

struct TourTest : WorkbenchFixture {
    void type(const QString& text) {
        const QWidget* const dialog = QApplication::activeModalWidget();
        if (!dialog)
            return submit(text == "Enter" ? QString() : text);
        QWidget* const focus = dialog->focusWidget();
        ASSERT_NE(focus, nullptr) << text.toStdString();
        if (text != "Enter")
            return QTest::keyClicks(focus, text);
        QTimer::singleShot(0, focus, [focus] { QTest::keyClick(focus, Qt::Key_Return); });
    }
    // What opens from there has a loop of its own.
    void click(const QString& text) {
        const auto action = [&] { return workbench::windowAction("@click " + text); };
        EXPECT_TRUE(waitUntil([&] { return action() || fieldNamed(text); }))
            << "nothing to click is called " << text.toStdString();
        if (const auto act = action())
            QTimer::singleShot(0, bench.get(), act);
        else if (QWidget* const field = fieldNamed(text))
            field->setFocus();
    }
    void follow(const std::vector<Action>& actions) {
        std::vector<std::function<void()>> steps;
        for (const Action& action : actions)
            steps.emplace_back([this, action] { action.isTyped ? type(action.text) : click(action.text); });
        play(std::move(steps));
    }
    static OdDbDatabase& drawing() { return *HostDocManager()->currentDocument()->database(); }
    static QString title() {
        const OdDbDatabasePtr database = HostDocManager()->currentDocument()->database();
        return hostqt::qString(oddbGetSummaryInfo(database.get())->getTitle());
    }
    static OdDbObjectIdArray entities() {
        return odrxCast<OdDbBlockTableRecord>(drawing().getModelSpaceId().safeOpenObject())->entityIds();
    }
    static OdDbObjectIdArray membersOf(const OdString& name) {
        const auto groups = odrxCast<OdDbDictionary>(drawing().getGroupDictionaryId(true).safeOpenObject());
        OdDbObjectIdArray members;
        odrxCast<OdDbGroup>(groups->getAt(name).safeOpenObject())->allEntityIds(members);
        return members;
    }
    static int theme() { return static_cast<standin::StyleManager*>(hostGetQtStyleManager())->themeNumber(); }
};

TEST_F(TourTest, DoesWhatItSays) {
    const auto steps = stepsOfTour();
    ASSERT_EQ(steps.size(), 9u);
    follow(steps[0]);
    ASSERT_TRUE(bench->window()->windowTitle().contains("house"));
    const OdDbObjectIdArray before = entities();
    const OdDbObjectId newest = before.back();
    workbench::Canvas& canvas = bench->window()->drawingArea();
    const double whole = canvas.view()->scale();
    follow({steps[1].begin(), steps[1].begin() + 3});
    EXPECT_GT(canvas.view()->scale(), whole);
    follow({steps[1].begin() + 3, steps[1].end()});
    EXPECT_NEAR(canvas.view()->scale(), whole, whole * 0.1);
    follow(steps[2]);
    EXPECT_EQ(membersOf(L"TOUR"), OdDbObjectIdArray{newest});
    follow(steps[3]);
    EXPECT_TRUE(lastLine().contains("in group") && lastLine().contains("TOUR")) << lastLine().toStdString();
    follow(steps[4]);
    ASSERT_EQ(entities().size(), before.size() + 1);
    const auto reference = odrxCast<OdDbBlockReference>(entities().back().safeOpenObject());
    EXPECT_EQ(reference->position(), OdGePoint3d(9000, 1000, 0));
    follow(steps[5]);
    EXPECT_EQ(title(), "My house");
    follow({steps[6].begin(), steps[6].end() - 2});
    EXPECT_EQ(theme(), 1) << "light";
    follow({steps[6].end() - 2, steps[6].end()});
    EXPECT_EQ(theme(), 0) << "dark";
    follow({steps[7].begin(), steps[7].begin() + 1});
    EXPECT_EQ(title(), "") << "the last change was the title";
    follow({steps[7].begin() + 1, steps[7].end()});
    EXPECT_EQ(title(), "My house");
    follow(steps[8]);
    EXPECT_FALSE(bench->window()->windowTitle().contains("house"));
}

} // namespace
