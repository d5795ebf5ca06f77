// The workbench with a drawing of a few objects, and a mouse on its canvas.
#pragma once

#include "host/text.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "standin/documents/document_manager.h"
#include "standin/selection/editor_selection.h"
#include "tests/e2e/workbench_fixture.h"
#include "workbench/canvas/canvas.h"

// Three lines from (0,0), (0,20) and (0,40), each 100 to the right, and a circle of radius 10 about (200,20).
// The first line and the circle are in the group PAIR.
class DrawingFixture : public WorkbenchFixture {
protected:
    DrawingFixture() : path(root.filePath("lines.dxf")) {
        makeDrawing();
        // Not by OPEN, which would close the empty drawing of the start.
        static_cast<standin::DocumentManager*>(HostDocManager())->openFile(path);
        enter({"FILEDIA", "0"});
    }
    void makeDrawing() {
        const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
        const auto space =
            odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
        for (int i = 0; i < 3; ++i) {
            const OdDbLinePtr line(new OdDbLine);
            line->setStartPoint({0, i * 20.0, 0});
            line->setEndPoint({100, i * 20.0, 0});
            space->appendOdDbEntity(line.get());
        }
        const OdDbCirclePtr circle(new OdDbCircle);
        circle->setCenter({200, 20, 0});
        circle->setRadius(10);
        space->appendOdDbEntity(circle.get());
        const auto groups =
            odrxCast<OdDbDictionary>(drawing->getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
        const OdDbGroupPtr group(new OdDbGroup);
        groups->setAt(L"PAIR", group.get());
        group->setSelectable(true);
        group->append(space->entityIds()[0]);
        group->append(space->entityIds()[3]);
        drawing->writeFile(hostqt::odString(path));
    }
    standin::Document& document() {
        return *static_cast<standin::Document*>(HostDocManager()->currentDocument());
    }
    OdDbObjectIdArray entities() {
        const OdDbObjectId space = document().database()->getModelSpaceId();
        return odrxCast<OdDbBlockTableRecord>(space.safeOpenObject())->entityIds();
    }
    workbench::Canvas& canvas() { return bench->window()->drawingArea(); }
    QPoint pixel(double x, double y) { return canvas().view()->toPixel({x, y}).toPoint(); }
    void click(double x, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(&canvas(), Qt::LeftButton, modifiers, pixel(x, y));
    }
    void drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mousePress(&canvas(), button, modifiers, from);
        QMouseEvent move(QEvent::MouseMove, to, canvas().mapToGlobal(to), Qt::NoButton, button, modifiers);
        QApplication::sendEvent(&canvas(), &move);
        QTest::mouseRelease(&canvas(), button, modifiers, to);
    }
    // The numbers of the selected objects in the order of the drawing.
    std::vector<int> selected() {
        OdDbObjectIdArray ids;
        if (const auto set = document().selection()->getSelection(); !set.isNull())
            set->objectIds(ids);
        std::vector<int> numbers;
        const OdDbObjectIdArray all = entities();
        for (std::size_t i = 0; i < all.size(); ++i)
            if (std::find(ids.begin(), ids.end(), all[i]) != ids.end())
                numbers.push_back(static_cast<int>(i));
        return numbers;
    }
    void eraseFirstLine() {
        document().database()->startUndoRecord();
        entities()[0].safeOpenObject(OdDb::kForWrite)->erase();
    }
    QString path;
};
