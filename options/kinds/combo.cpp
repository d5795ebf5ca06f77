// The row with a list to choose from: choices of the option tree, or the host's list of save formats.
#include "host/app.h"
#include "host/qt_ui_core.h"
#include "host/text.h"
#include "options/kinds/all_kinds.h"
#include "options/kinds/editor_parts.h"
#include "options/kinds/row_kind.h"
#include "options/store/option_values.h"

#include <QDialog>
#include <QEvent>

using host_qt_ui_core::QHostComboBox;

namespace {

class ComboKind final : public RowKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int id) const override;
    void write(OptionDialog& options, TreeItem* item) const override;
    bool isWrittenDisabled() const override { return true; } // meant
    void modify(OptionDialog& options, TreeItem* item) const override {
        if (auto* const box = editorOf<QComboBox>(options, item))
            box->showPopup();
    }
};

// A combo box answers a change of its style by building the list that pops up, which costs as much as several
// rows. On its way into the row that is wasted: nobody has opened the list, and whoever does gets it in the
// style of that moment.
class StyleChangePassedOver : public QObject {
public:
    explicit StyleChangePassedOver(QWidget* watched) { watched->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::StyleChange; }
};

// A text of the data in the user's language; false, with `out` untouched, when it isn't given.
bool readTranslated(IParam* node, const char* name, QString* out) {
    CXStringW text;
    if (!readValue(node, name, &text))
        return false;
    *out = translated(text);
    return true;
}

void addChoice(QHostComboBox* box, IParam* choice, const QString& name, const QString& base) {
    QString text;
    readTranslated(choice, "Name", &text);
    box->addItem(text, name);
    QString tip = base;
    readTranslated(choice, "Description", &tip);
    box->setItemData(box->count() - 1, tip, Qt::ToolTipRole);
}

// A stored text that is no choice leaves the first entry shown, with the row's own description.
void listChoices(QHostComboBox* box, IParam* choices, const QString& value, TreeItem* item) {
    const QString base = item->description;
    int chosen = 0;
    for (const std::string& childName : childNames(choices)) {
        const Ref<IParam> choice = openChild(choices, childName.c_str());
        if (!choice)
            continue;
        const QString name = hostqt::qString(CXStringW(childName.c_str()));
        addChoice(box, choice.get(), name, base);
        if (value.compare(name, Qt::CaseInsensitive) != 0)
            continue;
        chosen = box->count() - 1;
        item->description = box->itemData(chosen, Qt::ToolTipRole).toString();
    }
    box->setCurrentIndex(chosen);
}

int storedFormatNumber(IParam* node, IParam* parent) {
    CKWVariant number;
    if (!readSaveFormatOption(node, parent, &number) && node)
        node->getValue("Default", &number);
    return number;
}

// The host's words for the save format `name`; false when it has none.
bool readFormatText(IParam* ioParams, const CXString& name, QString* out) {
    const Ref<IParam> format = openChild(ioParams, CXString("Formats\\") + name);
    return readTranslated(format.get(), "Description", out);
}

// The tool tip goes to the place of the format's number, not of its entry: after a format that is passed over
// the two are out of step. That is meant, and the entry of the current number is chosen in the same way.
void addFormat(QHostComboBox* box, const QString& text, int number, int current, TreeItem* item) {
    box->addItem(text);
    box->setItemData(number - 1, text, Qt::ToolTipRole);
    item->optionId = kIdSaveFormats;
    if (current != number)
        return;
    box->setCurrentIndex(number - 1);
    item->numberValue = number;
    item->description = text;
}

void listSaveFormats(QHostComboBox* box, int current, TreeItem* item) {
    const Ref<IIOParams> ioParams = appService<IIOParams>();
    const Ref<IParam> saved = openChild(ioParams.get(), "SaveProjects");
    CXString key, name;
    for (int number = 1;; ++number) {
        key.Format("Format%d", number);
        if (!readValue(saved.get(), key, &name))
            return;
        QString text;
        if (readFormatText(ioParams.get(), name, &text))
            addFormat(box, text, number, current, item);
    }
}

// The place in the list counts, also where it is out of step with the numbers of the save formats: meant.
void choose(OptionDialog& options, const QHostComboBox* box, TreeItem* item, int index) {
    item->numberValue = index + 1;
    item->description = box->itemData(index, Qt::ToolTipRole).toString();
    options.showDescription(item);
}

void ComboKind::build(OptionDialog& options, TreeItem* item, IParam* node, int id) const {
    item->buttonMask = kMaskModify;
    auto* box = new QHostComboBox(&options.asDialog());
    nameEditor(box, item);
    box->setFixedWidth(200);
    box->disableMouseWheel(true);
    const QString value = hostqt::qString(textOrDefault(node, options.parentNode(item)));
    if (const Ref<IParam> choices = openChild(node, "Choices"))
        listChoices(box, choices.get(), value, item);
    else if (id == kIdSaveFormats)
        listSaveFormats(box, storedFormatNumber(node, options.parentNode(item)), item);
    QObject::connect(
        box, QOverload<int>::of(&QComboBox::currentIndexChanged), &options.asDialog(),
        [&options, box, item](int index) { choose(options, box, item, index); }, Qt::DirectConnection);
    const StyleChangePassedOver passedOver(box);
    options.makeRow(1, item, box, false, 1);
}

void ComboKind::write(OptionDialog& options, TreeItem* item) const {
    const RowNodes row = nodesOf(options, item);
    if (item->optionId == kIdSaveFormats) {
        writeSaveFormatOption(row.node, row.parent, static_cast<int>(item->numberValue));
        return;
    }
    QPrefWidget* const widget = options.rowWidgets.value(item);
    if (const QComboBox* box = widget ? widget->findChild<QComboBox*>() : nullptr)
        writeStringOption(row.node, row.parent, hostqt::cxStringW(box->currentData(Qt::UserRole).toString()));
}

} // namespace

const RowKind& comboKind() {
    static const ComboKind kind;
    return kind;
}
