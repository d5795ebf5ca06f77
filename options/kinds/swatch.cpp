// The swatches of the colour rows. The colour dialog opens on a double click, which they measure by hand.
#include "options/kinds/swatch.h"

#include "host/color_dialog.h"
#include "options/kinds/editor_parts.h"

#include <QApplication>
#include <QDialog>
#include <QTime>
#include <QToolButton>
#include <QTreeWidget>

namespace {

constexpr auto kAllTabs = static_cast<OdCm::DialogTabs>(3);

// The swatch of the last single click, of any dialog, and its time of day; the pointer is only ever compared.
QTime lastClick;
QToolButton* armedSwatch = nullptr;

// Qt advises against a clock that can be set, but a time of day is what all swatches share: meant.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
void arm(QToolButton* button) {
    lastClick.start();
    armedSwatch = button;
}

bool isDoubleClick(const QToolButton* button) {
    return armedSwatch == button && lastClick.elapsed() < QApplication::doubleClickInterval();
}
QT_WARNING_POP

std::uint8_t redOf(std::uint32_t color) { return static_cast<std::uint8_t>(color); }
std::uint8_t greenOf(std::uint32_t color) { return static_cast<std::uint8_t>(color >> 8); }
std::uint8_t blueOf(std::uint32_t color) { return static_cast<std::uint8_t>(color >> 16); }

void showColor(QToolButton* button, std::uint32_t color) {
    const QColor shown(redOf(color), greenOf(color), blueOf(color));
    button->setStyleSheet(QStringLiteral("background-color: ") + shown.name() +
                          QStringLiteral("; border: 1px solid black; min-width: 12px; min-height: 12px; "
                                         "max-width: 12px; max-height: 12px;"));
}

// The colour that the user picked; a high byte is dropped.
std::uint32_t fromDialog(const OdCmColor& picked) {
    const QColor color = host_qt_ui::toQColor(picked);
    return static_cast<std::uint32_t>(color.red() + (color.green() << 8) + (color.blue() << 16));
}

void runColorDialog(OptionDialog& options, QToolButton* button, TreeItem* item) {
    OdCmColor color;
    color.setRGB(redOf(item->colorValue), greenOf(item->colorValue), blueOf(item->colorValue));
    if (!hostQtSetColorDialogTrueColor(color, false, OdCmColor(), kAllTabs, &options.asDialog()))
        return;
    item->colorValue = fromDialog(color);
    showColor(button, item->colorValue);
}

void pickColor(OptionDialog& options, QToolButton* button, TreeItem* item) {
    if (isDoubleClick(button)) {
        options.tree->setCurrentItem(item);
        runColorDialog(options, button, item);
        armedSwatch = nullptr;
        return;
    }
    arm(button);
}

} // namespace

void buildSwatch(OptionDialog& options, TreeItem* item, std::uint32_t color) {
    item->colorValue = color;
    item->buttonMask = kMaskModify;
    auto* button = new QToolButton;
    nameEditor(button, item);
    showColor(button, item->colorValue);
    QObject::connect(
        button, &QToolButton::clicked, &options.asDialog(),
        [&options, button, item] { pickColor(options, button, item); }, Qt::DirectConnection);
    options.makeRow(0, item, button, true, 1);
}

// Two clicks pass the swatch's own test for a double click.
void SwatchKind::modify(OptionDialog& options, TreeItem* item) const {
    if (auto* const swatch = editorOf<QToolButton>(options, item)) {
        swatch->click();
        swatch->click();
    }
}
