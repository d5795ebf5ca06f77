#include "workbench/offscreen.h"

#include <QApplication>
#include <QFont>
#include <cstdio>
#include <cstring>

namespace workbench {

namespace {

bool isOffscreen() { return QGuiApplication::platformName() == QLatin1String("offscreen"); }

// Qt says at each window what it can't do off screen: size hints, raising, taking the keyboard. Nobody who
// reads a transcript can do anything about that.
void printMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.contains(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

} // namespace

void chooseDisplay(int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--headless") == 0 && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
}

void actWithoutDesktop() {
    if (!isOffscreen())
        return;
    qInstallMessageHandler(printMessage);
    QFont font = QApplication::font();
    font.setPointSize(9);
    QApplication::setFont(font);
}

} // namespace workbench
