// Writing of trees. By hand and not through the library's emitter, which takes several times as long for the
// larger stores.
#include "standin/params/yaml_scalar.h"
#include "standin/params/yaml_tree.h"

namespace standin {

namespace {

// Below this depth sections are written by their paths: the reader gives up at a few hundred levels.
const int deepestLevel = 100;

// A name longer than this may not stand on the line of its value.
const std::size_t longestPlainName = 1000;

void writeName(const std::string& name, int level, std::string& out) {
    const std::string indent(static_cast<std::size_t>(level) * 2, ' ');
    const std::string text = nameToYaml(name);
    out += text.size() <= longestPlainName ? indent + text + ':' : indent + "? " + text + '\n' + indent + ':';
}

void writeValues(const Section& section, int level, std::string& out) {
    for (const auto& entry : section.values()) {
        const auto value = valueToYaml(entry.value);
        if (!value)
            continue;
        writeName(entry.name, level, out);
        out += ' ' + *value + '\n';
    }
}

// Writes the name and what `writeBody` adds, or "name: {}" when it adds nothing.
template <class Body>
void writeNamed(const std::string& name, int level, std::string& out, const Body& writeBody) {
    writeName(name, level, out);
    const std::size_t headEnd = out.size();
    out += '\n';
    writeBody();
    if (out.size() == headEnd + 1)
        out.insert(headEnd, " {}");
}

void writePaths(const std::string& path, const Section& section, int level, std::string& out) {
    if (!section.values().empty() || section.children().empty())
        writeNamed(path, level, out, [&] { writeValues(section, level + 1, out); });
    for (const auto& entry : section.children())
        writePaths(path + '/' + entry.name, entry.value->section(), level, out);
}

void writeSection(const Section& section, int level, std::string& out) {
    writeValues(section, level, out);
    for (const auto& entry : section.children()) {
        const Section& child = entry.value->section();
        if (level < deepestLevel)
            writeNamed(entry.name, level, out, [&] { writeSection(child, level + 1, out); });
        else
            writePaths(entry.name, child, level, out);
    }
}

} // namespace

std::string writeYaml(const Section& section) {
    std::string out;
    writeSection(section, 0, out);
    return out.empty() ? "{}\n" : out;
}

} // namespace standin
