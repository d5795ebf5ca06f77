// The main window: menus, theme, drawings, and the settings that it follows.
#include "tests/e2e/workbench_fixture.h"

#include "host/style.h"
#include "standin/documents/document_manager.h"
#include "standin/params/profile_file.h"
#include "workbench/canvas/canvas.h"

#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QStatusBar>
#include <QToolBar>

namespace {

struct WindowTest : WorkbenchFixture {
    void setOption(const char* key, const CKWVariant& value, const char* section = "Workbench") {
        openChild(appService<IProfile>().get(), section, 1)->setValue(key, &value);
        enter({"DRAWINGS"}); // what was set takes effect when a command ends
    }
    // The colours of the crosshair on the canvas, along and across.
    std::pair<QColor, QColor> crosshair() {
        auto* canvas = part<QWidget>("canvas");
        const QPoint at(100, 80);
        QMouseEvent move(QEvent::MouseMove, at, canvas->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(canvas, &move);
        const QImage image = canvas->grab().toImage();
        return {image.pixelColor(at + QPoint(6, 0)), image.pixelColor(at + QPoint(0, 6))};
    }
    static CKWVariant number(int value) { return CKWVariant(value, kVtInt); }
};

TEST_F(WindowTest, OpensOneEmptyDrawing) {
    EXPECT_EQ(bench->window()->windowTitle(), "Drawing1 - Workbench");
    ASSERT_NE(HostDocManager()->currentDocument(), nullptr);
    EXPECT_STREQ(HostDocManager()->currentDocument()->fileName(), L"");
}

TEST_F(WindowTest, DrawingsAreOpenedAndClosed) {
    action("New drawing")->trigger();
    EXPECT_TRUE(waitUntil([&] { return bench->window()->windowTitle() == "Drawing2 - Workbench"; }));
    enter({"CLOSE"});
    EXPECT_EQ(bench->window()->windowTitle(), "Drawing1 - Workbench");
    enter({"CLOSE"});
    EXPECT_EQ(bench->window()->windowTitle(), "Workbench");
    EXPECT_EQ(HostDocManager()->currentDocument(), nullptr);
    enter({"CLOSE"});
    EXPECT_EQ(lastLine(), "No drawing is open.");
}

TEST_F(WindowTest, MenuTakesThePlaceOfAnOpenPrompt) {
    play({[this] { submit("SETVAR"); }, [this] { action("New drawing")->trigger(); }});
    EXPECT_TRUE(transcript().contains("Enter variable name or [?]: *Cancel*"));
    EXPECT_EQ(bench->window()->windowTitle(), "Drawing2 - Workbench");
}

TEST_F(WindowTest, ThemeOfTheMenuIsKept) {
    EXPECT_EQ(hostGetQtStyleManager()->themeNumber(), 0);
    EXPECT_TRUE(action("Dark")->isChecked());
    action("Light")->trigger();
    EXPECT_EQ(hostGetQtStyleManager()->themeNumber(), 1);
    restart();
    EXPECT_EQ(hostGetQtStyleManager()->themeNumber(), 1);
    EXPECT_TRUE(action("Light")->isChecked());
}

TEST_F(WindowTest, ThemeSetInTheProfileTakesEffect) {
    QSignalSpy clicks(hostGetQtStyleManager()->themeWatcher(),
                      &hostui::qt::style::hostQtThemeChangeWatcher::clicked);
    setOption("Theme", number(2));
    EXPECT_EQ(hostGetQtStyleManager()->themeNumber(), 2);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(WindowTest, ConsoleFollowsItsFontAndColours) {
    setOption("ConsoleFontSize", number(17));
    setOption("ConsoleBackColor", number(0x332211)); // blue, green, red
    auto* view = part<QPlainTextEdit>("transcriptView");
    EXPECT_EQ(view->font().pointSize(), 17);
    EXPECT_NE(view->palette().color(QPalette::Base), QColor(0x11, 0x22, 0x33));
    setOption("ConsoleOwnColors", number(1));
    EXPECT_EQ(view->palette().color(QPalette::Base), QColor(0x11, 0x22, 0x33));
}

TEST_F(WindowTest, CanvasFollowsItsColour) {
    setOption("CanvasBackColor", number(0x0000ff));
    EXPECT_EQ(part<QWidget>("canvas")->grab().toImage().pixelColor(2, 2), QColor(Qt::red));
}

TEST_F(WindowTest, CrosshairFollowsTheChoiceOfItsColour) {
    setOption("CursorColor", number(int(0xff000000u)), "Cursor");
    const auto contrast = crosshair();
    EXPECT_EQ(contrast.first, contrast.second);
    EXPECT_NE(contrast.first, part<QWidget>("canvas")->grab().toImage().pixelColor(2, 2));
    setOption("CursorColor", number(0x0000ff), "Cursor"); // blue, green, red
    EXPECT_EQ(crosshair(), std::make_pair(QColor(Qt::red), QColor(Qt::red)));
    setOption("Color3D", number(1), "Cursor");
    EXPECT_NE(crosshair().first, crosshair().second) << "each axis has its own";
}

TEST_F(WindowTest, ABrokenProfileIsToldOnceAndKeptBesideWhenItIsReplaced) {
    bench.reset();
    QFile profile(root.filePath("profile.yaml"));
    ASSERT_TRUE(profile.open(QFile::WriteOnly | QFile::Truncate));
    profile.write("Workbench:\n  Theme: [1\nSysVars: {}\n");
    profile.close();
    start();
    const QStringList told = transcript().filter("profile.yaml:");
    ASSERT_EQ(told.size(), 1) << transcript().join('\n').toStdString();
    EXPECT_TRUE(part<QPlainTextEdit>("transcriptView")->toPlainText().contains(told.first()));
    EXPECT_EQ(hostGetQtStyleManager()->themeNumber(), 0) << "the shipped settings serve";
    action("Light")->trigger();
    bench.reset();
    QFile kept(root.filePath("profile.yaml.broken-1"));
    ASSERT_TRUE(kept.open(QFile::ReadOnly));
    EXPECT_EQ(kept.readAll(), "Workbench:\n  Theme: [1\nSysVars: {}\n");
}

TEST_F(WindowTest, ToolBarCanBeHidden) {
    EXPECT_TRUE(part<QToolBar>("toolBar")->isVisible());
    setOption("ShowToolBar", number(0));
    EXPECT_FALSE(part<QToolBar>("toolBar")->isVisible());
}

TEST_F(WindowTest, WhatADialogAppliesShowsWhileItIsOpen) {
    play({[this] { submit("QPREF"); },
          [this] {
              const Ref<IParam> section = openChild(appService<IProfile>().get(), "Workbench", 1);
              const CKWVariant off(0, kVtInt), size(20, kVtInt), red(0x0000ff, kVtInt);
              section->setValue("ShowStatusBar", &off);
              section->setValue("ConsoleFontSize", &size);
              section->setValue("CanvasBackColor", &red);
              EXPECT_TRUE(waitUntil([this] { return !bench->window()->statusBar()->isVisible(); }));
              EXPECT_EQ(part<QPlainTextEdit>("transcriptView")->font().pointSize(), 20);
              EXPECT_EQ(bench->window()->drawingArea().grab().toImage().pixelColor(2, 2), QColor(Qt::red));
          }});
}

TEST_F(WindowTest, ToolBarHasIconsOfTheModule) {
    for (QAction* button : part<QToolBar>("toolBar")->actions())
        EXPECT_FALSE(button->icon().isNull()) << button->text().toStdString();
}

TEST_F(WindowTest, ApplicationVariableIsKeptForTheNextRun) {
    enter({"GRIPSIZE", "11"});
    restart();
    enter({"GRIPSIZE"});
    EXPECT_EQ(lastLine(), "Enter new value for GRIPSIZE <11>: *Cancel*");
}

TEST_F(WindowTest, ClosingTheWindowCancelsThePromptFirst) {
    play({[this] { submit("SETVAR"); }, [this] { bench->window()->close(); }});
    EXPECT_TRUE(waitUntil([&] { return !bench->window()->isVisible(); }));
    EXPECT_EQ(lastLine(), "Enter variable name or [?]: *Cancel*");
}

TEST_F(WindowTest, OptionsCommandOpensItsDialog) {
    QString shown;
    play({[this] { submit("QPREF"); },
          [&shown] {
              shown = QString::fromLatin1(QApplication::activeModalWidget()->metaObject()->className());
          }});
    EXPECT_EQ(shown, "Preferences");
    EXPECT_EQ(lastLine(), "Command: QPREF");
}

TEST_F(WindowTest, MissingModuleIsTold) {
    bench.reset();
    workbench::Launch launch = launchIn(root.path());
    launch.moduleFile = root.filePath("missing.so");
    bench = std::make_unique<workbench::Workbench>(launch);
    EXPECT_TRUE(lastLine().startsWith("The module " + launch.moduleFile + " can't be loaded: "));
}

} // namespace
