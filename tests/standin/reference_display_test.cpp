// What of attached references is shown: nested ones, overlays in their own drawing alone, missing ones by
// name.
#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/xref_man.h"
#include "standin/display/display_list.h"

#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>

using namespace standin;

namespace {

class ReferenceDisplay : public testing::Test {
protected:
    struct Attached {
        const char* name;
        bool overlay = false;
    };
    OdString pathOf(const QString& name) const {
        return folder.filePath(name + QStringLiteral(".dxf")).toStdWString();
    }
    static void addLine(const OdDbDatabasePtr& drawing, double length) {
        OdDbLinePtr line(new OdDbLine);
        line->setEndPoint({length, 0, 0});
        spaceOf(drawing)->appendOdDbEntity(line.get());
    }
    static OdDbBlockTableRecordPtr spaceOf(const OdDbDatabasePtr& drawing) {
        return odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    }
    // A drawing with a line of that length and the references, each inserted at the origin.
    void write(const char* name, double length, std::initializer_list<Attached> references = {}) const {
        const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
        addLine(drawing, length);
        for (const Attached& each : references)
            attach(drawing, each);
        drawing->writeFile(pathOf(QString::fromLatin1(name)));
    }
    OdDbBlockReferencePtr attach(const OdDbDatabasePtr& drawing, const Attached& attached) const {
        OdDbBlockReferencePtr reference(new OdDbBlockReference);
        reference->setBlockTableRecord(
            OdDbXRefManExt::addNewXRefDefBlock(drawing.get(), pathOf(QString::fromLatin1(attached.name)),
                                               OdString(attached.name), attached.overlay));
        spaceOf(drawing)->appendOdDbEntity(reference.get());
        return reference;
    }
    // Opens a drawing and tells the ends of the lines that are shown, and the names of what is missing.
    void show(const char* name) {
        const OdDbDatabasePtr drawing = OdDbDatabase::readFile(pathOf(QString::fromLatin1(name)));
        OdDbXRefMan::loadAll(drawing.get());
        collect(drawing);
    }
    void collect(const OdDbDatabasePtr& drawing) {
        DisplayList list(drawing);
        list.refresh();
        lengths.clear();
        missing.clear();
        for (const Item* item : list.within({-1e6, -1e6, 1e6, 1e6}))
            for (const Shape& shape : item->shapes)
                note(shape);
        std::sort(lengths.begin(), lengths.end());
    }
    void note(const Shape& shape) {
        if (shape.kind == Shape::Missing)
            missing << shape.text;
        else if (shape.kind == Shape::Path)
            lengths.push_back(shape.points.back().x());
    }

    QTemporaryDir folder;
    std::vector<double> lengths;
    QStringList missing;
};

using Lengths = std::vector<double>;

} // namespace

TEST_F(ReferenceDisplay, NestedAttachmentsAreShown) {
    write("deep", 3);
    write("middle", 2, {{"deep"}});
    write("top", 1, {{"middle"}});
    show("top");
    EXPECT_EQ(lengths, Lengths({1, 2, 3}));
    EXPECT_TRUE(missing.isEmpty());
}

TEST_F(ReferenceDisplay, OverlayIsShownInItsOwnDrawingAloneAndMissedNowhereElse) {
    write("deep", 3);
    write("middle", 2, {{"deep", true}});
    write("top", 1, {{"middle"}});
    show("middle");
    EXPECT_EQ(lengths, Lengths({2, 3}));
    show("top");
    EXPECT_EQ(lengths, Lengths({1, 2}));
    EXPECT_TRUE(missing.isEmpty());
}

TEST_F(ReferenceDisplay, MissingOnesAreShownByTheirNames) {
    write("middle", 2, {{"gone"}});
    write("top", 1, {{"middle"}, {"lost"}});
    show("top");
    EXPECT_EQ(lengths, Lengths({1, 2}));
    missing.sort();
    EXPECT_EQ(missing, QStringList({"gone", "lost"}));
}

TEST_F(ReferenceDisplay, DrawingsThatAttachEachOtherAreShownOnce) {
    write("b", 2);
    write("a", 1, {{"b"}});
    write("b", 2, {{"a"}});
    show("a");
    EXPECT_EQ(lengths, Lengths({1, 2}));
}

TEST_F(ReferenceDisplay, ReferenceIsShownAtItsPlaceScaleAndAngle) {
    write("part", 10);
    const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    const OdDbBlockReferencePtr reference = attach(drawing, {"part"});
    reference->setPosition({100, 50, 0});
    reference->setScaleFactors(OdGeScale3d(2));
    OdDbXRefMan::loadAll(drawing.get());
    collect(drawing);
    EXPECT_EQ(lengths, Lengths({120}));
}

TEST_F(ReferenceDisplay, LargeReferenceIsShownWhole) {
    const OdDbDatabasePtr large = OdDbDatabase::createEmpty();
    for (int i = 0; i < 30000; ++i)
        addLine(large, i + 1);
    large->writeFile(pathOf(QStringLiteral("large")));
    const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    attach(drawing, {"large"});
    OdDbXRefMan::loadAll(drawing.get());
    collect(drawing);
    EXPECT_EQ(lengths.size(), 30000u);
}
