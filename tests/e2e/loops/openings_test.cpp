// A dialog that is opened and cancelled again and again takes no more memory each time.
#include "tests/e2e/drawing_fixture.h"
#include "tests/support/memory_bound.h"
#include "workbench/script/window_actions.h"

#include <QFileDialog>
#include <malloc.h>

namespace {

struct Opened {
    const char* command;
    const char* className;
    int openings;
    // Bytes that an opening may keep: the lines of the console, and of the Options what Qt remembers of style
    // sheets for each line edit and does not forget with it.
    long bytes;
};

std::ostream& operator<<(std::ostream& stream, const Opened& opened) { return stream << opened.command; }

struct Openings : DrawingFixture, testing::WithParamInterface<Opened> {
    static long inUse() {
        const auto now = mallinfo2();
        return static_cast<long>(now.uordblks + now.hblkhd);
    }
    void openAndCancel() {
        bool wasOpen = false;
        play({[this] { submit(GetParam().command); },
              [&] {
                  const QWidget* open = QApplication::activeModalWidget();
                  wasOpen = open && QString(open->metaObject()->className()).endsWith(GetParam().className);
                  workbench::cancelTopmost();
              }});
        EXPECT_TRUE(wasOpen) << GetParam().command;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
};

TEST_P(Openings, KeepNothing) {
    if (!MemoryBound::isPossible)
        GTEST_SKIP() << "the sanitizer has a store of its own and looks for losses itself";
    submit("FILEDIA");
    submit("1");
    for (int i = 0; i < 10; ++i)
        openAndCancel();
    const long before = inUse();
    for (int i = 0; i < GetParam().openings; ++i)
        openAndCancel();
    const long kept = (inUse() - before) / GetParam().openings;
    EXPECT_LE(kept, GetParam().bytes) << "bytes are kept by each opening";
    RecordProperty("bytesKept", static_cast<int>(kept));
}

INSTANTIATE_TEST_SUITE_P(Dialogs, Openings,
                         testing::Values(Opened{"QPREF", "Preferences", 20, 22000},
                                         Opened{"DWGPROPS", "dwgProps", 40, 4500},
                                         Opened{"GROUP", "CGroupDlg", 40, 3000},
                                         Opened{"XATTACH", "QFileDialog", 40, 5000}),
                         [](const auto& tested) { return std::string(tested.param.command); });

} // namespace
