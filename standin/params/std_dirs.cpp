// Reading and replacing lists of standard directories.
#include "standin/params/std_dirs.h"

#include "host/text.h"
#include "host/typed_reads.h"
#include "standin/params/dir_entry.h"

#include <QDir>
#include <algorithm>
#include <map>

namespace standin {

namespace {

const QLatin1String escape("$"), escaped("$$");
const char pathValue[] = "path", keyValue[] = "key", editableValue[] = "editable";

Ref<IParam> copyOf(IParam* node) {
    auto copy = Ref<IParam>::take(new_MemParam());
    Param_CopyTo(node, copy.get());
    return copy;
}

// The entries of a section by their paths, so that a new list finds what it keeps.
using EntriesByPath = std::multimap<QString, Ref<IParam>>;

// Takes the entry of that path out; null when there is none.
Ref<IParam> takeEntry(EntriesByPath& entries, const QString& path) {
    const auto found = entries.find(path);
    if (found == entries.end())
        return nullptr;
    const Ref<IParam> entry = found->second;
    entries.erase(found);
    return entry;
}

// Whose an entry is, and whether the user may change it.
struct Origin {
    bool operator==(const Origin& other) const { return key == other.key && editable == other.editable; }
    std::string key;
    int editable;
};

Origin originOf(IParam* entry) {
    CXString key(".Local");
    int editable = 1;
    readValue(entry, keyValue, &key);
    readValue(entry, editableValue, &editable);
    return {key.c_str(), editable};
}

// False, with the list as it was, when `wanted` isn't in it.
bool takeOut(std::vector<Origin>& origins, const Origin& wanted) {
    const auto found = std::find(origins.begin(), origins.end(), wanted);
    if (found == origins.end())
        return false;
    origins.erase(found);
    return true;
}

// The element's own, or else the first that is left.
Origin takeOrigin(std::vector<Origin>& left, IStdDirInfo& element) {
    Origin origin{element.GetKey(), element.GetEditable()};
    if (!takeOut(left, origin)) {
        origin = left.front();
        left.erase(left.begin());
    }
    return origin;
}

Ref<IParam> newEntry(IStdDirInfo& element, const Origin& origin, const PathWords& words) {
    auto entry = Ref<IParam>::take(new_MemParam());
    const QString path = words.contracted(hostqt::qString(element.GetPath()));
    writeValue(entry.get(), pathValue, hostqt::cxStringW(path));
    writeValue(entry.get(), keyValue, origin.key.c_str());
    writeValue(entry.get(), editableValue, origin.editable);
    return entry;
}

// A path that the section had keeps its entry as it is. A move in the Options dialog exchanges the paths of
// two elements and leaves their origins where they are, so a new path gets its element's origin unless that
// has gone to the path that it was exchanged with, and then one that is left over.
std::vector<Ref<IParam>> takeEntries(const std::vector<Ref<IStdDirInfo>>& elements, EntriesByPath& before,
                                     const PathWords& words) {
    std::vector<Ref<IParam>> entries;
    std::vector<Origin> left;
    for (const auto& element : elements) {
        left.push_back({element->GetKey(), element->GetEditable()});
        entries.push_back(takeEntry(before, hostqt::qString(element->GetPath())));
    }
    for (const Ref<IParam>& kept : entries)
        if (kept)
            takeOut(left, originOf(kept.get()));
    for (std::size_t i = 0; i < elements.size(); ++i)
        if (!entries[i])
            entries[i] = newEntry(*elements[i], takeOrigin(left, *elements[i]), words);
    return entries;
}

} // namespace

PathWords::PathWords(const QString& dataDir, const QString& rootDir) {
    for (const auto& [word, path] :
         {std::pair(QStringLiteral("${data}"), dataDir), std::pair(QStringLiteral("${root}"), rootDir)})
        if (!path.isEmpty())
            words.push_back({word, QDir::cleanPath(path)});
    std::sort(words.begin(), words.end(),
              [](const Word& a, const Word& b) { return a.path.size() > b.path.size(); });
}

QString PathWords::expanded(const QString& path) const {
    if (path.startsWith(escaped))
        return path.mid(1);
    for (const Word& word : words)
        if (path == word.word || path.startsWith(word.word + QLatin1Char('/')))
            return word.path + path.mid(word.word.size());
    return path;
}

QString PathWords::contracted(const QString& path) const {
    for (const Word& word : words)
        if (path == word.path || path.startsWith(word.path + QLatin1Char('/')))
            return word.word + path.mid(word.path.size());
    return path.startsWith(escape) ? escape + path : path; // else it would be taken for a word
}

Ref<IParam> StdDirs::listSection(const char* key, int create) {
    const auto lists = openChild(tree.get(), "Lists", create);
    return openChild(lists.get(), key, create);
}

QString StdDirs::pathOf(IParam* entry) const {
    CXStringW path;
    readValue(entry, pathValue, &path);
    return words.expanded(hostqt::qString(path));
}

bool StdDirs::GetDir(const char* key, tagKWVARIANT* out, int) {
    CXStringW path;
    if (readValue(openChild(tree.get(), "Dirs").get(), key, &path)) {
        path = hostqt::cxStringW(words.expanded(hostqt::qString(path)));
    } else {
        const auto elements = elementsOf(readList(listSection(key, 0).get()));
        if (elements.empty())
            return false;
        path = elements.front()->GetPath();
    }
    KWVariantCopy(out, CKWVariant(path));
    return true;
}

Ref<StdDirList> StdDirs::readList(IParam* section) const {
    auto list = Ref<StdDirList>::share(new StdDirList);
    for (const std::string& name : childNames(section)) {
        const auto entry = openChild(section, name.c_str());
        const QString path = pathOf(entry.get());
        const Origin origin = originOf(entry.get());
        if (!path.isEmpty())
            list->append(newDirEntry(origin.key.c_str(), path.toStdWString().c_str(), origin.editable).get());
    }
    return list;
}

bool StdDirs::GetDirList(const char* key, CKWVariant* out) {
    const auto section = listSection(key, 0);
    if (!section)
        return false;
    const Ref<StdDirList> list = readList(section.get());
    *out = static_cast<IKWUnknown*>(list.get());
    return true;
}

bool StdDirs::SetDirList(const char* key, const CKWVariant& value) {
    const Ref<StdDirList> list = stdDirListOf(value);
    const auto section = list ? listSection(key, 1) : Ref<IParam>();
    if (!section)
        return false;
    EntriesByPath before;
    for (const std::string& name : childNames(section.get())) {
        const auto entry = openChild(section.get(), name.c_str());
        before.emplace(pathOf(entry.get()), copyOf(entry.get()));
    }
    std::vector<Ref<IParam>> entries = takeEntries(elementsOf(list), before, words);
    // What has no path was never shown and stays.
    for (auto [hidden, end] = before.equal_range(QString()); hidden != end; ++hidden)
        entries.push_back(hidden->second);
    section->clear();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto entry = Ref<IParam>::take(section->createChild(std::to_string(i + 1).c_str()));
        Param_CopyTo(entries[i].get(), entry.get());
    }
    return true;
}

} // namespace standin
