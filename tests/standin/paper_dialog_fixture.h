// A paper store with two papers, and a user who works the dialog that is open.
#pragma once

#include "standin/params/std_papers.h"

#include "host/text.h"
#include "host/typed_reads.h"
#include "standin/dialogs/length_edit.h"
#include "standin/dialogs/paper_dialog.h"
#include "standin/dialogs/paper_sheet.h"
#include "tests/support/fixture_host.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

// What a user does with the dialog that is open.
class PaperUser {
public:
    explicit PaperUser(QWidget* window) : dialog(window) {}
    template <class W = QWidget> W* find(const char* name) {
        W* widget = dialog->findChild<W*>(QLatin1String(name));
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    void type(const char* name, const QString& text) {
        auto* edit = find<QLineEdit>(name);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    void click(const char* name) { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
    void choose(const char* units) {
        auto* combo = find<QComboBox>("unitsCombo");
        combo->setCurrentIndex(combo->findData(QLatin1String(units)));
    }
    QString text(const char* name) { return find<QLineEdit>(name)->text(); }
    QString error(const char* name) {
        auto* label = find<QLabel>(name);
        return label->isVisibleTo(dialog) ? label->text() : QString();
    }

private:
    QWidget* dialog;
};

// How many dialogs are awaited that have not come up. None may be at the end of a test.
inline int awaitedDialogs = 0;

// Runs `work` on the next modal dialog; the dialog is closed if the work has left it open.
inline void onNextDialog(const std::function<void(PaperUser& user)>& work) {
    ++awaitedDialogs;
    QTimer::singleShot(0, qApp, [work] {
        --awaitedDialogs;
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        PaperUser user(dialog);
        work(user);
        if (dialog->isVisible())
            dialog->close();
    });
}

class PaperDialogTest : public testing::Test {
protected:
    FixtureHost host;
    Ref<standin::StdPapers> papers = Ref<standin::StdPapers>::share(new standin::StdPapers);
    void TearDown() override {
        EXPECT_EQ(awaitedDialogs, 0) << "a dialog that the test waits for did not come up";
    }
    void SetUp() override {
        host.load(*papers,
                  "Paper00000001: {Name: !wide \"A4\", Size: !rsize [210, 297], Units: \"mm\",\n"
                  "  PortraitSize: !rsize [190, 277], PaperOriginPoint: !rpoint [12, 10],\n"
                  "  LandscapeSize: !rsize [270, 180], InternalFrame: 4, Tray: \"2\", Sub: {x: 1}}\n"
                  "Paper00000002: {Name: !wide \"Letter\", Size: !rsize [8.5, 11.0], Units: \"in\"}\n");
    }
    Ref<IParam> paper(const char* name) { return openChild(papers.get(), name); }
    bool add(const std::function<void(PaperUser& user)>& work) {
        onNextDialog(work);
        return papers->AddPaper(nullptr);
    }
    bool modify(const QString& row, const std::function<void(PaperUser& user)>& work) {
        onNextDialog(work);
        return papers->ModifyPaper(row.toStdWString().c_str(), nullptr);
    }
    tagRSIZE size(const char* section, const char* value) {
        tagRSIZE read{-1, -1};
        EXPECT_EQ(readValue(paper(section).get(), value, &read), 1) << value;
        return read;
    }
};
