// A C library whose numbers have a comma for the decimal point, as in much of Europe; no such locale need be
// installed.
#pragma once

#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <clocale>
#include <cstring>
#include <string>

// In force while it lives, for LC_NUMERIC alone.
class CommaLocale {
public:
    CommaLocale() : former(std::setlocale(LC_NUMERIC, nullptr)), formerPath(qgetenv("LOCPATH")) {
        // The compiled form of a locale that has "," as decimal point and "." between thousands.
        static const char numeric[] =
            "\x14\x11\x03\x20\x06\0\0\0\x20\0\0\0\x22\0\0\0\x24\0\0\0\x28\0\0\0\x2c\0\0\0\x30\0\0\0"
            ",\0.\0\x03\x03\0\0,\0\0\0.\0\0\0UTF-8";
        QDir(folder.path()).mkdir(QStringLiteral("comma"));
        QFile file(folder.filePath(QStringLiteral("comma/LC_NUMERIC")));
        if (file.open(QFile::WriteOnly))
            file.write(numeric, sizeof numeric);
        file.close();
        qputenv("LOCPATH", folder.path().toLocal8Bit());
        errno = 0;
        if (!std::setlocale(LC_NUMERIC, "comma"))
            reason = folder.path().toStdString() + ": " + std::strerror(errno);
    }
    ~CommaLocale() {
        std::setlocale(LC_NUMERIC, former.c_str());
        if (formerPath.isNull())
            qunsetenv("LOCPATH");
        else
            qputenv("LOCPATH", formerPath);
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    // False where the C library does not load a locale from that folder.
    bool isInForce() const { return std::string(std::localeconv()->decimal_point) == ","; }
    const std::string& whyNot() const { return reason; }

private:
    QTemporaryDir folder;
    std::string former;
    QByteArray formerPath;
    std::string reason;
};
