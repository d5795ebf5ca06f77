// The libFuzzer target for files of settings: a text is read or its fault is told, what was read is written
// as a text that reads the same, and two texts are merged without losing an entry that only one of them has.
#include "standin/params/mem_param.h"
#include "standin/params/store_merge.h"
#include "standin/params/yaml_tree.h"
#include "tests/fuzz/fuzz_fault.h"

using namespace standin;

namespace {

const std::string parting = "\n---8<---\n"; // between the texts of two programs

// What a text says, as it is written.
std::string contentOf(const std::string& text) {
    const YamlResult result = parseYaml(text, "fuzzed");
    fuzz::expect(bool(result.tree), "there is no tree");
    fuzz::expect(result.clean() == result.report().empty(), "a fault is not told, or one that is none");
    const std::string written = writeYaml(result.tree->section());
    const YamlResult again = parseYaml(written, "written");
    fuzz::expect(again.clean(), "what was written can't be read: " + again.report() + "\n" + written);
    const std::string twice = writeYaml(again.tree->section());
    fuzz::expect(twice == written, "what was written reads differently:\n" + written + "\nand\n" + twice);
    return written;
}

Ref<MemParam> treeOf(const std::string& text) { return parseYaml(text, "content").tree; }

void checkMerge(const std::string& first, const std::string& second) {
    for (const int wholeDepth : {0, 1, 2, 100}) {
        const Ref<MemParam> base = treeOf(first), theirs = treeOf(second), ours = treeOf(first);
        const auto overruled = mergeInto(ours->section(), base->section(), theirs->section(), wholeDepth);
        fuzz::expect(overruled.empty(), "something gave way though nothing was changed here");
        mergeInto(theirs->section(), base->section(), ours->section(), wholeDepth);
        parseYaml(writeYaml(ours->section()), "merged");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::size_t cut = bytes.find(parting);
    const std::string first = contentOf(bytes.substr(0, cut));
    if (cut != std::string::npos)
        checkMerge(first, contentOf(bytes.substr(cut + parting.size())));
    return 0;
}
