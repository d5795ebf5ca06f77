// What the user has set for the workbench itself, read from the profile.
#pragma once

#include "host/param.h"

#include <QColor>
#include <QString>
#include <tuple>

namespace workbench {

struct CursorSettings {
    enum Colouring { Contrast = 0, OneColor = 1, Axes = 2 };
    int colouring = Contrast;
    QColor color = Qt::white;
    int lineWidth = 1;
    int sizePercent = 5; // of the drawing area
    auto values() const { return std::tie(colouring, color, lineWidth, sizePercent); }
};

struct Settings {
    int theme = 0;
    QString consoleFont = QStringLiteral("DejaVu Sans Mono");
    int consoleFontSize = 10;
    QColor consoleText, consoleBack; // invalid: those of the theme
    int consoleLines = 2000;
    bool completeCommands = true;
    int historyLines = 100;
    QColor canvasBack = QColor(0x21, 0x28, 0x30);
    QColor rubberBand = QColor(0xff, 0xc8, 0x00);
    bool showToolBar = true, showStatusBar = true;
    bool restoreWindow = true;
    CursorSettings cursor;

    auto values() const {
        return std::tuple_cat(std::tie(theme, consoleFont, consoleFontSize, consoleText, consoleBack,
                                       consoleLines, completeCommands, historyLines, canvasBack, rubberBand,
                                       showToolBar, showStatusBar, restoreWindow),
                              cursor.values());
    }
    bool operator==(const Settings& other) const { return values() == other.values(); }
};

// Sections "Workbench" and "Cursor"; what is missing or unusable has its default. A null profile is empty.
Settings readSettings(IParam* profile);
void writeSetting(IParam* profile, const char* key, int value); // of the section "Workbench"

} // namespace workbench
