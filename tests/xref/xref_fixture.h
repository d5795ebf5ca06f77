// A saved drawing that references are attached to, drawings in a folder of the test's own, and the optional
// attach services for the tests that want them.
#pragma once

#include "host/attach_files.h"
#include "host/attach_services.h"
#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/xref_man.h"
#include "tests/support/fixture_host.h"
#include "tests/xref/xref_io.h"
#include "xref/new_definitions.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QStringList& list, std::ostream* out) {
    for (const QString& text : list)
        *out << '"' << text.toStdString() << "\" ";
}

// Attach services of a host: relative paths from the drawing's folder, settings in a tree, texts noted.
class TestAttachServices : public CKWUnknownImpl<IAttachServices> {
public:
    CXStringW basePath(OdDbDatabase* database) override {
        const QString file = hostqt::qString(database->getFilename());
        return file.isEmpty() ? CXStringW() : hostqt::cxStringW(QFileInfo(file).absolutePath());
    }
    IParam* settings() override { return Ref<IParam>(store).detach(); }
    void report(HostCommandIO*, const wchar_t* text) override { reported << hostqt::qString(text); }
    void refuse(const wchar_t* text) override { refused << hostqt::qString(text); }
    bool numbersTakenNames() override { return numbers; }
    Ref<IParam> store = Ref<IParam>::take(new_MemParam());
    QStringList reported, refused;
    bool numbers = true;
};

// Asks for files in place of the dialogs, or leaves them to the command.
class TestAttachFiles : public CKWUnknownImpl<IAttachFiles> {
public:
    bool askForFiles(std::vector<OdString>& files) override {
        files = chosen;
        return asks;
    }
    std::vector<OdString> chosen;
    bool asks = true;
};

class XRefTest : public testing::Test {
protected:
    XRefTest() {
        host.openDocument(drawing);
        host.document.io = &io;
        host.documents.io = &io;
        name(QStringLiteral("site.dxf"));
    }
    ~XRefTest() override { host.closeDocument(); }

    // The current drawing's file, in the test's folder; empty: never saved.
    void name(const QString& file) {
        const OdString full = file.isEmpty() ? OdString() : hostqt::odString(inFolder(file));
        drawing->setFilename(full);
        host.document.path = full;
    }
    QString inFolder(const QString& file) const { return folder.filePath(file); }
    OdString odPath(const QString& file) const { return hostqt::odString(inFolder(file)); }

    // A drawing with one line of length 10.
    static OdDbDatabasePtr smallDrawing(OdDb::UnitsValue units = OdDb::kUnitsUndefined) {
        const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
        database->setINSUNITS(units);
        OdDbLinePtr line(new OdDbLine);
        line->setEndPoint({10, 0, 0});
        odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject(OdDb::kForWrite))
            ->appendOdDbEntity(line.get());
        return database;
    }
    QString write(const QString& file, OdDb::UnitsValue units = OdDb::kUnitsUndefined) {
        smallDrawing(units)->writeFile(odPath(file));
        return inFolder(file);
    }
    QString writeBytes(const QString& file, const QByteArray& bytes) {
        QFile out(inFolder(file));
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
        return inFolder(file);
    }
    // A drawing that itself refers to others.
    QString writeReferring(const QString& file, const QStringList& others, bool overlay = false) {
        const OdDbDatabasePtr database = smallDrawing();
        for (const QString& other : others)
            OdDbXRefManExt::addNewXRefDefBlock(database.get(), odPath(other),
                                               hostqt::odString(QFileInfo(other).baseName()), overlay);
        database->writeFile(odPath(file));
        return inFolder(file);
    }
    OdDbObjectId define(const QString& blockName, const QString& path, bool overlay = false) {
        return OdDbXRefManExt::addNewXRefDefBlock(drawing.get(), hostqt::odString(path),
                                                  hostqt::odString(blockName), overlay);
    }
    void addPlainBlock(const wchar_t* blockName) {
        OdDbBlockTableRecordPtr record(new OdDbBlockTableRecord);
        record->setName(blockName);
        odrxCast<OdDbBlockTable>(drawing->getBlockTableId().safeOpenObject(OdDb::kForWrite))
            ->add(record.get());
    }

    OdDbBlockTablePtr blocks() const {
        return odrxCast<OdDbBlockTable>(drawing->getBlockTableId().safeOpenObject());
    }
    OdDbBlockTableRecordPtr block(const QString& blockName) const {
        return odrxCast<OdDbBlockTableRecord>(blocks()->getAt(hostqt::odString(blockName), OdDb::kForRead));
    }
    QStringList referenceNames() const {
        QStringList names;
        for (OdDbSymbolTableIterator it = blocks()->newIterator(); !it.done(); it.step())
            if (odrxCast<OdDbBlockTableRecord>(it.getRecord())->isFromExternalReference())
                names << hostqt::qString(it.getRecord()->getName());
        return names;
    }
    std::vector<OdDbBlockReferencePtr> inserted(OdDbObjectId space = {}) const {
        std::vector<OdDbBlockReferencePtr> found;
        const auto record = odrxCast<OdDbBlockTableRecord>(
            (space.isNull() ? drawing->getModelSpaceId() : space).safeOpenObject());
        for (OdDbObjectIterator it = record->newIterator(); !it.done(); it.step()) {
            const auto reference = odrxQuery<OdDbBlockReference>(it.entity().get());
            if (!reference.isNull())
                found.push_back(reference);
        }
        return found;
    }
    TestAttachServices& provideServices() {
        services = Ref<TestAttachServices>::share(new TestAttachServices);
        static_cast<standin::ServiceHub*>(host.application())->add(services);
        return *services;
    }
    QStringList noticeTexts() {
        QStringList texts;
        for (const FixtureEvents::Notice& notice : host.notices())
            texts << notice.text;
        return texts;
    }

    FixtureHost host;
    OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    XRefIO io;
    QTemporaryDir folder;
    Ref<TestAttachServices> services;
    NewDefinitionsScope newDefinitions;
};
