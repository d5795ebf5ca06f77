// The open documents, and the variables that belong to them.
#include "host/text.h"
#include "sdk/db/database.h"
#include "sdk/db/xref_man.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "standin/sysvars/read_context.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace standin;

namespace {

struct DocumentsTest : testing::Test {
    static SysVarTable shipped() {
        QStringList problems;
        return SysVarTable::fromFile(QStringLiteral(SHIPPED_DATA_DIR "/sysvars.yaml"), &problems);
    }
    QString text(const wchar_t* name, OdRxObject* context = nullptr) {
        OdResBufPtr value;
        const int status = documents.variables().getVar(name, &value, context, 0);
        return status == kVarUnavailable ? QString() : hostqt::qString(value->getString());
    }
    double number(const wchar_t* name, OdRxObject* context = nullptr) {
        OdResBufPtr value;
        documents.variables().getVar(name, &value, context, 0);
        return value.isNull() ? -1 : value->getDouble();
    }
    int set(const wchar_t* name, double number, OdRxObject* context = nullptr) {
        const OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtDouble);
        value->setDouble(number);
        return documents.variables().setVar(name, value.get(), context, 0);
    }
    Console console;
    DocumentManager documents{console, shipped()};
};

TEST_F(DocumentsTest, NoneIsCurrentAtFirst) {
    EXPECT_EQ(HostDocManager(), &documents);
    EXPECT_EQ(documents.currentDocument(), nullptr);
    EXPECT_EQ(documents.fallbackIO(), &console);
}

TEST_F(DocumentsTest, OpenedDocumentIsCurrentAndComplete) {
    const QSignalSpy changes(&documents, &DocumentManager::currentChanged);
    HostDocument* document = documents.openEmpty();
    EXPECT_EQ(documents.currentDocument(), document);
    EXPECT_FALSE(document->database().isNull());
    EXPECT_EQ(document->commandIO(), &console);
    EXPECT_NE(document->selection(), nullptr);
    EXPECT_STREQ(document->title(), L"Drawing1");
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(DocumentsTest, ClosingGoesBackToTheOneBefore) {
    Document* first = documents.openEmpty();
    Document* second = documents.openEmpty();
    Document* third = documents.openEmpty();
    documents.close(second);
    EXPECT_EQ(documents.currentOne(), third);
    documents.close(third);
    EXPECT_EQ(documents.currentOne(), first);
    documents.close(first);
    EXPECT_EQ(documents.currentOne(), nullptr);
}

TEST_F(DocumentsTest, FileThatIsMissingThrowsAndOpensNothing) {
    const QTemporaryDir folder;
    EXPECT_THROW(documents.openFile(folder.filePath("missing.dxf")), OdError);
    EXPECT_TRUE(documents.all().empty());
}

TEST_F(DocumentsTest, SavedDrawingIsOpenedUnderItsName) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("Größe.dxf");
    OdDbDatabase::createEmpty()->writeFile(hostqt::odString(path));
    HostDocument* document = documents.openFile(path);
    EXPECT_EQ(hostqt::qString(document->fileName()), path);
    EXPECT_EQ(hostqt::qString(document->title()), "Größe.dxf");
    EXPECT_EQ(text(L"DWGNAME"), "Größe.dxf");
    EXPECT_EQ(text(L"DWGPREFIX"), folder.path() + "/");
    EXPECT_EQ(number(L"DWGTITLED"), 1);
}

TEST_F(DocumentsTest, ReferencesOfAnOpenedDrawingAreLoaded) {
    const QTemporaryDir folder;
    OdDbDatabase::createEmpty()->writeFile(hostqt::odString(folder.filePath("part.dxf")));
    const OdDbDatabasePtr site = OdDbDatabase::createEmpty();
    OdDbXRefManExt::addNewXRefDefBlock(site.get(), L"part.dxf", L"part", false);
    site->writeFile(hostqt::odString(folder.filePath("site.dxf")));
    for (Document* document : {documents.openFile(folder.filePath("site.dxf")),
                               documents.openCopy(folder.filePath("site.dxf"), "Copy")}) {
        const OdDbDatabasePtr opened = document->database();
        const auto blocks = odrxCast<OdDbBlockTable>(opened->getBlockTableId().safeOpenObject());
        const auto part = odrxCast<OdDbBlockTableRecord>(blocks->getAt(L"part", OdDb::kForRead));
        EXPECT_FALSE(part->xrefDatabase().isNull());
        EXPECT_FALSE(opened->isModified());
    }
}

TEST_F(DocumentsTest, WhatWasFoundInADrawingIsToldOnceWhenItIsOpened) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("careless.dxf");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("0\nSECTION\n2\nEntities\n0\nPOINT\n10\n1,5\n0\nENDSEC\n");
    file.close();
    const QStringList notices{"line 4: a section name in small letters",
                              "line 8: \"1,5\" is no number for the group code 10",
                              "line 11: the file has no end mark"};
    QStringList told;
    QObject::connect(&console, &Console::linesWritten, [&told](const QStringList& lines) { told << lines; });
    documents.openFile(path);
    EXPECT_EQ(told, notices);
    documents.openCopy(path, "Copy");
    EXPECT_EQ(told, notices + notices);
}

TEST_F(DocumentsTest, UnsavedDrawingIsUntitled) {
    documents.openEmpty();
    EXPECT_EQ(text(L"DWGNAME"), "Drawing1");
    EXPECT_EQ(text(L"DWGPREFIX"), "");
    EXPECT_EQ(number(L"DWGTITLED"), 0);
}

TEST_F(DocumentsTest, VariablesOfADrawingAreReadInItsContext) {
    const OdRxObjectPtr first = documents.openEmpty()->database();
    EXPECT_EQ(set(L"LTSCALE", 3), kVarOk);
    EXPECT_EQ(set(L"USERR1", 8), kVarOk);
    documents.openEmpty();
    EXPECT_EQ(number(L"LTSCALE"), 1);
    EXPECT_EQ(number(L"USERR1"), 0);
    EXPECT_EQ(number(L"LTSCALE", first.get()), 3);
    const OdRxObjectPtr context(new ReadContext(first));
    EXPECT_EQ(number(L"LTSCALE", context.get()), 3);
    EXPECT_EQ(number(L"USERR1", context.get()), 8);
}

TEST_F(DocumentsTest, VariableIsWrittenInTheContextGiven) {
    const OdRxObjectPtr first = documents.openEmpty()->database();
    documents.openEmpty();
    EXPECT_EQ(set(L"LTSCALE", 5, first.get()), kVarOk);
    EXPECT_EQ(number(L"LTSCALE"), 1);
    EXPECT_EQ(number(L"LTSCALE", first.get()), 5);
}

TEST_F(DocumentsTest, DatabaseSeesTheVariablesOfTheApplication) {
    const OdDbDatabasePtr database = documents.openEmpty()->database();
    EXPECT_EQ(database->getSysVar(L"pickstyle")->getInt8(), 1);
    EXPECT_EQ(set(L"PICKSTYLE", 0), kVarOk);
    EXPECT_EQ(database->getSysVar(L"PICKSTYLE")->getInt8(), 0);
    EXPECT_THROW(database->getSysVar(L"NOSUCH"), OdError);
}

TEST_F(DocumentsTest, DatabaseSeesTheLineTypeScale) {
    const OdDbDatabasePtr database = documents.openEmpty()->database();
    set(L"LTSCALE", 4);
    EXPECT_EQ(database->getSysVar(L"LTSCALE")->getDouble(), 4);
}

TEST_F(DocumentsTest, DrawingVariablesComeFromEachDrawingsOwnHeader) {
    const OdDbDatabasePtr first = documents.openEmpty()->database();
    set(L"LTSCALE", 7);
    const OdDbDatabasePtr second = documents.openEmpty()->database();
    EXPECT_EQ(first->getSysVar(L"LTSCALE")->getDouble(), 7);
    EXPECT_EQ(second->getSysVar(L"LTSCALE")->getDouble(), 1);
    EXPECT_NE(first->writeBytes().find("$LTSCALE\n 40\n7"), std::string::npos);
}

TEST_F(DocumentsTest, AVariableThatIsSetToItsOwnValueLeavesTheDrawingUnmodified) {
    const OdDbDatabasePtr database = documents.openEmpty()->database();
    EXPECT_EQ(set(L"LTSCALE", 1), kVarOk);
    EXPECT_FALSE(database->isModified());
    EXPECT_EQ(set(L"LTSCALE", 2), kVarOk);
    EXPECT_TRUE(database->isModified());
}

} // namespace
