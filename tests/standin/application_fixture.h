// The application object over files of its own.
#pragma once

#include "standin/params/application.h"

#include "host/app.h"
#include "host/property_names.h"
#include "host/std_dirs.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "standin/params/dir_entry.h"
#include "tests/support/text_file.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

template <class I> Ref<IParam> sectionOf(const char* path, int create = 0) {
    return openChild(appService<I>().get(), path, create);
}

inline void setInteger(IParam* node, const char* name, int value) {
    const CKWVariant variant(value, kVtInt);
    ASSERT_TRUE(node);
    EXPECT_EQ(node->setValue(name, &variant), 1);
}

class ApplicationTest : public testing::Test {
protected:
    QTemporaryDir dir;
    QString data = dir.filePath(QStringLiteral("data")), root = dir.filePath(QStringLiteral("root"));
    QStringList problems;
    int filesOpened = 0;
    std::unique_ptr<standin::Application> application;

    void SetUp() override {
        QDir().mkpath(data);
        ship("preftree", "PrefTree:\n  Row: {Name: !wide \"Row\", Default: 1}\n");
        ship("formats", "Raster: {Format1: \"png\"}\n"
                        "Formats:\n  png: {DefExt: \"png\", Secret: 5, Options: {Depth: 8}}\n");
        ship("papers", "Paper00000001: {Name: !wide \"A4\", Size: !rsize [210, 297], Secret: 3}\n");
        ship("stddirs",
             "StdDirsDescriptions:\n  Fonts: {Name: !wide \"Fonts\"}\n  Empty: {Name: !wide \"Empty\"}\n"
             "Lists:\n"
             "  Fonts:\n    1: {path: \"${root}/fonts\", key: \".Local\", editable: 1, note: \"kept\"}\n"
             "    2: {path: \"${data}/fonts\", key: \".Shipped\", editable: 0, sub: {x: 1}}\n"
             "Dirs: {TemplatesDir: !wide \"${data}/templates\"}\n");
        start();
    }
    void ship(const char* name, const QByteArray& text) { writeText(shipped(name), text); }
    QString shipped(const char* name) const { return data + '/' + QLatin1String(name) + ".yaml"; }
    QString user(const char* name) const { return root + '/' + QLatin1String(name) + ".yaml"; }
    void start(const QString& rootDir = {}) {
        application.reset();
        standin::ApplicationSetup setup{data, rootDir.isEmpty() ? root : rootDir, {}, 3};
        setup.io.reportProblem = [this](const QString& text) { problems << text; };
        setup.io.newSaveFile = [this](const QString& path) {
            ++filesOpened;
            return std::make_unique<QSaveFile>(path);
        };
        application = std::make_unique<standin::Application>(setup);
    }
    Ref<StdDirList> listOf(const char* key) {
        CKWVariant value;
        return appService<IStdDirs>()->GetDirList(key, &value) ? stdDirListOf(value) : Ref<StdDirList>();
    }
    std::vector<QString> pathsOf(const char* key) {
        std::vector<QString> paths;
        for (const auto& element : elementsOf(listOf(key)))
            paths.push_back(QString::fromWCharArray(element->GetPath()));
        return paths;
    }
    bool store(const char* key, const Ref<StdDirList>& list) {
        CKWVariant value;
        value = static_cast<IKWUnknown*>(list.get());
        return appService<IStdDirs>()->SetDirList(key, value);
    }
};
