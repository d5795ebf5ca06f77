// Puts palette and style on the application, and on widgets whose style sheets would keep the old colours.
#include "standin/themes/style_manager.h"

#include "standin/registry.h"
#include "standin/themes/house_style.h"
#include "standin/themes/palettes.h"

#include <QApplication>
#include <QToolTip>
#include <QWidget>

namespace standin {

namespace {

// A widget with a style sheet of its own keeps the colours of the theme in which it was polished; setting the
// sheet anew makes it take the present ones.
void polishWidgetsWithSheets() {
    for (QWidget* widget : QApplication::allWidgets()) {
        const QString sheet = widget->styleSheet();
        if (sheet.isEmpty())
            continue;
        widget->setStyleSheet(QString());
        widget->setStyleSheet(sheet);
    }
}

} // namespace

StyleManager::StyleManager() : systemPalette(QApplication::palette()) {
    QApplication::setStyle(new HouseStyle);
    apply();
    registry().styles = this;
}

StyleManager::~StyleManager() {
    if (registry().styles == this)
        registry().styles = nullptr;
}

void StyleManager::setTheme(int number) {
    const int wanted = number == kThemeDark || number == kThemeLight ? number : int{kThemeSystem};
    if (wanted == theme)
        return;
    theme = wanted;
    apply();
    emit watcher.clicked();
}

void StyleManager::apply() {
    const QPalette palette = theme == kThemeDark    ? darkPalette()
                             : theme == kThemeLight ? lightPalette()
                                                    : systemPalette;
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    polishWidgetsWithSheets();
}

} // namespace standin
