// The row with the names of one or several files, separated by semicolons.
#include "host/text.h"
#include "host/tool_tip.h"
#include "options/kinds/all_kinds.h"
#include "options/kinds/file_filters.h"
#include "options/kinds/text_kind.h"
#include "options/pages/rows/line_edit.h"
#include "options/store/option_values.h"

#include <QAction>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <memory>

namespace {

class EditFileKind final : public TextKind {
public:
    void build(OptionDialog& options, TreeItem* item, IParam* node, int id) const override;
};

// One row's line edit with what its two slots need.
struct FileRow {
    OptionDialog* options;
    LineEdit* edit;
    TreeItem* item;
    int id;
    QString* lastText; // the text that was accepted last
};

// The copy is never freed: one small text for each row and dialog is lost, which is meant.
QString* newLastText(const LineEdit* edit) { return new QString(edit->text()); }

// Every "/" becomes "\", also in the paths of a system that doesn't separate with it. That is meant.
void takeFiles(const FileRow& row, QString joined) {
    joined.replace(QLatin1Char('/'), QLatin1Char('\\'));
    showText(row.edit, joined);
    row.item->textValue = joined;
    *row.lastText = joined;
}

void pickFiles(const FileRow& row) {
    QString filter;
    QStringList extensions;
    QString start = fileDialogSetup(row.id, &filter, &extensions);
    if (start.isEmpty())
        start = QFileInfo(row.edit->text()).absoluteFilePath();
    const QStringList files =
        QFileDialog::getOpenFileNames(&row.options->asDialog(), QString(), start, filter);
    const QString joined = filterByExtension(files, extensions);
    if (joined.isEmpty())
        return;
    takeFiles(row, joined);
    focusPicked(row.edit, row.item);
}

// An emptied field is refused without a word, text of a wrong extension with the message. That is meant.
void acceptFiles(const FileRow& row) {
    QString filter;
    QStringList extensions;
    fileDialogSetup(row.id, &filter, &extensions);
    const QStringList files = row.edit->text().split(QLatin1Char(';'), Qt::SkipEmptyParts);
    const QString joined = filterByExtension(files, extensions);
    if (joined.isEmpty())
        row.edit->setText(*row.lastText);
    else
        takeFiles(row, joined);
}

void EditFileKind::build(OptionDialog& options, TreeItem* item, IParam* node, int id) const {
    const QString value = hostqt::qString(textOrDefault(node, options.parentNode(item)));
    auto owned = std::make_unique<LineEdit>(item, options.tree, value, nullptr);
    LineEdit* const edit = owned.get();
    nameEditor(edit, item);
    edit->setToolTip(hostqt::plainToolTip(value));
    item->textValue = value;
    item->buttonMask = kMaskModify;
    edit->setCursorPosition(0);
    auto* browse = new QAction;
    QObject::connect(edit, &QObject::destroyed, browse, [browse] { delete browse; });
    addBrowseAction(options, edit, browse);
    const FileRow row{&options, edit, item, id, newLastText(edit)};
    QObject::connect(browse, &QAction::triggered, edit, [row] { pickFiles(row); });
    QObject::connect(
        edit, &QLineEdit::editingFinished, edit, [row] { acceptFiles(row); }, Qt::DirectConnection);
    options.makeRow(1, item, owned.release(), false, 1);
}

} // namespace

const RowKind& editFileKind() {
    static const EditFileKind kind;
    return kind;
}
