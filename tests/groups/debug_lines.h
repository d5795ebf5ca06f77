// The debug lines that a scope writes.
#pragma once

#include <QStringList>
#include <QtGlobal>
#include <cstring>

class DebugLines {
public:
    DebugLines() : former(qInstallMessageHandler(collect)) { collecting = this; }
    ~DebugLines() {
        collecting = nullptr;
        qInstallMessageHandler(former);
    }
    DebugLines(const DebugLines&) = delete;
    DebugLines& operator=(const DebugLines&) = delete;
    QStringList collected; // those of the category "default"

private:
    static void collect(QtMsgType type, const QMessageLogContext& context, const QString& text) {
        if (type == QtDebugMsg && collecting && std::strcmp(context.category, "default") == 0)
            collecting->collected.append(text);
    }
    static inline DebugLines* collecting = nullptr;
    QtMessageHandler former;
};
