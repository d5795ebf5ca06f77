// Stores in a folder of the test's own, on a disk that can be full, each store as a process has it.
#pragma once

#include "host/typed_reads.h"
#include "standin/params/file_store.h"
#include "standin/params/mem_param.h"
#include "tests/support/text_file.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// A disk that is full after some bytes.
class FullDiskFile : public QSaveFile {
public:
    FullDiskFile(const QString& path, qint64 bytes) : QSaveFile(path), room(bytes) {}

protected:
    qint64 writeData(const char* data, qint64 length) override {
        if (length > room) {
            QSaveFile::writeData(data, room);
            setErrorString(QStringLiteral("No space left on device"));
            return -1;
        }
        room -= length;
        return QSaveFile::writeData(data, length);
    }

private:
    qint64 room;
};

// A store with its tree, as one process has it.
struct Process {
    Process(const standin::StoreFiles& files, standin::StoreIo io)
        : tree(standin::newTree<IParam>(rules)), store(tree->section(), rules, files, std::move(io)) {}
    int value(const char* name) {
        int read = -1;
        readValue(tree.get(), name, &read);
        return read;
    }
    void set(const char* name, int value) { setIn("", name, value); }
    void setIn(const char* section, const char* name, int value) {
        const auto node = *section ? Ref<IParam>::take(tree->openSection(section, 1)) : Ref<IParam>(tree);
        const CKWVariant variant(value, kVtInt);
        node->setValue(name, &variant);
    }
    standin::TreeRulesPtr rules = std::make_shared<standin::TreeRules>();
    Ref<standin::MemParam> tree;
    standin::FileStore store;
};

class FileStoreTest : public testing::Test {
protected:
    QTemporaryDir dir;
    QString path(const char* name) const { return dir.filePath(QString::fromLatin1(name)); }
    standin::StoreFiles files{path("shipped.yaml"), path("root/user.yaml"), 1000};
    QStringList problems;
    int filesOpened = 0;
    qint64 room = -1; // bytes left on the disk; negative: enough
    standin::StoreIo io() {
        standin::StoreIo made;
        made.reportProblem = [this](const QString& text) { problems << text; };
        made.newSaveFile = [this](const QString& name) -> std::unique_ptr<QSaveFile> {
            ++filesOpened;
            if (room >= 0)
                return std::make_unique<FullDiskFile>(name, room);
            return std::make_unique<QSaveFile>(name);
        };
        made.lockTimeout = 50;
        return made;
    }
    std::unique_ptr<Process> start() { return std::make_unique<Process>(files, io()); }
    void writeUser(const QByteArray& text) {
        QDir().mkpath(path("root"));
        writeText(files.user, text);
    }
    QStringList filesInRoot() const { return QDir(path("root")).entryList(QDir::Files, QDir::Name); }
    void SetUp() override { writeText(files.shipped, "A: 1\nB: 2\n"); }
};
