// The jobs done from start to end in the real workbench without a mouse: every key goes to whatever has the
// focus.
#include "tests/e2e/workbench_fixture.h"

#include <QSpinBox>
#include <QTreeWidget>

namespace {

struct KeyboardTest : WorkbenchFixture {
    using Steps = std::vector<std::function<void()>>;

    static QWidget* window() {
        QWidget* const dialog = QApplication::activeModalWidget();
        return dialog ? dialog : QApplication::activeWindow();
    }
    static QWidget* focused() {
        QWidget* const focus = window()->focusWidget();
        if (!focus)
            throw std::logic_error("nothing has the focus");
        return focus;
    }
    static QString focusName() { return focused()->objectName(); }
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(focused(), Qt::Key(key), modifiers);
        QCoreApplication::processEvents();
    }
    // In place of what the field holds.
    static void typeAnew(const QString& text) {
        press(Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(focused(), text);
    }
    static void tabTo(const char* name) {
        for (int steps = 0; focusName() != QLatin1String(name) && steps < 60; ++steps)
            press(Qt::Key_Tab);
        ASSERT_EQ(focusName(), name) << "Tab does not get there";
    }
};

TEST_F(KeyboardTest, AnOptionIsSoughtChangedAndKept) {
    play({[this] { submit("QPREF"); },
          [] {
              tabTo("searchEdit");
              QTest::keyClicks(focused(), "*ConsoleFontSize*");
              auto* const tree = window()->findChild<QTreeWidget*>("tree");
              ASSERT_TRUE(waitUntil([tree] { return tree->topLevelItem(0)->child(0)->isHidden(); }))
                  << "the search does not begin by itself";
              press(Qt::Key_Down);
              for (int rows = 0; focusName() == "tree" && rows < 40; ++rows) {
                  press(Qt::Key_Down);
                  if (tree->itemWidget(tree->currentItem(), 0)->findChild<QSpinBox*>("ConsoleFontSize"))
                      press(Qt::Key_F2);
              }
              ASSERT_EQ(focusName(), "ConsoleFontSize");
              typeAnew("19");
              press(Qt::Key_Return);
              ASSERT_EQ(focusName(), "tree");
              tabTo("okButton");
              press(Qt::Key_Space);
          }});
    EXPECT_EQ(part<QWidget>("transcriptView")->font().pointSize(), 19);
}

} // namespace
