// Adding and changing papers with the dialog.
#include "standin/params/std_papers.h"

#include "host/modal_runner.h"
#include "host/qt_ui_core.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "standin/dialogs/paper_dialog.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace standin {

namespace {

QString translate(const char* text) { return QCoreApplication::translate("StdPapers", text); }

// Runs the dialog over `sheet`; true when the user accepted what is then in it.
bool edit(PaperSheet& sheet, const QString& title, QWidget* parent) {
    PaperDialog dialog(parent, sheet);
    dialog.setWindowTitle(title);
    if (runModal(dialog) != QDialog::Accepted)
        return false;
    sheet = dialog.sheet();
    return true;
}

std::string sectionName(int number) {
    CXString name;
    name.Format("Paper%08d", number);
    return name.c_str();
}

// A search leaves its marks in the text of a row; their colours are the module's own.
QString withoutMarks(QString text) {
    static const QRegularExpression mark(
        QStringLiteral("<span style=\"background-color: [^\"]*\"><font color=\"[^\"]*\">|</font></span>"));
    return text.remove(mark).trimmed();
}

Ref<IParam> findPaper(IParam& papers, const QString& rowText) {
    const QString plain = withoutMarks(rowText);
    Ref<IParam> unmarked;
    for (const std::string& name : childNames(&papers)) {
        const auto section = openChild(&papers, name.c_str());
        const QString text = paperRowText(section.get());
        if (text == rowText)
            return section;
        if (!unmarked && withoutMarks(text) == plain)
            unmarked = section;
    }
    return unmarked;
}

} // namespace

bool StdPapers::AddPaper(QWidget* parent) {
    PaperSheet sheet;
    if (!edit(sheet, translate("Add Paper"), parent))
        return false;
    int number = static_cast<int>(section().children().size()) + 1;
    while (section().children().find(sectionName(number)))
        ++number;
    const auto added = Ref<IParam>::take(createChild(sectionName(number).c_str()));
    if (added)
        writePaper(added.get(), sheet);
    return static_cast<bool>(added);
}

bool StdPapers::ModifyPaper(const wchar_t* rowText, QWidget* parent) {
    const QString text = hostqt::qString(rowText);
    const auto found = findPaper(*this, text);
    if (!found) {
        host_qt_ui_core::QHostMessageBox::critical(
            translate("Modify Paper"),
            translate("The paper \"%1\" is not among the standard papers any more.").arg(withoutMarks(text)),
            EV_MB_OK);
        return false;
    }
    PaperSheet sheet = readPaper(found.get());
    if (!edit(sheet, translate("Modify Paper"), parent))
        return false;
    writePaper(found.get(), sheet);
    return true;
}

} // namespace standin
