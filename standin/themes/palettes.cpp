// The colours themselves, and how far two of them stand apart for a reader.
#include "standin/themes/palettes.h"

#include <algorithm>
#include <cmath>

namespace standin {

namespace {

struct ThemeColors {
    QRgb window, base, alternate, button, text, mutedText, disabledText, light, midlight, mid, dark, shadow;
    QRgb highlight, highlightedText, disabledHighlight, link, visitedLink, toolTip, toolTipText;
};

const ThemeColors darkColors = {0x2b2d30, 0x1f2124, 0x26282c, 0x3a3d42, 0xe3e5e8, 0x9aa0a8, 0x7d838b,
                                0x55595f, 0x484c52, 0x232528, 0x191b1d, 0x0b0c0d, 0x2f6fb5, 0xffffff,
                                0x3f454d, 0x6cb2ff, 0xc39bff, 0x3f434a, 0xf1f2f4};

// The highlight is pale here: widgets that stand on a selected row write in the plain text colour.
const ThemeColors lightColors = {0xf1f2f4, 0xffffff, 0xf5f7f9, 0xf7f8fa, 0x1c1f23, 0x666c75, 0x878d95,
                                 0xffffff, 0xf9fafb, 0xb9bec6, 0x9ea4ad, 0x6d727a, 0xb5d5f5, 0x1c1f23,
                                 0xc9d0d8, 0x0b5cad, 0x6a3fa8, 0xfffbe6, 0x23262a};

void setText(QPalette& palette, QPalette::ColorGroup group, const QColor& color) {
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(group, role, color);
}

QPalette paletteOf(const ThemeColors& colors) {
    QPalette palette;
    palette.setColor(QPalette::Window, colors.window);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.alternate);
    palette.setColor(QPalette::Button, colors.button);
    setText(palette, QPalette::All, colors.text);
    palette.setColor(QPalette::BrightText, QColor(0xff, 0x5c, 0x57));
    palette.setColor(QPalette::PlaceholderText, colors.mutedText);
    palette.setColor(QPalette::Light, colors.light);
    palette.setColor(QPalette::Midlight, colors.midlight);
    palette.setColor(QPalette::Mid, colors.mid);
    palette.setColor(QPalette::Dark, colors.dark);
    palette.setColor(QPalette::Shadow, colors.shadow);
    palette.setColor(QPalette::Highlight, colors.highlight);
    palette.setColor(QPalette::HighlightedText, colors.highlightedText);
    palette.setColor(QPalette::Link, colors.link);
    palette.setColor(QPalette::LinkVisited, colors.visitedLink);
    palette.setColor(QPalette::ToolTipBase, colors.toolTip);
    palette.setColor(QPalette::ToolTipText, colors.toolTipText);
    setText(palette, QPalette::Disabled, colors.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, colors.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Base, colors.window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colors.disabledHighlight);
    palette.setColor(QPalette::Disabled, QPalette::PlaceholderText, colors.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Link, colors.disabledText);
    return palette;
}

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

QPalette darkPalette() { return paletteOf(darkColors); }
QPalette lightPalette() { return paletteOf(lightColors); }

QColor errorColour(const QPalette& palette) {
    const bool isDark = palette.color(QPalette::Window).lightness() < 128;
    return isDark ? QColor(255, 138, 128) : QColor(176, 32, 32);
}

double contrastRatio(const QColor& a, const QColor& b) {
    const double first = luminance(a), second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

} // namespace standin
