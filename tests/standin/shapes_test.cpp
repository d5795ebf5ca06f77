// The shapes of many kinds of objects, number by number. Each file of tests/data/shapes has cases: a line
// with the name, the sections of a drawing with their tags as code=value between bars, and what is shown of
// it. On a difference the actual file is left beside it as *.actual.
#include "tests/standin/shapes_in_words.h"
#include "tests/standin/shown_drawing.h"

#include <QDir>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

namespace {

const char* const kFolder = TEST_DATA_DIR "/shapes/";

std::vector<std::string> fileNames() {
    std::vector<std::string> names;
    for (const QString& name : QDir(kFolder).entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name))
        names.push_back(name.section(QLatin1Char('.'), 0, 0).toStdString());
    return names;
}

// "10=1.5|20=2" as two lines for each tag; a bar within a value is written as a broken one.
std::string tagsOf(const std::string& line) {
    std::string tags;
    for (const QString& tag : QString::fromStdString(line).split(QLatin1Char('|')))
        tags += (tag.section(QLatin1Char('='), 0, 0).trimmed() + QLatin1Char('\n') +
                 tag.section(QLatin1Char('='), 1).replace(QChar(0xa6), QLatin1Char('|')) + QLatin1Char('\n'))
                    .toStdString();
    return tags;
}

std::string section(const char* name, const std::string& tags) {
    return tags.empty() ? "" : "0\nSECTION\n2\n" + std::string(name) + "\n" + tags + "0\nENDSEC\n";
}

struct Case {
    std::string given, expected, name;
    std::map<std::string, std::string> sections;

    std::string shown() {
        const shown::Drawing drawing(sections["entities"],
                                     section("TABLES", sections["tables"]) +
                                         section("BLOCKS", sections["blocks"]),
                                     sections["variables"], section("OBJECTS", sections["objects"]));
        std::string words;
        for (const standin::Item* item : drawing.items)
            words += shown::inWords(*item);
        return words;
    }
};

std::vector<Case> casesOf(const std::string& path) {
    std::ifstream file(path);
    std::vector<Case> cases;
    for (std::string line; std::getline(file, line);) {
        if (line.empty())
            continue;
        if (line.compare(0, 3, "== ") == 0 || cases.empty()) {
            cases.emplace_back();
            cases.back().name = line;
        }
        Case& last = cases.back();
        const std::size_t colon = line.find(": ");
        if (line.compare(0, 2, "> ") == 0)
            last.expected += line.substr(2) + "\n";
        else
            last.given += line + "\n";
        if (line[0] >= 'a' && line[0] <= 'z' && colon != std::string::npos)
            last.sections[line.substr(0, colon)] += tagsOf(line.substr(colon + 2));
    }
    return cases;
}

std::string quoted(const std::string& text) {
    std::string result;
    for (const QString& line : QString::fromStdString(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        result += "> " + line.toStdString() + "\n";
    return result;
}

class Shapes : public testing::TestWithParam<std::string> {};

TEST_P(Shapes, AreThoseOfTheReference) {
    const std::string path = kFolder + GetParam();
    std::string actual;
    bool isSame = true;
    std::vector<Case> cases = casesOf(path + ".txt");
    EXPECT_GT(cases.size(), 3u);
    for (Case& each : cases) {
        const std::string words = each.shown();
        EXPECT_EQ(words, each.expected) << each.name;
        isSame &= words == each.expected;
        actual += each.given + quoted(words) + "\n";
    }
    QFile::remove(QString::fromStdString(path + ".actual"));
    if (!isSame)
        std::ofstream(path + ".actual") << actual;
}

INSTANTIATE_TEST_SUITE_P(Files, Shapes, testing::ValuesIn(fileNames()),
                         [](const auto& file) { return file.param; });

} // namespace
