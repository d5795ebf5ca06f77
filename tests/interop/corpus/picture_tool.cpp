// Tells where each object of drawings is on the screen: picture_tool FILES writes a line of JSON for each
// file, with the box of each object of its model space, or null for one that is not shown.
#include "sdk/db/block_table.h"
#include "sdk/db/database.h"
#include "standin/display/item_builder.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <cstdio>

namespace {

QJsonValue boxOf(const standin::Item& item) {
    if (item.shapes.empty())
        return QJsonValue::Null;
    return QJsonArray{item.box.left, item.box.bottom, item.box.right, item.box.top};
}

void tell(const OdString& file) {
    const OdDbDatabasePtr drawing = OdDbDatabase::readFile(file);
    standin::ItemBuilder builder;
    QJsonArray boxes;
    for (const OdDbObjectId& id :
         odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject())->entityIds())
        boxes.append(boxOf(builder.build(id)));
    std::puts(QJsonDocument(boxes).toJson(QJsonDocument::Compact).constData());
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    try {
        for (int i = 1; i < argc; ++i)
            tell(OdString(argv[i], CP_UTF8));
    } catch (const OdError& error) {
        std::fprintf(stderr, "%s\n", error.description().toUtf8().c_str());
        return 1;
    }
    return 0;
}
