// Reads the unit of a number and goes into its spin box.
#include "options/kinds/number_kind.h"

#include <QAbstractSpinBox>

QString unitOf(const QString& text) {
    return text.mid(text.indexOf(QLatin1Char('>')) + 1).replace(QStringLiteral("%%"), QStringLiteral("%"));
}

void NumberKind::modify(OptionDialog& options, TreeItem* item) const {
    startEditing(editorOf<QAbstractSpinBox>(options, item));
}
