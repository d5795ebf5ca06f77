// How a user comes to each dialog, for tests that hold something against all of them.
#pragma once

#include "tests/e2e/drawing_fixture.h"
#include "workbench/script/window_actions.h"

#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <ostream>

struct DialogWay {
    const char* title;     // of the test
    const char* className; // how it ends, without a namespace
    // Lines of a script that open it, the first one names the command. "OTHER" stands for a drawing that is
    // not open.
    std::vector<const char*> way;
};

inline std::ostream& operator<<(std::ostream& stream, const DialogWay& dialog) {
    return stream << dialog.title;
}

inline const std::vector<DialogWay>& dialogWays() {
    static const std::vector<DialogWay> ways{
        {"Options", "Preferences", {"QPREF"}},
        {"DrawingProperties", "dwgProps", {"DWGPROPS"}},
        {"Groups", "CGroupDlg", {"GROUP"}},
        {"Files", "QFileDialog", {"XATTACH"}},
        {"Attach", "hostInsertExternalReferenceDialog", {"XATTACH", "OTHER"}},
        {"Order", "CGroupReorderDlg", {"GROUP", "@click reorderButton"}},
        {"Highlight", "CObjHighlightDlg", {"GROUP", "@click reorderButton", "@click highlightButton"}},
        {"Members", "CGroupMemberDlg", {"GROUP", "@click findNameButton", "50,0"}},
        {"AddProperty", "AddDlg", {"DWGPROPS", "@click Custom", "@click addButton"}},
        {"Folder", "DirsDialog", {"QPREF", "@select Support files", "@click addButton"}},
        {"RasterFormat", "QDialog", {"QPREF", "@select JPEG picture", "@click addButton"}},
        {"Colour",
         "ColorDialog",
         {"QPREF", "@expand Display", "@expand Colours", "@click ColorCanvas", "@click ColorCanvas"}},
        {"Paper", "PaperDialog", {"QPREF", "@select A6 (105.00 x 148.00 mm)", "@click addButton"}},
        {"Question", "QMessageBox", {"QPREF", "@select A6 (105.00 x 148.00 mm)", "@click deleteButton"}},
        {"ProfileName", "QInputDialog", {"QPREF", "@click newProfileAction"}},
        {"Versions", "VersionsDialog", {"VERSIONS"}},
        {"VersionReason", "QInputDialog", {"SAVE"}}, // with FILEHISTORYREASON set
        {"UnsavedChanges", "QMessageBox", {"CLOSE"}}};
    return ways;
}

class DialogWays : public DrawingFixture {
protected:
    DialogWays() {
        QFile::copy(path, other);
        prepare();
    }
    void restartWithDrawing() {
        restart();
        static_cast<standin::DocumentManager*>(HostDocManager())->openFile(path);
        prepare();
    }
    void prepare() {
        enter({"FILEDIA", "1", "-GROUP", "Create", "OTHER", "", "0,40", ""});
        writeValue(openChild(appService<IProfile>().get(), "FileHistory", 1).get(), "FILEHISTORYREASON", 1);
    }
    // The topmost dialog if it is this one, else null.
    static QWidget* dialog(const DialogWay& asked) {
        QWidget* const open = QApplication::activeModalWidget();
        return open && QString(open->metaObject()->className()).endsWith(asked.className) ? open : nullptr;
    }
    // The drawing has a change that is not saved then.
    void open(const DialogWay& asked, const std::function<void()>& whenOpen) {
        document().database()->startUndoRecord();
        odrxCast<OdDbEntity>(entities()[2].safeOpenObject(OdDb::kForWrite))->setColorIndex(++changes % 7 + 1);
        std::vector<std::function<void()>> steps;
        for (const char* line : asked.way)
            steps.emplace_back([this, text = QString(line).replace("OTHER", other)] { give(text); });
        steps.push_back(whenOpen);
        for (std::size_t i = 0; i < asked.way.size(); ++i) // what else is open
            steps.emplace_back([] { workbench::cancelTopmost(); });
        play(std::move(steps));
    }
    // What is done to a window comes from its own loop, so that a dialog that opens then has a loop within
    // it.
    void give(const QString& line) {
        if (auto* const files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            files->findChild<QLineEdit*>("fileNameEdit")->setText(line);
            QMetaObject::invokeMethod(files, "accept", Qt::QueuedConnection);
            return;
        }
        if (!line.startsWith('@'))
            return submit(line);
        std::function<void()> act = workbench::windowAction(line);
        if (!act)
            act = workbench::windowAction(inShownWords(line));
        ASSERT_TRUE(act) << line.toStdString() << ": " << shown();
        QTimer::singleShot(0, bench.get(), act);
    }
    // The line for a window whose texts are others.
    virtual QString inShownWords(const QString& line) const { return line; }
    static std::string shown() {
        const QWidget* const open = QApplication::activeModalWidget();
        return open ? open->metaObject()->className() + std::string(" is open") : "no dialog is open";
    }
    int changes = 0;
    const QString other = root.filePath("other.dxf");
};
