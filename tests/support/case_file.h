// Files of cases: each begins with a line "== name", has lines "field: value" that give it, and lines ">
// text" that say what comes out of it. On a difference the actual file is left beside the file as *.actual.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

struct Case {
    std::string name, expected;
    std::string given; // its lines as they stand
    std::map<std::string, std::vector<std::string>> fields;

    // The tags of all lines of the field, which stand there as code=value with bars between them. A bar
    // within a value is written as a broken one.
    std::string tags(const std::string& field) const;
};

// Without their ending, for tests that go through all of them.
std::vector<std::string> caseFilesIn(const std::string& folder);
// Fails for each case of which something else comes.
void checkCases(const std::string& folder, const std::string& file,
                const std::function<std::string(const Case&)>& outcome);
