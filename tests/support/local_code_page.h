// Makes another code page the local one for a while.
#pragma once

#include <QTextCodec>

class LocalCodePage {
public:
    explicit LocalCodePage(const char* name) : former(QTextCodec::codecForLocale()) {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~LocalCodePage() { QTextCodec::setCodecForLocale(former); }
    LocalCodePage(const LocalCodePage&) = delete;
    LocalCodePage& operator=(const LocalCodePage&) = delete;

private:
    QTextCodec* former;
};
