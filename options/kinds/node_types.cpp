// The table from the `Type` of a node to the number of its row kind.
#include "options/kinds/node_types.h"

#include "options/store/tree_item.h"

#include <QHash>

int nodeTypeNumber(const QString& type) {
    static const QHash<QString, int> numbers{
        {"Check", kNodeCheck},
        {"check", kNodeCheck},
        {"Radio", kNodeRadio},
        {"RadioCursor", kNodeRadioCursor},
        {"Color", kNodeColor},
        {"AcColor", kNodeAcColor},
        {"EditInt", kNodeEditInt},
        {"EditReal", kNodeEditReal},
        {"EditFile", kNodeEditFile},
        {"Edit", kNodeEdit},
        {"EditMultiFile", kNodeEditMultiFile},
        {"EditDir", kNodeEditDir},
        {"Combo", kNodeCombo},
    };
    return numbers.value(type, kNodeSection);
}
