// The controls of a window in two kinds: what is always shown, and what stands on one page of a tab widget.
#include "host/mnemonics.h"

#include "host/dialog_habits.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QKeySequence>
#include <QLabel>
#include <QSet>
#include <QTabWidget>
#include <algorithm>
#include <functional>
#include <vector>

namespace {

using Letters = QSet<QChar>;

struct Bearer {
    QString text;
    std::function<void(const QString& text)> show;
};

struct Found {
    std::vector<Bearer> bearers;
    std::vector<QWidget*> pages;
};

void addTabs(QTabWidget* tabs, Found& found) {
    for (int i = 0; i < tabs->count(); ++i) {
        found.bearers.push_back(
            {tabs->tabText(i), [tabs, i](const QString& text) { tabs->setTabText(i, text); }});
        found.pages.push_back(tabs->widget(i));
    }
}

void addBearer(QWidget* widget, Found& found) {
    if (auto* const button = qobject_cast<QAbstractButton*>(widget))
        found.bearers.push_back({button->text(), [button](const QString& text) { button->setText(text); }});
    auto* const label = qobject_cast<QLabel*>(widget);
    if (label && label->buddy())
        found.bearers.push_back({label->text(), [label](const QString& text) { label->setText(text); }});
}

// The rows of a view are walked by the arrows, and may be more than there are letters.
bool isLeftOut(const QWidget& widget) {
    return widget.isWindow() || qobject_cast<const QAbstractItemView*>(&widget);
}

void collect(QWidget* parent, Found& found) {
    for (QWidget* child : parent->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (isLeftOut(*child))
            continue;
        if (auto* const tabs = qobject_cast<QTabWidget*>(child)) {
            addTabs(tabs, found);
            continue;
        }
        addBearer(child, found);
        collect(child, found);
    }
}

QChar letterOf(const QString& text) {
    const QKeySequence keys = QKeySequence::mnemonic(text);
    return keys.isEmpty() ? QChar() : QChar(keys[0] & ~int(Qt::KeyboardModifierMask)).toUpper();
}

// Where the first free letter stands, beginnings of words before the rest; -1 when there is none.
int freePlace(const QString& text, const Letters& used) {
    for (const bool onlyBeginnings : {true, false})
        for (int i = 0; i < text.size(); ++i) {
            const bool begins = i == 0 || !text[i - 1].isLetterOrNumber();
            if (text[i].isLetterOrNumber() && begins >= onlyBeginnings && !used.contains(text[i].toUpper()))
                return i;
        }
    return -1;
}

int lettersIn(const QString& text) {
    Letters letters;
    for (const QChar c : text)
        if (c.isLetterOrNumber())
            letters.insert(c.toUpper());
    return letters.size();
}

// A digit in brackets before the colon, where each letter of the text is taken.
QString withDigit(const QString& text, Letters& used) {
    for (char digit = '1'; digit <= '9'; ++digit)
        if (!used.contains(QLatin1Char(digit))) {
            used.insert(QLatin1Char(digit));
            const int end = text.endsWith(QLatin1Char(':')) ? text.size() - 1 : text.size();
            return text.left(end) + QStringLiteral(" (&%1)").arg(digit) + text.mid(end);
        }
    return text;
}

QString withLetter(QString text, Letters& used) {
    text.remove(QLatin1Char('&'));
    const int place = freePlace(text, used);
    if (place < 0)
        return withDigit(text, used);
    used.insert(text[place].toUpper());
    return text.insert(place, QLatin1Char('&'));
}

// What stands already goes first, so that a new letter takes none of them away; then those with the least
// choice.
Letters assign(const std::vector<Bearer>& bearers, Letters used) {
    std::vector<const Bearer*> without;
    for (const Bearer& bearer : bearers) {
        const QChar letter = letterOf(bearer.text);
        if (lettersIn(bearer.text) == 0 || bearer.text.contains(QLatin1String("&&")))
            continue;
        if (letter.isNull() || used.contains(letter))
            without.push_back(&bearer);
        else
            used.insert(letter);
    }
    std::stable_sort(without.begin(), without.end(), [](const Bearer* left, const Bearer* right) {
        return lettersIn(left->text) < lettersIn(right->text);
    });
    for (const Bearer* bearer : without)
        bearer->show(withLetter(bearer->text, used));
    return used;
}

} // namespace

void giveMnemonics(QWidget& window) {
    if (!hasHabit(DialogHabit::Mnemonics))
        return;
    Found always;
    collect(&window, always);
    const Letters used = assign(always.bearers, {});
    for (QWidget* page : always.pages) {
        Found onPage;
        collect(page, onPage);
        assign(onPage.bearers, used);
    }
}
