// Writes and reads the place, and leaves a window alone whose place is not known.
#include "workbench/window/window_place.h"

#include "host/app.h"
#include "host/typed_reads.h"

#include <QMainWindow>

namespace workbench {

namespace {

const char* const sectionName = "Workbench";
const char* const geometryKey = "WindowGeometry";
const char* const stateKey = "WindowState";

void store(IParam* section, const char* key, const QByteArray& bytes) {
    writeValue(section, key, bytes.toBase64().constData());
}

QByteArray stored(IParam* section, const char* key) {
    CXString text;
    readValue(section, key, &text);
    return QByteArray::fromBase64(text.c_str());
}

} // namespace

void saveWindowPlace(const QMainWindow& window) {
    const Ref<IParam> section = openChild(appService<IProfile>().get(), sectionName, 1);
    if (!section)
        return;
    store(section.get(), geometryKey, window.saveGeometry());
    store(section.get(), stateKey, window.saveState());
}

void restoreWindowPlace(QMainWindow& window) {
    const Ref<IParam> section = openChild(appService<IProfile>().get(), sectionName);
    window.restoreGeometry(stored(section.get(), geometryKey));
    window.restoreState(stored(section.get(), stateKey));
}

std::vector<std::string> windowPlacePaths() {
    const std::string section(sectionName);
    return {section + '/' + geometryKey, section + '/' + stateKey, "Dialogs"};
}

} // namespace workbench
