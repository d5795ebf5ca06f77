// The letters with Alt of a window, as its user sees them.
#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QKeySequence>
#include <QLabel>
#include <QTabBar>
#include <gtest/gtest.h>

inline bool isInView(const QWidget* widget) {
    const QWidget* const parent = widget->parentWidget();
    return parent && (qobject_cast<const QAbstractItemView*>(parent) || isInView(parent));
}

// What is shown at one time and can be reached by a letter; not the rows of a tree or table.
inline QStringList textsWithLetters(const QWidget& window) {
    QStringList texts;
    for (const auto* button : window.findChildren<QAbstractButton*>())
        if (button->isVisible() && !button->text().isEmpty() && !isInView(button))
            texts << button->text();
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy())
            texts << label->text();
    for (const auto* bar : window.findChildren<QTabBar*>())
        for (int i = 0; i < bar->count(); ++i)
            texts << bar->tabText(i);
    return texts;
}

// Each has a letter, and no two the same.
inline void expectLetters(const QWidget& window) {
    const std::string name = window.metaObject()->className();
    QStringList letters;
    for (const QString& text : textsWithLetters(window)) {
        const QKeySequence keys = QKeySequence::mnemonic(text);
        EXPECT_FALSE(keys.isEmpty()) << name << ": no letter in " << text.toStdString();
        EXPECT_FALSE(letters.contains(keys.toString()))
            << name << ": another has that of " << text.toStdString();
        letters << keys.toString();
    }
    EXPECT_GE(letters.size(), 1) << name << " shows nothing that a letter could reach";
}
