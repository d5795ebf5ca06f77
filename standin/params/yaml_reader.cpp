// Reading of trees from the library's events, so that depth and size stay bounded whatever the text holds.
#include "standin/params/yaml_scalar.h"
#include "standin/params/yaml_text_check.h"
#include "standin/params/yaml_tree.h"

#include <QString>
#include <cstring>
#include <cwchar>
#include <map>
#include <sstream>
#include <yaml-cpp/eventhandler.h>
#include <yaml-cpp/yaml.h>

namespace standin {

namespace {

const std::size_t deepestLevel = 256;
const int mostEntriesFromAliases = 100000;
const std::size_t mostBytesFromAliases = 16 << 20;
const std::size_t mostFaults = 100;

YamlProblem problemAt(const std::string& file, const YAML::Mark& mark, const std::string& reason) {
    return {file, mark.line + 1, mark.column + 1, reason};
}

int entriesIn(const Section& section) {
    int count = static_cast<int>(section.values().size());
    for (const auto& entry : section.children())
        count += 1 + entriesIn(entry.value->section());
    return count;
}

std::size_t bytesOf(const CKWVariant& value) {
    if (value.vt == kVtString)
        return sizeof value + std::strlen(value.text);
    return sizeof value + (value.vt == kVtWideString ? sizeof(wchar_t) * std::wcslen(value.wideText) : 0);
}

std::size_t bytesIn(const Section& section) {
    std::size_t bytes = sizeof section;
    for (const auto& entry : section.values())
        bytes += entry.name.size() + bytesOf(entry.value);
    for (const auto& entry : section.children())
        bytes += entry.name.size() + bytesIn(entry.value->section());
    return bytes;
}

std::string shownName(const std::string& name) {
    return '"' + (name.size() > 60 ? name.substr(0, 60) + "..." : name) + '"';
}

// What an anchor names: a section, possibly one that is still being read, or a value.
struct Anchored {
    Ref<MemParam> section;
    CKWVariant value;
};

// One collection that has been opened and not closed yet.
struct Frame {
    Ref<MemParam> section; // null for a list
    std::string tag;
    std::vector<std::string> items;
    YAML::anchor_t anchor = 0;
    std::optional<std::string> name; // read, its value is to come
    bool dropNext = false;           // the name was no name: its value is passed over
    bool spoilt = false;             // a list with something else than plain items
};

class TreeBuilder : public YAML::EventHandler {
public:
    TreeBuilder(YamlResult& target, std::string fileName) : result(target), file(std::move(fileName)) {}

    void OnDocumentStart(const YAML::Mark&) override {}
    void OnDocumentEnd() override {}
    void OnNull(const YAML::Mark& mark, YAML::anchor_t) override;
    void OnAlias(const YAML::Mark& mark, YAML::anchor_t anchor) override;
    void OnScalar(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                  const std::string& text) override;
    void OnSequenceStart(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                         YAML::EmitterStyle::value) override;
    void OnSequenceEnd() override { closeCollection(); }
    void OnMapStart(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                    YAML::EmitterStyle::value) override;
    void OnMapEnd() override { closeCollection(); }

private:
    void fault(const YAML::Mark& mark, const std::string& reason);
    bool takeScalarAsNameOrItem(const YAML::Mark& mark, const std::string& text);
    bool canOpen(const YAML::Mark& mark, const char* what);
    void closeCollection();
    std::string takeName();
    bool valueIsDropped();
    void store(const YAML::Mark& mark, const CKWVariant& value);
    void openSectionFor(const YAML::Mark& mark, YAML::anchor_t anchor);
    void copySection(const YAML::Mark& mark, MemParam& source);
    void count(const YAML::Mark& mark, int entries, std::size_t bytes);
    bool isOpen(const MemParam* section) const;
    void checkDepth(const YAML::Mark& mark) const;

    YamlResult& result;
    std::string file;
    std::vector<Frame> open;
    std::map<YAML::anchor_t, Anchored> anchors;
    int skipped = 0; // collections open inside one that is passed over, that one included
    int copied = 0;  // entries, by aliases, as are the bytes
    std::size_t copiedBytes = 0;
    YAML::Mark listMark;
};

void TreeBuilder::fault(const YAML::Mark& mark, const std::string& reason) {
    if (result.faults.size() < mostFaults)
        result.faults.push_back(problemAt(file, mark, reason));
}

void TreeBuilder::checkDepth(const YAML::Mark& mark) const {
    if (open.size() + static_cast<std::size_t>(skipped) >= deepestLevel)
        throw YAML::ParserException(mark, "more than 256 levels of sections");
}

std::string TreeBuilder::takeName() {
    std::string name = *open.back().name;
    open.back().name.reset();
    return name;
}

bool TreeBuilder::valueIsDropped() { return std::exchange(open.back().dropNext, false); }

// Whether a collection may begin here; otherwise it is passed over.
bool TreeBuilder::canOpen(const YAML::Mark& mark, const char* what) {
    checkDepth(mark);
    if (skipped) {
        ++skipped;
        return false;
    }
    if (open.empty() || open.back().name)
        return true;
    Frame& frame = open.back();
    ++skipped;
    if (!frame.section) {
        frame.spoilt = true;
    } else if (!valueIsDropped()) {
        fault(mark, std::string("a name is plain text, not ") + what);
        frame.dropNext = true;
    }
    return false;
}

void TreeBuilder::openSectionFor(const YAML::Mark& mark, YAML::anchor_t anchor) {
    Frame frame;
    if (open.empty()) {
        frame.section = result.tree;
    } else {
        Section& parent = open.back().section->section();
        const std::string name = takeName();
        if (parent.children().find(name))
            fault(mark, "the section " + shownName(name) + " stands here twice; both are joined");
        frame.section = parent.openSection(name.c_str(), true);
    }
    if (anchor)
        anchors[anchor].section = frame.section;
    open.push_back(std::move(frame));
}

void TreeBuilder::OnMapStart(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                             YAML::EmitterStyle::value) {
    if (!canOpen(mark, "a section"))
        return;
    if (!tag.empty() && tag != "?" && tag != "!")
        fault(mark, "a section has no type, but " + shownName(tag) + " is given");
    openSectionFor(mark, anchor);
}

void TreeBuilder::OnSequenceStart(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                                  YAML::EmitterStyle::value) {
    if (open.empty() && !skipped)
        throw YAML::ParserException(mark, "a list where sections are expected");
    if (!canOpen(mark, "a list"))
        return;
    if (isListTag(tag)) {
        Frame frame;
        frame.tag = tag;
        frame.anchor = anchor;
        listMark = mark;
        open.push_back(std::move(frame));
    } else {
        fault(mark, "the list " + shownName(takeName()) + " lacks its type: !size, !rsize or !rpoint");
        ++skipped;
    }
}

void TreeBuilder::closeCollection() {
    if (skipped) {
        --skipped;
        return;
    }
    const Frame closed = std::move(open.back());
    open.pop_back();
    if (closed.section)
        return;
    const auto value = closed.spoilt ? std::nullopt : listFromYaml(closed.tag, closed.items);
    if (value && closed.anchor)
        anchors[closed.anchor].value = *value;
    if (value)
        store(listMark, *value);
    else
        fault(listMark, "the value of " + shownName(takeName()) + " is no " + closed.tag + " [a, b]");
}

void TreeBuilder::store(const YAML::Mark& mark, const CKWVariant& value) {
    Section& section = open.back().section->section();
    const std::string name = takeName();
    if (section.values().find(name))
        fault(mark, "the value " + shownName(name) + " is given twice; the last one counts");
    section.setValue(name.c_str(), &value);
}

// True when the scalar was a name, an item of a list, or nothing that counts.
bool TreeBuilder::takeScalarAsNameOrItem(const YAML::Mark& mark, const std::string& text) {
    if (skipped)
        return true;
    if (open.empty())
        throw YAML::ParserException(mark, "plain text where sections are expected");
    Frame& frame = open.back();
    if (!frame.section)
        frame.items.push_back(text);
    else if (frame.name)
        return false;
    else if (!valueIsDropped())
        frame.name = localFromUtf8(text);
    return true;
}

void TreeBuilder::OnScalar(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t anchor,
                           const std::string& text) {
    if (takeScalarAsNameOrItem(mark, text))
        return;
    const auto value = scalarFromYaml(tag, text);
    if (!value) {
        fault(mark, "the value of " + shownName(takeName()) + " has the unknown type " + shownName(tag));
        return;
    }
    if (anchor)
        anchors[anchor].value = *value;
    store(mark, *value);
}

void TreeBuilder::OnNull(const YAML::Mark& mark, YAML::anchor_t) {
    if (skipped || open.empty())
        return; // an empty text is an empty tree
    Frame& frame = open.back();
    if (!frame.section) {
        frame.spoilt = true;
    } else if (frame.name) {
        fault(mark, shownName(takeName()) + " is neither a value nor a section; write \"\" or {}");
    } else if (!valueIsDropped()) {
        fault(mark, "a name is missing");
        frame.dropNext = true;
    }
}

bool TreeBuilder::isOpen(const MemParam* section) const {
    return std::any_of(open.begin(), open.end(),
                       [section](const Frame& frame) { return frame.section.get() == section; });
}

// A short text may stand for any number of entries, and a few entries for any number of bytes.
void TreeBuilder::count(const YAML::Mark& mark, int entries, std::size_t bytes) {
    copied += entries;
    copiedBytes += bytes;
    if (copied > mostEntriesFromAliases)
        throw YAML::ParserException(mark, "the aliases stand for more than 100000 entries");
    if (copiedBytes > mostBytesFromAliases)
        throw YAML::ParserException(mark, "the aliases stand for more than 16 MB");
}

void TreeBuilder::copySection(const YAML::Mark& mark, MemParam& source) {
    if (isOpen(&source)) {
        fault(mark, "the section " + shownName(takeName()) + " would hold itself");
        return;
    }
    count(mark, 1 + entriesIn(source.section()), bytesIn(source.section()));
    openSectionFor(mark, 0);
    open.back().section->section().copyFrom(source.section());
    open.pop_back();
}

void TreeBuilder::OnAlias(const YAML::Mark& mark, YAML::anchor_t anchor) {
    if (skipped || open.empty())
        return;
    Frame& frame = open.back();
    const auto found = anchors.find(anchor);
    if (!frame.section) {
        frame.spoilt = true;
    } else if (!frame.name) {
        if (!valueIsDropped()) {
            fault(mark, "a name is plain text, not an alias");
            frame.dropNext = true;
        }
    } else if (found == anchors.end()) {
        fault(mark, "the alias of " + shownName(takeName()) + " stands for nothing that was read");
    } else if (found->second.section) {
        copySection(mark, *found->second.section);
    } else {
        count(mark, 1, bytesOf(found->second.value));
        store(mark, found->second.value);
    }
}

void readDocuments(const std::string& text, const std::string& file, YamlResult& result) {
    std::istringstream stream(text);
    YAML::Parser parser(stream);
    TreeBuilder builder(result, file);
    if (!parser.HandleNextDocument(builder))
        return;
    YamlResult rest;
    rest.tree = newTree<IParam>();
    TreeBuilder ignored(rest, file);
    if (parser.HandleNextDocument(ignored))
        result.faults.push_back({file, 1, 1, "the text holds several documents; only the first is read"});
}

} // namespace

std::string YamlProblem::text() const {
    return file + ':' + std::to_string(line) + ':' + std::to_string(column) + ": " + reason;
}

std::string YamlResult::report() const {
    if (clean())
        return {};
    const std::size_t others = faults.size() + (problem ? 1 : 0) - 1;
    const std::string first = (problem ? *problem : faults.front()).text();
    return others ? first + " (and " + std::to_string(others) + " more)" : first;
}

YamlResult parseYaml(const std::string& text, const std::string& file, TreeRulesPtr rules) {
    YamlResult result;
    result.tree = newTree<IParam>(std::move(rules));
    result.problem = findUnreadableText(text, file);
    if (result.problem)
        return result;
    try {
        readDocuments(text, file, result);
    } catch (const YAML::Exception& error) {
        result.problem = problemAt(file, error.mark, error.msg);
    }
    return result;
}

} // namespace standin
