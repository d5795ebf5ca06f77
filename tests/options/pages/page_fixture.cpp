#include "tests/options/pages/page_fixture.h"

#include "host/text.h"
#include "host/typed_reads.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/pref_widget.h"
#include "options/pages/search/searching_line_edit.h"
#include "tests/support/poll.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QTimer>
#include <QTreeWidgetItemIterator>

Ref<IParam> sectionOf(IParam& parent, const char* path) {
    return Ref<IParam>::take(parent.openSection(path, 1));
}

CKWVariant valueOf(IParam& parent, const char* path, const char* name) {
    CKWVariant value;
    if (const Ref<IParam> section = openChild(&parent, path))
        section->getValue(name, &value);
    return value;
}

QString textOf(const CKWVariant& value) {
    if (value.vt == kVtString)
        return QString::fromLocal8Bit(static_cast<char*>(value));
    return hostqt::qString(static_cast<wchar_t*>(value));
}

QStringList childrenOf(IParam& parent) {
    QStringList names;
    for (const std::string& name : childNames(&parent))
        names << QString::fromStdString(name);
    return names;
}

void clickOn(const QWidget& dialog, const char* button) {
    QTest::mouseClick(named<QAbstractButton>(dialog, button), Qt::LeftButton);
}

void typeInto(const QWidget& dialog, const char* edit, const QString& text) {
    auto* line = named<QLineEdit>(dialog, edit);
    line->selectAll();
    if (text.isEmpty())
        QTest::keyClick(line, Qt::Key_Delete);
    else
        QTest::keyClicks(line, text);
}

PageFixture::PageFixture(int pageId) : id(pageId) {}
PageFixture::~PageFixture() = default;

Preferences& PageFixture::open() {
    const Ref<IParam> node = sectionOf(host.config(), "PrefTree\\Page");
    setValue(node, "Name", L"Page");
    setValue(node, "Description", L"About the page");
    setValue(node, "ID", id);
    preferences = std::make_unique<Preferences>(nullptr);
    preferences->show();
    page()->setExpanded(true);
    EXPECT_TRUE(waitUntil([this] { return preferences->isActiveWindow(); }));
    return *preferences;
}

TreeItem* PageFixture::page() const {
    return static_cast<TreeItem*>(preferences->tree->topLevelItem(0)->child(0));
}

ClickableLabel* PageFixture::labelOf(TreeItem* item) const {
    return preferences->rowWidgets.value(item)->label();
}

QString PageFixture::shown(TreeItem* item) const { return labelOf(item)->text(); }

TreeItem* PageFixture::row(const QString& text) const {
    for (QTreeWidgetItemIterator it(page()); *it; ++it) {
        auto* item = static_cast<TreeItem*>(*it);
        QString label = shown(item);
        preferences->searchEdit->removeHighlight(label);
        if (item != page() && label == text)
            return item;
    }
    ADD_FAILURE() << "no row " << text.toStdString();
    return nullptr;
}

QStringList PageFixture::rowsBelow(TreeItem* item) const {
    QStringList texts;
    for (int i = 0; i < item->childCount(); ++i)
        texts << shown(item->childItem(i));
    return texts;
}

QCheckBox* PageFixture::checkBoxOf(TreeItem* item) const {
    return preferences->rowWidgets.value(item)->findChild<QCheckBox*>();
}

bool PageFixture::checkBoxStandsBeforeLabel(TreeItem* item) const {
    return checkBoxOf(item)->geometry().right() < labelOf(item)->geometry().left();
}

void PageFixture::select(TreeItem* item) {
    QTreeWidget* tree = preferences->tree;
    if (item->parent())
        item->parent()->setExpanded(true);
    tree->scrollToItem(item);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(item).center());
}

void PageFixture::doubleClick(TreeItem* item) {
    select(item);
    QTest::mouseDClick(labelOf(item), Qt::LeftButton);
}

void PageFixture::searchFor(const QString& text) {
    typeInto(*preferences, "searchEdit", text);
    QTest::keyClick(preferences->searchEdit, Qt::Key_Return);
}

// Runs `act` on each tick until it says that it is done.
void PageFixture::poll(std::function<bool()> act) {
    auto* timer = new QTimer(preferences.get());
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act = std::move(act)] {
        const QPointer<QTimer> alive(timer);
        if (act() && alive) {
            timer->stop();
            timer->deleteLater();
        }
    });
    timer->start(5);
}

void PageFixture::whenDialogOpens(std::function<void(QDialog&)> act) {
    auto busy = std::make_shared<bool>(false);
    poll([this, busy, act = std::move(act)] {
        const QPointer<QDialog> dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || dialog == preferences.get() || *busy)
            return false;
        *busy = true;
        ++dialogsOpened;
        act(*dialog);
        if (dialog && dialog->isVisible()) {
            ADD_FAILURE() << "the dialog is still open";
            dialog->reject();
        }
        return true;
    });
}

bool PageFixture::chooseInMenu(TreeItem* item, const QString& entry) {
    select(item);
    bool enabled = false;
    poll([&enabled, entry] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return false;
        for (QAction* action : menu->actions())
            if (action->text() == entry) {
                enabled = action->isEnabled();
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            }
        menu->close();
        return true;
    });
    ClickableLabel* label = labelOf(item);
    QContextMenuEvent event(QContextMenuEvent::Mouse, label->rect().center(),
                            label->mapToGlobal(label->rect().center()));
    QApplication::sendEvent(label, &event);
    return enabled;
}
