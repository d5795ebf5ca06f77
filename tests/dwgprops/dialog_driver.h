// The drawing properties on the screen over a drawing of the test's own, and a user's hands on them.
#pragma once

#include "dwgprops/dwg_props.h"
#include "sdk/db/summary_info.h"
#include "tests/support/fixture_host.h"
#include "tests/support/poll.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

using Properties = std::vector<std::pair<QString, QString>>;

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

enum TabNumber { kGeneral, kSummary, kStatistics, kCustom, kHistory };

class OpenProperties : public dwgProps {
public:
    explicit OpenProperties(TabNumber tab = kGeneral) : dwgProps(nullptr) {
        connect(this, &QDialog::finished, this, [this](int how) { ended = how; });
        show();
        activateWindow();
        waitUntil([this] { return isActiveWindow() && isVisible(); });
        goTo(tab);
    }
    int ended = -1; // how it has ended; result() begins as a rejection
    template <class Control> Control* control(const char* name) const { return in<Control>(this, name); }
    QTabWidget* tabs() const { return control<QTabWidget>("tabs"); }
    void goTo(TabNumber tab) {
        tabs()->setCurrentIndex(tab);
        waitUntil([this] { return tabs()->currentWidget()->isVisible(); });
    }
    void click(const char* name) {
        QTest::mouseClick(control<QAbstractButton>(name), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QTableWidget* customTable() const { return in<QTableWidget>(control<QWidget>("customTab"), "table"); }
    QTableWidget* historyTable() const { return in<QTableWidget>(control<QWidget>("historyTab"), "table"); }
    QString text(const char* edit) const { return control<QLineEdit>(edit)->text(); }
    void type(const char* edit, const QString& words) {
        auto* const line = control<QLineEdit>(edit);
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, words);
    }

    template <class Control> static Control* in(const QWidget* parent, const char* name) {
        auto* const found = parent->findChild<Control*>(QLatin1String(name));
        if (!found)
            throw std::invalid_argument(name);
        return found;
    }
};

// What a table shows from row 0 to its last row with a name.
inline Properties shownProperties(const QTableWidget& table) {
    Properties shown;
    for (int row = 0; row < table.rowCount(); ++row)
        if (const auto* name = table.item(row, 0))
            shown.emplace_back(name->text(), table.item(row, 1)->text());
    return shown;
}

// How many dialogs are awaited that have not come up. None may be at the end of a test.
inline int& awaitedDialogs() {
    static int count = 0;
    return count;
}

// Runs `hands` on the next modal dialog of class `Dialog`, once its loop runs.
template <class Dialog> void onNextDialog(const std::function<void(Dialog&)>& hands) {
    ++awaitedDialogs();
    QTimer::singleShot(0, qApp, [hands] {
        --awaitedDialogs();
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << "no such dialog came up";
        hands(*dialog);
    });
}

class DrawingProperties : public testing::Test {
protected:
    DrawingProperties() { host.openDocument(drawing); }
    ~DrawingProperties() override {
        EXPECT_EQ(awaitedDialogs(), 0) << "a dialog that the test waits for did not come up";
        host.closeDocument();
    }

    void useDrawing(const OdDbDatabasePtr& other) {
        drawing = other;
        host.openDocument(drawing);
    }
    OdDbDatabaseSummaryInfoPtr summary() const { return oddbGetSummaryInfo(drawing.get()); }
    void setProperties(const Properties& properties) {
        const OdDbDatabaseSummaryInfoPtr info = summary();
        for (int i = 0; i < static_cast<int>(properties.size()); ++i)
            info->setCustomSummaryInfo(i, OdString(properties[i].first.toStdWString()),
                                       OdString(properties[i].second.toStdWString()));
        oddbPutSummaryInfo(info.get());
    }
    Properties properties() const {
        const OdDbDatabaseSummaryInfoPtr info = summary();
        Properties result;
        for (int i = 0; i < info->numCustomInfo(); ++i) {
            OdString key, value;
            info->getCustomSummaryInfo(i, key, value);
            result.emplace_back(QString::fromStdWString(key.wide()), QString::fromStdWString(value.wide()));
        }
        return result;
    }
    static Properties numbered(int count) {
        Properties result;
        for (int i = 0; i < count; ++i)
            result.emplace_back(QStringLiteral("name %1").arg(i), QStringLiteral("value %1").arg(i));
        return result;
    }

    FixtureHost host;
    OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
};
