// One list of what is being read serves all nested calls: they follow from one opening.
#include "sdk/db/xref_opening.h"

#include "sdk/db/database_impl.h"
#include "sdk/rx/wide_text.h"

#include <QFileInfo>
#include <algorithm>
#include <map>

namespace {

struct File {
    QString path;
    bool whole = true; // nothing that it refers to was left out
};

struct State {
    OdDbDatabase* host;
    std::vector<File> way; // from the host to what is being read
    std::map<QString, OdDbDatabasePtr> loaded;
    int filesRead = 0;
    int leftOut = 0;
};

std::unique_ptr<State>& state() {
    static std::unique_ptr<State> present;
    return present;
}

// Whoever is reading from `first` on lacks something that it would have if it were read on another way.
void noteGap(std::size_t first) {
    for (std::size_t i = first; i < state()->way.size(); ++i)
        state()->way[i].whole = false;
}

void tellWhatIsLeftOut() {
    if (state()->leftOut == 0)
        return;
    OdString text;
    text.format(
        L"%d references are not loaded: a drawing loads no more than %d files, and none beyond %d levels",
        state()->leftOut, OdDbXrefOpening::kMostFiles, OdDbXrefOpening::kDeepest);
    state()->host->impl().warnings.push_back(text);
}

} // namespace

OdDbXrefOpening::OdDbXrefOpening(OdDbDatabase& host) : isOutermost(!state()) {
    if (!isOutermost)
        return;
    state() = std::make_unique<State>();
    state()->host = &host;
    state()->way.push_back({QFileInfo(odQString(host.getFilename().wide())).canonicalFilePath()});
}

OdDbXrefOpening::~OdDbXrefOpening() {
    if (!isOutermost)
        return;
    tellWhatIsLeftOut();
    state().reset();
}

OdDbDatabasePtr OdDbXrefOpening::known(const QString& canonicalPath) const {
    const auto found = state()->loaded.find(canonicalPath);
    return found == state()->loaded.end() ? OdDbDatabasePtr() : found->second;
}

OdResult OdDbXrefOpening::enter(const QString& canonicalPath) {
    std::vector<File>& way = state()->way;
    const auto itself =
        std::find_if(way.begin(), way.end(), [&](const File& file) { return file.path == canonicalPath; });
    if (itself != way.end()) {
        noteGap(static_cast<std::size_t>(itself - way.begin()) + 1);
        return eSelfReference;
    }
    if (way.size() > kDeepest || state()->filesRead >= kMostFiles) {
        noteGap(0);
        ++state()->leftOut;
        return eInvalidInput;
    }
    ++state()->filesRead;
    way.push_back({canonicalPath});
    return eOk;
}

OdDbXrefOpening::OnTheWay::~OnTheWay() { state()->way.pop_back(); }

void OdDbXrefOpening::keep(const OdDbDatabasePtr& loaded) {
    const File& file = state()->way.back();
    if (file.whole)
        state()->loaded[file.path] = loaded;
}
