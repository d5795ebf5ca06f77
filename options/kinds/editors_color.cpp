// The colour swatches. The colour dialog opens on a double click, which the swatches measure by hand.
#include "options/window/preferences.h"

#include "host/color_dialog.h"
#include "options/kinds/editor_parts.h"
#include "options/store/option_values.h"

#include <QApplication>
#include <QTime>
#include <QToolButton>

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

// The low three bytes with red and blue swapped: 0x00RRGGBB to 0x00BBGGRR.
std::uint32_t swapped(std::uint32_t rgb) { return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | (rgb >> 16 & 0xFF); }

std::uint32_t storedPaletteColor(IParam* node, IParam* parent) {
    const int index = intOrDefault(node, parent);
    return swapped(OdCmEntityColor::lookUpRGB(static_cast<std::uint8_t>(index & 255)));
}

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

void runColorDialog(Preferences& preferences, QToolButton* button, TreeItem* item) {
    OdCmColor color;
    color.setRGB(redOf(item->colorValue), greenOf(item->colorValue), blueOf(item->colorValue));
    if (!hostQtSetColorDialogTrueColor(color, false, OdCmColor(), kAllTabs, &preferences))
        return;
    item->colorValue = fromDialog(color);
    showColor(button, item->colorValue);
}

} // namespace

void Preferences::buildColor(TreeItem* item, IParam* node, int nodeType) {
    item->colorValue = nodeType == kNodeAcColor ? storedPaletteColor(node, parentNode(item))
                                                : colorOrDefault(node, parentNode(item));
    item->buttonMask = kMaskModify;
    auto* button = new QToolButton;
    nameEditor(button, item);
    showColor(button, item->colorValue);
    connect(
        button, &QToolButton::clicked, this, [this, button, item] { pickColor(button, item); },
        Qt::DirectConnection);
    makeRow(0, item, button, true, 1);
}

void Preferences::pickColor(QToolButton* button, TreeItem* item) {
    if (isDoubleClick(button)) {
        tree->setCurrentItem(item);
        runColorDialog(*this, button, item);
        armedSwatch = nullptr;
        return;
    }
    arm(button);
}
