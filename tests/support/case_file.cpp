#include "tests/support/case_file.h"

#include <QDir>
#include <fstream>
#include <gtest/gtest.h>

namespace {

std::string quoted(const std::string& text) {
    std::string result;
    for (const QString& line : QString::fromStdString(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        result += "> " + line.toStdString() + "\n";
    return result;
}

void take(Case& last, const std::string& line) {
    if (line.compare(0, 2, "> ") == 0) {
        last.expected += line.substr(2) + "\n";
        return;
    }
    last.given += line + "\n";
    const std::size_t colon = line.find(": ");
    if (line[0] >= 'a' && line[0] <= 'z' && colon != std::string::npos)
        last.fields[line.substr(0, colon)].push_back(line.substr(colon + 2));
}

std::vector<Case> casesOf(const std::string& path) {
    std::ifstream file(path);
    std::vector<Case> cases;
    for (std::string line; std::getline(file, line);) {
        if (line.compare(0, 3, "== ") == 0 || cases.empty()) {
            cases.emplace_back();
            cases.back().name = line;
        }
        if (!line.empty())
            take(cases.back(), line);
    }
    return cases;
}

std::string tagsOf(const std::string& line) {
    std::string tags;
    for (const QString& tag : QString::fromStdString(line).split(QLatin1Char('|')))
        tags += (tag.section(QLatin1Char('='), 0, 0).trimmed() + QLatin1Char('\n') +
                 tag.section(QLatin1Char('='), 1).replace(QChar(0xa6), QLatin1Char('|')) + QLatin1Char('\n'))
                    .toStdString();
    return tags;
}

} // namespace

std::string Case::tags(const std::string& field) const {
    const auto found = fields.find(field);
    std::string all;
    if (found != fields.end())
        for (const std::string& line : found->second)
            all += tagsOf(line);
    return all;
}

std::vector<std::string> caseFilesIn(const std::string& folder) {
    std::vector<std::string> names;
    const QDir place(QString::fromStdString(folder));
    for (const QString& name : place.entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name))
        names.push_back(name.section(QLatin1Char('.'), 0, 0).toStdString());
    return names;
}

void checkCases(const std::string& folder, const std::string& file,
                const std::function<std::string(const Case&)>& outcome) {
    const std::string path = folder + "/" + file;
    const std::vector<Case> cases = casesOf(path + ".txt");
    ASSERT_FALSE(cases.empty()) << path << ".txt has no cases";
    std::string actual;
    bool isSame = true;
    for (const Case& each : cases) {
        const std::string words = outcome(each);
        EXPECT_EQ(words, each.expected) << each.name;
        isSame &= words == each.expected;
        actual += each.given + quoted(words) + "\n";
    }
    QFile::remove(QString::fromStdString(path + ".actual"));
    if (!isSame)
        std::ofstream(path + ".actual") << actual;
}
