// The definition of a reference: made, reused, named and taken back; the names and paths behind it.
#include "sdk/db/file_dependency.h"
#include "tests/xref/xref_fixture.h"
#include "xref/block_name.h"
#include "xref/create_xref_reference.h"
#include "xref/unit_ratio.h"
#include "xref/xref_paths.h"

namespace {

class CreateReference : public XRefTest {
protected:
    bool create(const QString& path, const QString& given = {}) {
        blockName = given;
        return createXRefReference(path, blockName, overlay, reference, hadDefinition, blockId);
    }
    QString blockName;
    bool overlay = false, hadDefinition = true;
    OdDbBlockReferencePtr reference;
    OdDbObjectId blockId;
};

template <class Call> OdResult codeOf(Call call) {
    try {
        call();
    } catch (const OdError& error) {
        return error.code();
    }
    return eOk;
}

} // namespace

TEST_F(CreateReference, MakesADefinitionAndAReferenceInNoSpace) {
    EXPECT_TRUE(create(write("part.dxf")));
    EXPECT_EQ(blockName, "part");
    EXPECT_FALSE(hadDefinition);
    EXPECT_EQ(blockId, block("part")->objectId());
    EXPECT_EQ(reference->blockTableRecord(), blockId);
    EXPECT_EQ(reference->database(), nullptr);
    EXPECT_TRUE(isNewDefinition(blockId));
    EXPECT_TRUE(inserted().empty());
}

TEST_F(CreateReference, EmptyPathLeavesTheOutsAlone) {
    EXPECT_FALSE(create(QString(), "part"));
    EXPECT_EQ(blockName, "part");
    EXPECT_TRUE(hadDefinition);
    EXPECT_TRUE(reference.isNull());
    EXPECT_TRUE(blockId.isNull());
}

TEST_F(CreateReference, WithoutADatabaseNothingIsMade) {
    host.closeDocument();
    EXPECT_FALSE(create("/x/part.dxf", "part"));
    EXPECT_TRUE(reference.isNull());
}

TEST_F(CreateReference, MissingFileThrowsOnlyWithoutAName) {
    EXPECT_EQ(codeOf([&] { create(inFolder("gone.dxf")); }), eCantOpenFile);
    EXPECT_TRUE(referenceNames().isEmpty());
    EXPECT_TRUE(create(inFolder("gone.dxf"), "gone"));
    EXPECT_EQ(referenceNames(), QStringList("gone"));
}

TEST_F(CreateReference, UnreadableFileThrowsTheReadersCodeOnlyWithoutAName) {
    const QString path = writeBytes("bad.dxf", "AC1032 and more that is no text drawing");
    EXPECT_NE(codeOf([&] { create(path); }), eOk);
    EXPECT_TRUE(referenceNames().isEmpty());
    EXPECT_EQ(codeOf([&] { create(path, "bad"); }), eOk);
}

TEST_F(CreateReference, StoredPathIsFoundIgnoringCase) {
    define("old", write("part.dxf"));
    EXPECT_TRUE(create(inFolder("PART.DXF"), "new"));
    EXPECT_EQ(blockName, "old");
    EXPECT_TRUE(hadDefinition);
    EXPECT_EQ(referenceNames(), QStringList("old"));
}

TEST_F(CreateReference, TwoFilesWhoseNamesDifferInCaseAreTwoReferences) {
    define("old", write("part.dxf"));
    EXPECT_TRUE(create(write("PART.dxf")));
    EXPECT_FALSE(hadDefinition);
    EXPECT_EQ(referenceNames(), QStringList({"old", "PART"}));
}

TEST_F(CreateReference, DrawingThatWasNeverWrittenIsInNoCircleWithAMissingReference) {
    const QString path = writeReferring("part.dxf", {"gone.dxf"});
    EXPECT_FALSE(QFile::exists(inFolder("site.dxf")));
    EXPECT_TRUE(create(path));
    EXPECT_EQ(referenceNames(), QStringList("part"));
}

TEST_F(CreateReference, CircleIsRefusedWithItsReason) {
    drawing->writeFile(odPath("site.dxf"));
    const QString path = writeReferring("part.dxf", {"site.dxf"});
    try {
        create(path);
        FAIL() << "the circle was not seen";
    } catch (const OdError& error) {
        EXPECT_EQ(error.code(), eSelfReference);
        EXPECT_EQ(error.description(), OdString(L"Object refers to itself"));
    }
    EXPECT_TRUE(referenceNames().isEmpty());
}

TEST_F(CreateReference, ResolvedPathIsFoundToo) {
    write("part.dxf");
    define("old", "part.dxf");
    OdDbXRefMan::load(block("old").get());
    EXPECT_TRUE(create(inFolder("part.dxf")));
    EXPECT_EQ(blockName, "old");
    EXPECT_TRUE(hadDefinition);
}

TEST_F(CreateReference, ReusedDefinitionOfTheSameCommandCountsAsNew) {
    create(write("part.dxf"), "part");
    hadDefinition = true;
    EXPECT_TRUE(create(inFolder("part.dxf")));
    EXPECT_FALSE(hadDefinition);
    EXPECT_EQ(referenceNames(), QStringList("part"));
}

TEST_F(CreateReference, TakenNameGetsANumber) {
    addPlainBlock(L"Part");
    EXPECT_TRUE(create(write("part.dxf")));
    EXPECT_EQ(blockName, "part_1");
    QDir(folder.path()).mkdir("other");
    EXPECT_TRUE(create(write("other/part.dxf"), "part"));
    EXPECT_EQ(blockName, "part_2");
}

TEST_F(CreateReference, OverlayIsPassedOn) {
    overlay = true;
    create(write("part.dxf"));
    EXPECT_TRUE(block("part")->isFromOverlayReference());
}

TEST_F(CreateReference, GivenNameIsMadeLegal) {
    EXPECT_TRUE(create(write("part.dxf"), "a\"b\nc"));
    EXPECT_EQ(blockName, "a_b_c");
    EXPECT_EQ(OdDbDatabase::readBytes(drawing->writeBytes())->writeBytes(), drawing->writeBytes());
}

TEST_F(CreateReference, FileWithoutABaseNameGivesNothing) {
    EXPECT_FALSE(create(write(".dxf")));
    EXPECT_TRUE(referenceNames().isEmpty());
}

TEST_F(CreateReference, ErasingTakesDefinitionAndReferenceBack) {
    create(write("part.dxf"));
    eraseNewXRef(reference);
    EXPECT_TRUE(referenceNames().isEmpty());
    EXPECT_TRUE(blockId.isErased());
}

TEST_F(CreateReference, ErasingTakesAReferenceWithoutItsDefinition) {
    create(write("part.dxf"));
    odrxCast<OdDbBlockTableRecord>(blockId.safeOpenObject(OdDb::kForWrite))->erase(true);
    odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite))
        ->appendOdDbEntity(reference.get());
    eraseNewXRef(reference);
    EXPECT_TRUE(reference->isErased());
    EXPECT_TRUE(inserted().empty());
}

TEST_F(CreateReference, ErasingLeavesADefinitionThatIsUsedElsewhere) {
    create(write("part.dxf"));
    const OdDbBlockReferencePtr other(new OdDbBlockReference);
    other->setBlockTableRecord(blockId);
    const auto space =
        odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    space->appendOdDbEntity(other.get());
    space->appendOdDbEntity(reference.get());
    ASSERT_EQ(inserted().size(), 2u);
    eraseNewXRef(reference);
    EXPECT_EQ(referenceNames(), QStringList("part"));
    ASSERT_EQ(inserted().size(), 1u);
    EXPECT_EQ(inserted()[0], other);
}

TEST_F(CreateReference, ThousandsOfReferencesAreNoHindrance) {
    for (int i = 0; i < 2000; ++i)
        define(QStringLiteral("r%1").arg(i), inFolder(QStringLiteral("r%1.dxf").arg(i)));
    EXPECT_TRUE(create(write("part.dxf")));
    EXPECT_EQ(blockName, "part");
    EXPECT_EQ(referenceNames().size(), 2001);
}

TEST_F(CreateReference, UnusedDefinitionsOfTheCommandAreErasedAndNoOthers) {
    define("before", write("before.dxf"));
    create(write("used.dxf"));
    odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite))
        ->appendOdDbEntity(reference.get());
    create(write("unused.dxf"));
    create(write("gone.dxf"));
    eraseNewXRef(reference);
    eraseUnusedDefinitions();
    EXPECT_EQ(referenceNames(), QStringList({"before", "used"}));
}

TEST(NewDefinitions, ListIsEmptyAtBothEndsOfItsScope) {
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    const OdDbObjectId id = database->getModelSpaceId();
    {
        const NewDefinitionsScope scope;
        EXPECT_FALSE(isNewDefinition(id));
        noteNewDefinition(id);
        EXPECT_TRUE(isNewDefinition(id));
    }
    EXPECT_FALSE(isNewDefinition(id));
    noteNewDefinition(id);
    const NewDefinitionsScope scope;
    EXPECT_FALSE(isNewDefinition(id));
}

TEST(BlockName, EndsAtTheFirstDot) {
    QString name;
    EXPECT_TRUE(blockNameFromFile("plan.v2.dwg", 0, name));
    EXPECT_EQ(name, "plan");
}

TEST(BlockName, IsTrimmed) {
    QString name;
    EXPECT_TRUE(blockNameFromFile("  plan  .dwg", 0, name));
    EXPECT_EQ(name, "plan");
}

TEST(BlockName, IllegalCharactersBecomeUnderscores) {
    EXPECT_EQ(legalBlockName("a<b>c/d\\e\"f:g;h?i*j|k,l=m`n\no\tp"), "a_b_c_d_e_f_g_h_i_j_k_l_m_n_o_p");
}

TEST(BlockName, IsAtMost255CharactersLong) {
    EXPECT_EQ(legalBlockName(QString(300, 'x')), QString(255, 'x'));
    EXPECT_EQ(legalBlockName(QString(255, 'x')), QString(255, 'x'));
    const QString clef = QString::fromUcs4(U"\U0001D11E");
    EXPECT_EQ(legalBlockName(QString(254, 'x') + clef), QString(254, 'x'));
}

TEST(BlockName, NothingLeftLeavesTheTargetAlone) {
    QString name = "before";
    EXPECT_FALSE(blockNameFromFile(".dwg", 0, name));
    EXPECT_FALSE(blockNameFromFile("   .dwg", 0, name));
    EXPECT_EQ(name, "before");
}

TEST_F(CreateReference, UniqueBlockNameIsTheFirstFreeNumber) {
    EXPECT_EQ(uniqueBlockName(blocks(), L"plan"), OdString(L"plan_1"));
    addPlainBlock(L"PLAN_1");
    addPlainBlock(L"plan_3");
    EXPECT_EQ(uniqueBlockName(blocks(), L"plan"), OdString(L"plan_2"));
    EXPECT_EQ(uniqueBlockName(blocks(), L"50%s"), OdString(L"50%s_1"));
}

TEST(UnitRatio, IsOneUnlessBothAreUnits) {
    EXPECT_EQ(unitRatio(OdDb::kUnitsUndefined, OdDb::kUnitsUndefined), 1.0);
    EXPECT_EQ(unitRatio(OdDb::kUnitsMeters, OdDb::kUnitsUndefined), 1.0);
    EXPECT_EQ(unitRatio(OdDb::kUnitsUndefined, OdDb::kUnitsMeters), 1.0);
    EXPECT_DOUBLE_EQ(unitRatio(OdDb::kUnitsMeters, OdDb::kUnitsMillimeters), 1000);
    EXPECT_DOUBLE_EQ(unitRatio(OdDb::kUnitsInches, OdDb::kUnitsMillimeters), 25.4);
}

TEST(UnitRatio, FactorWithinATenBillionthOfZeroGivesOne) {
    EXPECT_EQ(unitRatio(OdDb::kUnitsAngstroms, OdDb::kUnitsMeters), 1.0);
    EXPECT_DOUBLE_EQ(unitRatio(OdDb::kUnitsNanometers, OdDb::kUnitsMeters), 1e-9);
}

TEST_F(CreateReference, ResolvedPathWithoutAnEntryIsTheSavedOneAsItStands) {
    EXPECT_EQ(resolveXRefPath(odrxCast<OdDbBlockTableRecord>(define("a", "sub/a.dxf").safeOpenObject())),
              OdString(L"sub/a.dxf"));
}

TEST_F(CreateReference, ResolvedPathWithAnEntryIsTheFoundFolderAndName) {
    define("a", "sub\\a.dxf");
    OdFileDependencyInfo entry;
    entry.feature = L"Acad:XRef";
    entry.fullFileName = L"sub\\a.dxf";
    entry.fileName = L"a.dxf";
    drawing->fileDependencyManager()->createEntry(entry);
    EXPECT_EQ(resolveXRefPath(block("a")),
              hostqt::odString(QFileInfo(QStringLiteral("sub\\a.dxf")).absoluteFilePath()));
    entry.foundPath = L"/found/here/";
    drawing->fileDependencyManager()->createEntry(entry);
    EXPECT_EQ(resolveXRefPath(block("a")), OdString(L"/found/here/a.dxf"));
}

TEST_F(CreateReference, ResolvedPathOfALoadedReferenceWithoutAnEntryIsThatOfItsDrawing) {
    write("a.dxf");
    define("a", "a.dxf");
    OdDbXRefMan::load(block("a").get());
    drawing->fileDependencyManager()->eraseEntry(L"Acad:XRef", L"a.dxf");
    EXPECT_EQ(resolveXRefPath(block("a")), odPath("a.dxf"));
}

TEST_F(CreateReference, RelativePathNeedsBothEndsToExist) {
    const QString part = write("part.dxf");
    QString out = "before";
    EXPECT_FALSE(relativeFilePath("", part, out));
    EXPECT_FALSE(relativeFilePath(folder.path(), inFolder("gone.dxf"), out));
    EXPECT_EQ(out, "before");
    QDir(folder.path()).mkdir("sub");
    EXPECT_TRUE(relativeFilePath(inFolder("sub"), part, out));
    EXPECT_EQ(out, "../part.dxf");
}

TEST_F(CreateReference, SiblingIsAFileInTheFolderOfAPath) {
    const QString part = write("part.dxf");
    QString out = "before";
    EXPECT_FALSE(siblingFilePath(inFolder("gone.dxf"), "part.dxf", out));
    EXPECT_EQ(out, "before");
    EXPECT_TRUE(siblingFilePath(part, "part.dxf", out));
    EXPECT_EQ(out, part);
    EXPECT_FALSE(siblingFilePath(part, "gone.dxf", out));
    EXPECT_EQ(out, "");
}
