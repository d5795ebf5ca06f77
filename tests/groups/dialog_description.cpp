#include "tests/groups/dialog_description.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMetaProperty>
#include <QTableWidget>

namespace {

const QObject* controlOf(const QDialog& dialog, const QString& name) {
    const QString header = name.section(QLatin1Char('.'), 1);
    if (name.isEmpty())
        return &dialog;
    if (header.isEmpty())
        return dialog.findChild<QWidget*>(name);
    const auto* table = dialog.findChild<QTableWidget*>(name.section(QLatin1Char('.'), 0, 0));
    return header == QLatin1String("horizontal") ? table->horizontalHeader() : table->verticalHeader();
}

QString policyText(const QSizePolicy& policy) {
    const auto kinds = QMetaEnum::fromType<QSizePolicy::Policy>();
    return QStringLiteral("%1,%2").arg(QLatin1String(kinds.valueToKey(policy.horizontalPolicy())),
                                       QLatin1String(kinds.valueToKey(policy.verticalPolicy())));
}

QString itemText(QLayoutItem& item);

QString partsText(QLayout& layout) {
    QStringList parts;
    for (int i = 0; i < layout.count(); ++i) {
        QString text = itemText(*layout.itemAt(i));
        int row = 0, column = 0, rows = 0, columns = 0;
        if (auto* grid = qobject_cast<QGridLayout*>(&layout)) {
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            text += QStringLiteral("@%1,%2").arg(row).arg(column);
            if (columns > 1)
                text += QStringLiteral("+%1").arg(columns);
        }
        parts << text;
    }
    return parts.join(QStringLiteral(", "));
}

QString textOfLayout(QLayout& layout) {
    const auto* box = qobject_cast<QBoxLayout*>(&layout);
    const QString kind = !box                                          ? QStringLiteral("grid")
                         : box->direction() == QBoxLayout::TopToBottom ? QStringLiteral("V")
                                                                       : QStringLiteral("H");
    return kind + QLatin1Char('(') + partsText(layout) + QLatin1Char(')');
}

QString itemText(QLayoutItem& item) {
    if (item.layout())
        return textOfLayout(*item.layout());
    if (!item.widget())
        return QStringLiteral("~");
    if (auto* box = qobject_cast<QGroupBox*>(item.widget()))
        return QStringLiteral("box '%1' %2").arg(box->title(), textOfLayout(*box->layout()));
    const auto* label = qobject_cast<QLabel*>(item.widget());
    return label && label->objectName().isEmpty() ? QLatin1Char('\'') + label->text() + QLatin1Char('\'')
                                                  : item.widget()->objectName();
}

} // namespace

QString valueOf(const QDialog& dialog, const DialogProperty& wanted) {
    const QObject* control = controlOf(dialog, QLatin1String(wanted.control));
    if (!control)
        return QStringLiteral("no control");
    const QMetaObject* meta = control->metaObject();
    const int index = meta->indexOfProperty(wanted.property);
    if (index < 0)
        return QStringLiteral("no property");
    const QMetaProperty property = meta->property(index);
    const QVariant value = property.read(control);
    if (property.isEnumType())
        return QLatin1String(property.enumerator().valueToKeys(value.toInt()));
    if (value.userType() == QMetaType::QSizePolicy)
        return policyText(value.value<QSizePolicy>());
    if (value.userType() == QMetaType::QSize)
        return QStringLiteral("%1x%2").arg(value.toSize().width()).arg(value.toSize().height());
    return value.userType() == QMetaType::QIcon && value.value<QIcon>().isNull() ? QStringLiteral("none")
                                                                                 : value.toString();
}

QString layoutText(const QDialog& dialog) { return textOfLayout(*dialog.layout()); }
