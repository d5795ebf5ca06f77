// The paper dialog: errors are told at the field, lengths follow the unit.
#include "standin/dialogs/paper_dialog.h"

#include "standin/dialogs/length_edit.h"
#include "standin/themes/palettes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace standin {

namespace {

const double largestMillimetres = 100000;

template <class W> W* named(W* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

} // namespace

PaperDialog::PaperDialog(QWidget* parent, const PaperSheet& sheet) : QDialog(parent) {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    build();
    layOut();
    fill(sheet);
    connectAll();
}

void PaperDialog::build() {
    nameEdit = new QLineEdit(this);
    unitsCombo = named(new QComboBox(this), "unitsCombo");
    widthEdit = new LengthEdit(this);
    heightEdit = new LengthEdit(this);
    leftEdit = new LengthEdit(this);
    rightEdit = new LengthEdit(this);
    topEdit = new LengthEdit(this);
    bottomEdit = new LengthEdit(this);
    otherUnitLabel = named(new QLabel(this), "otherUnitLabel");
    usedCheck = named(new QCheckBox(tr("Offer this paper in lists"), this), "usedCheck");
    okButton = named(new QPushButton(tr("OK"), this), "okButton");
    cancelButton = named(new QPushButton(tr("Cancel"), this), "cancelButton");
    okButton->setDefault(true);
}

void PaperDialog::layOut() {
    auto* form = new QFormLayout(this);
    addField(form, tr("Name:"), nameEdit, "nameEdit", &PaperDialog::checkName);
    form->addRow(tr("Unit:"), unitsCombo);
    addField(form, tr("Width:"), widthEdit, "widthEdit", &PaperDialog::checkWidth);
    addField(form, tr("Height:"), heightEdit, "heightEdit", &PaperDialog::checkHeight);
    form->addRow(QString(), otherUnitLabel);
    addField(form, tr("Left margin:"), leftEdit, "leftEdit", &PaperDialog::checkLeft);
    addField(form, tr("Right margin:"), rightEdit, "rightEdit", &PaperDialog::checkRight);
    addField(form, tr("Top margin:"), topEdit, "topEdit", &PaperDialog::checkTop);
    addField(form, tr("Bottom margin:"), bottomEdit, "bottomEdit", &PaperDialog::checkBottom);
    form->addRow(usedCheck);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(okButton);
    buttons->addWidget(cancelButton);
    form->addRow(buttons);
}

// The error stands below its edit and takes no room while there is none.
void PaperDialog::addField(QFormLayout* form, const QString& label, QLineEdit* edit, const char* name,
                           QString (PaperDialog::*check)() const) {
    named(edit, name);
    auto* error = named(new QLabel(this), (QByteArray(name).replace("Edit", "Error")).constData());
    QPalette colours = error->palette();
    colours.setColor(QPalette::WindowText, errorColour(colours));
    error->setPalette(colours);
    error->setTextFormat(Qt::PlainText);
    error->setWordWrap(true);
    error->hide();
    form->addRow(label, edit);
    form->addRow(QString(), error);
    fields.push_back({edit, error, check, false});
}

void PaperDialog::fill(const PaperSheet& sheet) {
    unitsCombo->addItem(tr("Millimetres"), QStringLiteral("mm"));
    unitsCombo->addItem(tr("Inches"), QStringLiteral("in"));
    if (unitsCombo->findData(sheet.units) < 0)
        unitsCombo->addItem(sheet.units, sheet.units);
    unitsCombo->setCurrentIndex(unitsCombo->findData(sheet.units));
    shownUnits = sheet.units;
    nameEdit->setText(sheet.name);
    widthEdit->setLength(sheet.width);
    heightEdit->setLength(sheet.height);
    leftEdit->setLength(sheet.left);
    rightEdit->setLength(sheet.right);
    topEdit->setLength(sheet.top);
    bottomEdit->setLength(sheet.bottom);
    usedCheck->setChecked(sheet.used);
    // What came wrong from the store is shown at once.
    for (Field& field : fields)
        field.touched = !field.edit->text().isEmpty();
    showErrors();
    showOtherUnit();
}

void PaperDialog::connectAll() {
    for (std::size_t i = 0; i < fields.size(); ++i)
        connect(fields[i].edit, &QLineEdit::textEdited, this, [this, i] {
            fields[i].touched = true;
            showErrors();
            showOtherUnit();
        });
    connect(unitsCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &PaperDialog::convertUnits);
    connect(okButton, &QPushButton::clicked, this, &PaperDialog::acceptIfRight);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

QString PaperDialog::units() const { return unitsCombo->currentData().toString(); }

// Between millimetres and inches the lengths stay; to and from an unknown unit the numbers do.
void PaperDialog::convertUnits() {
    const double from = millimetresIn(shownUnits), to = millimetresIn(units());
    shownUnits = units();
    if (from > 0 && to > 0)
        for (LengthEdit* edit : {widthEdit, heightEdit, leftEdit, rightEdit, topEdit, bottomEdit})
            edit->convert(from / to);
    showErrors();
    showOtherUnit();
}

void PaperDialog::showErrors() {
    for (const Field& field : fields) {
        const QString error = field.touched ? (this->*field.check)() : QString();
        field.error->setText(error);
        field.error->setVisible(!error.isEmpty());
    }
}

void PaperDialog::showOtherUnit() {
    const double millimetres = millimetresIn(units());
    const auto width = widthEdit->length(), height = heightEdit->length();
    QString text;
    if (millimetres > 0 && width && height) {
        const bool inches = units() == QStringLiteral("in");
        const double factor = inches ? 25.4 : 1 / 25.4;
        text = QStringLiteral("= %1 x %2 %3")
                   .arg(QString::number(*width * factor, 'f', 2), QString::number(*height * factor, 'f', 2),
                        inches ? tr("mm") : tr("in"));
    }
    otherUnitLabel->setText(text);
}

void PaperDialog::acceptIfRight() {
    QLineEdit* firstWrong = nullptr;
    for (Field& field : fields) {
        field.touched = true;
        if (!firstWrong && !(this->*field.check)().isEmpty())
            firstWrong = field.edit;
    }
    showErrors();
    if (!firstWrong) {
        accept();
        return;
    }
    firstWrong->setFocus();
    firstWrong->selectAll();
}

QString PaperDialog::checkName() const {
    return nameEdit->text().trimmed().isEmpty() ? tr("Enter a name for the paper.") : QString();
}

QString PaperDialog::checkSize(const LengthEdit* edit) const {
    const auto length = edit->length();
    if (!length)
        return tr("Enter a number.");
    if (*length <= 0)
        return tr("The size must be greater than zero.");
    const double millimetres = millimetresIn(units());
    if (*length * (millimetres > 0 ? millimetres : 1) > largestMillimetres)
        return tr("A paper can't be larger than 100 metres.");
    return {};
}

QString PaperDialog::checkMargin(const LengthEdit* edit, const LengthEdit* opposite,
                                 const LengthEdit* size) const {
    const auto length = edit->length();
    if (!length)
        return tr("Enter a number.");
    if (*length < 0)
        return tr("A margin can't be less than zero.");
    if (checkSize(size).isEmpty() && *length + opposite->length().value_or(0) >= *size->length())
        return tr("The margins leave nothing to print on.");
    return {};
}

QString PaperDialog::checkWidth() const { return checkSize(widthEdit); }
QString PaperDialog::checkHeight() const { return checkSize(heightEdit); }
QString PaperDialog::checkLeft() const { return checkMargin(leftEdit, rightEdit, widthEdit); }
QString PaperDialog::checkRight() const { return checkMargin(rightEdit, leftEdit, widthEdit); }
QString PaperDialog::checkTop() const { return checkMargin(topEdit, bottomEdit, heightEdit); }
QString PaperDialog::checkBottom() const { return checkMargin(bottomEdit, topEdit, heightEdit); }

PaperSheet PaperDialog::sheet() const {
    PaperSheet entered;
    entered.name = nameEdit->text().trimmed();
    entered.units = units();
    entered.width = widthEdit->length().value_or(0);
    entered.height = heightEdit->length().value_or(0);
    entered.left = leftEdit->length().value_or(0);
    entered.right = rightEdit->length().value_or(0);
    entered.top = topEdit->length().value_or(0);
    entered.bottom = bottomEdit->length().value_or(0);
    entered.used = usedCheck->isChecked();
    return entered;
}

} // namespace standin

#include "moc_paper_dialog.cpp"
