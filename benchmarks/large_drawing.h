// A drawing file of many lines, every 200 of them a group, for the benchmarks of drawing files.
#pragma once

#include "sdk/db/database.h"

#include <QFile>
#include <QTemporaryDir>
#include <string>

class LargeDrawing {
public:
    explicit LargeDrawing(int entities) : file(folder.filePath("large.dxf")) {
        std::string text = OdDbDatabase::createEmpty()->writeBytes();
        insertBefore(text, "  0\nENDSEC\n  0\nSECTION\n  2\nOBJECTS\n", linesText(entities));
        insertBefore(text, "  0\nENDSEC\n  0\nEOF\n",
                     groupsText(entities / kMembers, kFirstLine + static_cast<unsigned>(entities)));
        const std::string empty = "  3\nACAD_GROUP\n350\nD\n";
        replace(text, empty, "  3\nACAD_GROUP\n350\n" + hex(kDictionary) + "\n");
        bytes = text.size();
        if (file.open(QIODevice::WriteOnly))
            file.write(text.data(), static_cast<qint64>(text.size()));
        file.close();
    }
    QString path() const { return file.fileName(); }
    double size() const { return static_cast<double>(bytes); }

private:
    static constexpr int kMembers = 200;
    static constexpr unsigned kDictionary = 0xFFF;
    static constexpr unsigned kFirstLine = 0x1000;

    static std::string hex(unsigned number) {
        char text[16];
        std::snprintf(text, sizeof text, "%X", number);
        return text;
    }
    static std::string lineText(unsigned number) {
        const std::string x = std::to_string(number % 1000 * 10.123456789);
        const std::string y = std::to_string(number / 1000 * 7.987654321);
        return "  0\nLINE\n  5\n" + hex(kFirstLine + number) + "\n330\n1F\n100\nAcDbEntity\n  8\n0\n 62\n" +
               std::to_string(number % 255 + 1) +
               "\n  6\nContinuous\n420\n  16711680\n 60\n0\n284\n0\n370\n    25\n 48\n1.0\n100\nAcDbLine\n "
               "39\n0.0\n 10\n" +
               x + "\n 20\n" + y + "\n 30\n0.0\n 11\n" + y + "\n 21\n" + x + "\n 31\n0.0\n";
    }
    static std::string linesText(int count) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += lineText(static_cast<unsigned>(i));
        return text;
    }
    static std::string groupsText(int count, unsigned firstHandle) {
        std::string names, groups;
        for (int i = 0; i < count; ++i) {
            const std::string handle = hex(firstHandle + static_cast<unsigned>(i));
            names += "  3\nG" + std::to_string(i) + "\n350\n" + handle + "\n";
            groups += "  0\nGROUP\n  5\n" + handle + "\n330\n" + hex(kDictionary) +
                      "\n100\nAcDbGroup\n300\n\n 70\n0\n 71\n1\n";
            for (int member = 0; member < kMembers; ++member)
                groups += "340\n" + hex(kFirstLine + static_cast<unsigned>(i * kMembers + member)) + "\n";
        }
        return "  0\nDICTIONARY\n  5\n" + hex(kDictionary) + "\n330\nC\n100\nAcDbDictionary\n281\n1\n" +
               names + groups;
    }
    static void replace(std::string& text, const std::string& from, const std::string& to) {
        text.replace(text.find(from), from.size(), to);
    }
    static void insertBefore(std::string& text, const std::string& place, const std::string& added) {
        text.insert(text.rfind(place), added);
    }

    QTemporaryDir folder;
    QFile file;
    std::size_t bytes = 0;
};
