// What a user needs who reads the window by other means than its picture, or with long texts: names and
// roles, focus that is seen, contrast, texts that are not cut.
#include "tests/e2e/dialog_ways.h"
#include "tests/support/letters.h"

#include "host/style.h"
#include "standin/documents/document_manager.h"
#include "standin/themes/palettes.h"
#include "standin/themes/style_manager.h"
#include "workbench/window/main_window.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScreen>
#include <QSpinBox>
#include <QTabBar>
#include <QToolBar>
#include <QTranslator>
#include <QWindow>

namespace {

// Every text a third longer, as in other languages.
class LongTexts : public QTranslator {
public:
    QString translate(const char*, const char* text, const char*, int) const override {
        return longer(QString::fromUtf8(text));
    }
    static QString longer(const QString& source) {
        const bool isWords =
            source.size() > 1 && source.at(0).isLetter() && !source.contains('%') && !source.contains('<');
        return isWords ? source + QString((source.size() - source.count('&') + 2) / 3, 'm') : QString();
    }
    bool isEmpty() const override { return false; }
};

bool isControl(const QWidget* widget) {
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget) ||
           qobject_cast<const QAbstractItemView*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
           qobject_cast<const QTextEdit*>(widget);
}

// The parts that a control is made of belong to it.
bool isPart(const QWidget* widget) {
    const QWidget* const parent = widget->parentWidget();
    return widget->objectName().startsWith("qt_") || qobject_cast<const QComboBox*>(parent) ||
           qobject_cast<const QAbstractSpinBox*>(parent) || qobject_cast<const QLineEdit*>(parent) ||
           qobject_cast<const QTabBar*>(parent) || qobject_cast<const QAbstractItemView*>(parent) ||
           (parent && parent->inherits("QMainWindow") && widget->inherits("QToolBarExtension")) ||
           widget->inherits("QToolBarExtension");
}

std::string described(const QWidget* widget) {
    return std::string(widget->metaObject()->className()) + " " + widget->objectName().toStdString();
}

std::string rectangle(const QRect& place) {
    return QString("%1,%2 %3x%4")
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height())
        .toStdString();
}

struct AccessibleTest : DialogWays {
    QString inShownWords(const QString& line) const override {
        const QString words = line.section(' ', 1);
        return line.section(' ', 0, 0) + ' ' +
               (words.endsWith("mm)") ? QString(words).replace("mm)", LongTexts::longer("mm") + ')')
                                      : LongTexts::longer(words));
    }
    static QList<QWidget*> controlsOf(QWidget& window) {
        QList<QWidget*> found;
        for (QWidget* const widget : window.findChildren<QWidget*>())
            if (widget->isVisible() && isControl(widget) && !isPart(widget))
                found << widget;
        return found;
    }
    // Each dialog with each of its tabs in front.
    void inEachWindow(const std::function<void(QWidget&)>& look) {
        look(*bench->window());
        for (const DialogWay& way : dialogWays())
            open(way, [&] {
                SCOPED_TRACE(way.title);
                QWidget* const shown = dialog(way);
                ASSERT_NE(shown, nullptr);
                lookAtTabs(*shown, look);
                workbench::cancelTopmost();
            });
    }
    static void lookAtTabs(QWidget& dialog, const std::function<void(QWidget&)>& look) {
        auto* const tabs = dialog.findChild<QTabBar*>();
        for (int i = 0; i < (tabs ? tabs->count() : 1); ++i) {
            if (tabs)
                tabs->setCurrentIndex(i);
            QCoreApplication::processEvents();
            look(dialog);
        }
    }
    // In the dark and in the light theme.
    static void inBothThemes(const std::function<void()>& look) {
        for (const int theme : {0, 1}) {
            static_cast<standin::StyleManager*>(hostGetQtStyleManager())->setTheme(theme);
            SCOPED_TRACE(theme == 0 ? "dark" : "light");
            look();
        }
    }
};

TEST_F(AccessibleTest, EveryControlHasANameAndARole) {
    inEachWindow([](QWidget& window) {
        for (QWidget* control : controlsOf(window)) {
            QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(control);
            ASSERT_NE(interface, nullptr) << described(control);
            EXPECT_NE(interface->role(), QAccessible::NoRole) << described(control);
            EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty())
                << described(control) << " has no name";
        }
    });
}

TEST_F(AccessibleTest, EveryLabelAndButtonHasALetterOfItsOwnInItsWindow) {
    for (const DialogWay& way : dialogWays())
        open(way, [&] {
            SCOPED_TRACE(way.title);
            ASSERT_NE(dialog(way), nullptr);
            lookAtTabs(*dialog(way), [](QWidget& window) { expectLetters(window); });
            workbench::cancelTopmost();
        });
}

TEST_F(AccessibleTest, EveryWindowLiesWithinTheScreenWithItsFrame) {
    inEachWindow([](QWidget& window) {
        const QRect free = window.screen()->availableGeometry();
        EXPECT_TRUE(waitUntil([&] { return free.contains(window.frameGeometry()); }))
            << described(&window) << " is at " << rectangle(window.frameGeometry()) << " on a screen of "
            << rectangle(free);
    });
}

TEST_F(AccessibleTest, BoxesShowNamesAsTheyStand) {
    inEachWindow([](QWidget& window) {
        if (const auto* const box = qobject_cast<QMessageBox*>(&window)) {
            EXPECT_EQ(box->textFormat(), Qt::PlainText) << box->text().toStdString();
        }
    });
}

// Pixels that stand out from the background by 3 to 1.
int standingOut(const QImage& picture, const QColor& background) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            count += standin::contrastRatio(picture.pixelColor(x, y), background) >= 3;
    return count;
}

// Where a style sheet makes it transparent, that of what lies below.
QColor backgroundOf(const QWidget& widget) {
    const QColor own = widget.palette().color(QPalette::Active, widget.backgroundRole());
    return own.alpha() == 0 && widget.parentWidget() ? backgroundOf(*widget.parentWidget()) : own;
}

TEST_F(AccessibleTest, TextsHaveTheContrastThatReadingNeeds) {
    inBothThemes([this] {
        inEachWindow([](QWidget& window) {
            QList<QWidget*> widgets = controlsOf(window);
            for (QLabel* label : window.findChildren<QLabel*>())
                if (label->isVisible())
                    widgets << label;
            for (QWidget* widget : widgets) {
                if (!widget->isEnabled())
                    continue; // what can't be used may be dim
                const QPalette colors = widget->palette();
                EXPECT_GE(standin::contrastRatio(colors.color(QPalette::Active, widget->foregroundRole()),
                                                 backgroundOf(*widget)),
                          4.5)
                    << described(widget);
                EXPECT_GE(standin::contrastRatio(colors.color(QPalette::Active, QPalette::HighlightedText),
                                                 colors.color(QPalette::Active, QPalette::Highlight)),
                          4.5)
                    << described(widget) << ", selected";
            }
        });
    });
}

TEST_F(AccessibleTest, IconsStandOutFromTheirButtons) {
    inBothThemes([this] {
        const auto* bar = part<QToolBar>("toolBar");
        const QColor background = bar->palette().color(QPalette::Active, QPalette::Window);
        for (QAction* action : bar->actions()) {
            QImage picture(32, 32, QImage::Format_RGB32);
            picture.fill(background);
            QPainter painter(&picture);
            action->icon().paint(&painter, picture.rect());
            painter.end();
            EXPECT_GE(standingOut(picture, background), 40) << action->text().toStdString();
        }
    });
}

TEST_F(AccessibleTest, TheFocusIsSeen) {
    inBothThemes([this] {
        inEachWindow([](QWidget& window) {
            window.activateWindow();
            ASSERT_TRUE(waitUntil([&] { return window.isActiveWindow(); }));
            window.setAttribute(Qt::WA_KeyboardFocusChange); // as after the first Tab
            for (QWidget* control : controlsOf(window)) {
                if (!(control->focusPolicy() & Qt::TabFocus) || !control->isEnabled())
                    continue;
                control->clearFocus();
                const QImage without = control->grab().toImage();
                control->setFocus(Qt::TabFocusReason);
                EXPECT_TRUE(control->grab().toImage() != without) << described(control);
            }
        });
    });
}

TEST_F(AccessibleTest, DialogsStandOnTheWindowThatTheyBelongTo) {
    inEachWindow([this](QWidget& window) {
        if (&window == bench->window())
            return;
        ASSERT_NE(window.windowHandle(), nullptr);
        EXPECT_NE(window.windowHandle()->transientParent(), nullptr) << described(&window);
    });
}

// What a control needs for its text and does not have.
int missingHeight(const QWidget* widget) {
    const auto* const label = qobject_cast<const QLabel*>(widget);
    const bool isShown = label ? !label->text().isEmpty() && !label->wordWrap()
                               : qobject_cast<const QAbstractButton*>(widget) ||
                                     qobject_cast<const QComboBox*>(widget) ||
                                     qobject_cast<const QLineEdit*>(widget);
    return isShown ? widget->fontMetrics().height() - widget->height() : 0;
}

int missingWidth(const QWidget* widget) {
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return label->wordWrap() || label->text().isEmpty()
                   ? 0
                   : label->minimumSizeHint().width() - label->width();
    if (qobject_cast<const QAbstractButton*>(widget))
        return widget->minimumSizeHint().width() - widget->width();
    return 0;
}

TEST_F(AccessibleTest, NoTextIsCutHoweverLong) {
    LongTexts longer;
    for (const bool isLong : {false, true}) {
        if (isLong) {
            QCoreApplication::installTranslator(&longer);
            restartWithDrawing();
        }
        inBothThemes([this] {
            inEachWindow([](QWidget& window) {
                for (QWidget* widget : window.findChildren<QWidget*>()) {
                    if (!widget->isVisible() || isPart(widget))
                        continue;
                    EXPECT_LE(missingHeight(widget), 0) << described(widget);
                    EXPECT_LE(missingWidth(widget), 0)
                        << described(widget) << ": " << widget->property("text").toString().toStdString();
                }
            });
        });
    }
    QCoreApplication::removeTranslator(&longer);
}

} // namespace
