// The one place that knows which options of the profile the workbench itself follows.
#include "workbench/settings.h"

#include "host/text.h"
#include "host/typed_reads.h"
#include "standin/sysvars/read_variable.h"

#include <algorithm>

namespace workbench {

namespace {

int number(IParam* section, const char* key, int otherwise, int least, int greatest) {
    int value = otherwise;
    readValue(section, key, &value);
    return std::clamp(value, least, greatest);
}

bool flag(IParam* section, const char* key, bool otherwise) {
    int value = otherwise;
    readValue(section, key, &value);
    return value != 0;
}

// Stored as 0x00BBGGRR, with something else in the high byte.
QColor color(IParam* section, const char* key, const QColor& otherwise) {
    unsigned int value = 0;
    if (!readValue(section, key, &value))
        return otherwise;
    return {int(value & 255), int(value >> 8 & 255), int(value >> 16 & 255)};
}

int cursorSizePercent(int otherwise) {
    const OdResBufPtr value = standin::readVariable(L"CURSORSIZE");
    return value.isNull() ? otherwise : value->getInt16();
}

// The colour row and the flag carry the choice together: a high byte of 255 means contrast.
CursorSettings readCursor(IParam* section) {
    CursorSettings result;
    unsigned int stored = 0xff000000;
    readValue(section, "CursorColor", &stored);
    result.color = color(section, "CursorColor", result.color);
    if (flag(section, "Color3D", false))
        result.colouring = CursorSettings::Axes;
    else if (stored >> 24 != 0xff)
        result.colouring = CursorSettings::OneColor;
    result.lineWidth = number(section, "LineWidth", result.lineWidth, 1, 5);
    result.sizePercent = cursorSizePercent(result.sizePercent);
    return result;
}

} // namespace

Settings readSettings(IParam* profile) {
    const Ref<IParam> section = openChild(profile, "Workbench");
    IParam* node = section.get();
    Settings result;
    result.theme = number(node, "Theme", result.theme, 0, 2);
    CXStringW font;
    if (readValue(node, "ConsoleFont", &font))
        result.consoleFont = hostqt::qString(font);
    result.consoleFontSize = number(node, "ConsoleFontSize", result.consoleFontSize, 6, 48);
    if (flag(node, "ConsoleOwnColors", false)) {
        result.consoleText = color(node, "ConsoleTextColor", QColor(0xe0, 0xe0, 0xe0));
        result.consoleBack = color(node, "ConsoleBackColor", QColor(0x1e, 0x1e, 0x1e));
    }
    result.consoleLines = number(node, "ConsoleLines", result.consoleLines, 100, 100000);
    result.completeCommands = flag(node, "ConsoleComplete", result.completeCommands);
    result.historyLines = number(node, "ConsoleHistory", result.historyLines, 0, 1000);
    result.canvasBack = color(node, "CanvasBackColor", result.canvasBack);
    result.rubberBand = color(node, "RubberBandColor", result.rubberBand);
    result.showToolBar = flag(node, "ShowToolBar", result.showToolBar);
    result.showStatusBar = flag(node, "ShowStatusBar", result.showStatusBar);
    result.restoreWindow = flag(node, "RestoreWindow", result.restoreWindow);
    result.cursor = readCursor(openChild(profile, "Cursor").get());
    return result;
}

void writeSetting(IParam* profile, const char* key, int number) {
    if (const Ref<IParam> section = openChild(profile, "Workbench", 1))
        writeValue(section.get(), key, number);
}

} // namespace workbench
