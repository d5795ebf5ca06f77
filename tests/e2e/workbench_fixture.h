// The real workbench in a folder of its own, driven through its window as a user does.
#pragma once

#include "host/app.h"
#include "host/typed_reads.h"
#include "tests/support/poll.h"
#include "workbench/window/console_line.h"
#include "workbench/window/console_panel.h"
#include "workbench/window/main_window.h"
#include "workbench/workbench.h"

#include <QAction>
#include <QDialog>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <gtest/gtest.h>

class WorkbenchFixture : public testing::Test {
protected:
    WorkbenchFixture() { start(); }

    static workbench::Launch launchIn(const QString& rootDir) {
        workbench::Launch launch;
        launch.rootDir = rootDir;
        launch.dataDir = QStringLiteral(SHIPPED_DATA_DIR);
        launch.moduleFile = QStringLiteral(MODULE_FILE);
        launch.guideFile = workbench::defaultLaunch().guideFile;
        return launch;
    }
    void start() {
        bench = std::make_unique<workbench::Workbench>(launchIn(root.path()));
        bench->start();
        EXPECT_TRUE(waitUntil([this] { return QApplication::activeWindow() == bench->window(); }));
    }
    void restart() {
        bench.reset();
        start();
    }
    workbench::ConsoleLine& line() { return *bench->window()->console()->line(); }
    void type(const QString& text) { QTest::keyClicks(&line(), text); }
    void press(Qt::Key key) { QTest::keyClick(&line(), key); }
    void submit(const QString& text) {
        type(text);
        press(Qt::Key_Return);
    }
    // One step after the other, each when the console or a dialog waits for the user; a command with a prompt
    // runs in a loop of its own. What is open after the last step is cancelled.
    void play(std::vector<std::function<void()>> steps) {
        std::size_t next = 0;
        bool done = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, bench.get(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            const bool isProgress = qobject_cast<QProgressDialog*>(dialog) != nullptr; // goes by itself
            const bool isComing = dialog && QApplication::activeWindow() != dialog;
            if (isComing)
                QApplication::setActiveWindow(dialog); // which is the window manager's to do
            if (isProgress || isComing || (!dialog && !bench->commands().isReady()))
                return;
            if (next < steps.size())
                steps[next++]();
            else if (dialog)
                dialog->reject();
            else if (bench->commands().isRunning())
                bench->console().escape();
            else
                done = true;
        });
        timer.start(10);
        EXPECT_TRUE(waitUntil([&] { return done; }, 20000));
    }
    // Lines that are answered one after the other.
    void enter(std::initializer_list<const char*> lines) {
        std::vector<std::function<void()>> steps;
        for (const char* text : lines)
            steps.push_back([this, text] { submit(QString::fromUtf8(text)); });
        play(std::move(steps));
    }
    QStringList transcript() { return bench->console().transcript(); }
    QString lastLine() { return transcript().isEmpty() ? QString() : transcript().last(); }
    template <class T> T* part(const char* name) {
        return bench->window()->findChild<T*>(QString::fromLatin1(name));
    }
    QAction* action(const QString& text) {
        for (QAction* found : bench->window()->findChildren<QAction*>())
            if (found->text().remove('&') == text)
                return found;
        return nullptr;
    }

    QTemporaryDir root;
    std::unique_ptr<workbench::Workbench> bench;
};
