// Where the controls of the attach dialog stand.
#include "xref/attach_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

// For who can't see which group a control stands in.
void nameAfterGroup(const QString& group, std::initializer_list<std::pair<QWidget*, QString>> controls) {
    for (const auto& [control, name] : controls)
        control->setAccessibleName(QStringLiteral("%1, %2").arg(group, name));
}

// The field with the unit beside it, when there is one to tell.
void addAngleRow(QFormLayout* rows, const QString& text, QLineEdit* edit, const QString& unit) {
    if (unit.isEmpty())
        return rows->addRow(text, edit);
    auto* const label = new QLabel(text);
    label->setBuddy(edit);
    auto* const unitLabel = new QLabel(unit);
    unitLabel->setObjectName(QStringLiteral("angleUnitLabel"));
    auto* const field = new QHBoxLayout;
    field->addWidget(edit);
    field->addWidget(unitLabel);
    rows->addRow(label, field);
}

} // namespace

void hostInsertExternalReferenceDialog::layOut() {
    auto* const columns = new QHBoxLayout;
    columns->addLayout(leftColumn());
    columns->addLayout(middleColumn());
    columns->addLayout(rightColumn());
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(fileRow());
    rows->addLayout(columns);
    rows->addLayout(buttonRow());
    orderTabs();
    nameForScreenReaders();
}

// Down each column, from the left to the right.
void hostInsertExternalReferenceDialog::orderTabs() const {
    QWidget* former = nameCombo;
    for (QWidget* next : std::initializer_list<QWidget*>{browseButton,
                                                         foundInEdit,
                                                         savedPathEdit,
                                                         attachmentRadio,
                                                         overlayRadio,
                                                         scaleOnScreenCheck,
                                                         scaleXEdit,
                                                         scaleYEdit,
                                                         scaleZEdit,
                                                         uniformScaleCheck,
                                                         insertionOnScreenCheck,
                                                         insertXEdit,
                                                         insertYEdit,
                                                         insertZEdit,
                                                         pathTypeCombo,
                                                         rotationOnScreenCheck,
                                                         angleEdit,
                                                         unitEdit,
                                                         factorEdit,
                                                         autoZoomCheck,
                                                         okButton,
                                                         cancelButton,
                                                         helpButton}) {
        QWidget::setTabOrder(former, next);
        former = next;
    }
}

void hostInsertExternalReferenceDialog::nameForScreenReaders() const {
    const QString onScreen = scaleOnScreenCheck->text();
    nameAfterGroup(tr("Scale"), {{scaleOnScreenCheck, onScreen},
                                 {scaleXEdit, QStringLiteral("X")},
                                 {scaleYEdit, QStringLiteral("Y")},
                                 {scaleZEdit, QStringLiteral("Z")}});
    nameAfterGroup(tr("Insertion Point"), {{insertionOnScreenCheck, onScreen},
                                           {insertXEdit, QStringLiteral("X")},
                                           {insertYEdit, QStringLiteral("Y")},
                                           {insertZEdit, QStringLiteral("Z")}});
    nameAfterGroup(tr("Rotation"), {{rotationOnScreenCheck, onScreen}});
    pathTypeCombo->setAccessibleName(tr("Path Type"));
    previewLabel->setAccessibleName(tr("Preview"));
}

QLayout* hostInsertExternalReferenceDialog::fileRow() const {
    auto* const labels = new QVBoxLayout;
    const std::pair<QString, QWidget*> labelled[] = {
        {tr("Name:"), nameCombo}, {tr("Found in:"), foundInEdit}, {tr("Saved path:"), savedPathEdit}};
    for (const auto& [text, control] : labelled) {
        auto* const label = new QLabel(text);
        label->setBuddy(control);
        labels->addWidget(label);
    }
    auto* const nameRow = new QHBoxLayout;
    nameRow->addWidget(nameCombo);
    nameRow->addWidget(browseButton);
    auto* const controls = new QVBoxLayout;
    controls->addLayout(nameRow);
    controls->addWidget(foundInEdit);
    controls->addWidget(savedPathEdit);
    auto* const row = new QHBoxLayout;
    row->addLayout(labels);
    row->addLayout(controls);
    return row;
}

QLayout* hostInsertExternalReferenceDialog::leftColumn() {
    auto* const preview = new QGroupBox(tr("Preview"), this);
    preview->setFixedSize(220, 250);
    (new QVBoxLayout(preview))->addWidget(previewLabel, 0, Qt::AlignCenter);
    auto* const types = new QGroupBox(tr("Reference Type"), this);
    types->setFixedWidth(220);
    auto* const radios = new QVBoxLayout(types);
    radios->addWidget(attachmentRadio);
    radios->addWidget(overlayRadio);
    auto* const column = new QVBoxLayout;
    column->addWidget(preview);
    column->addWidget(types);
    column->addStretch();
    return column;
}

QLayout* hostInsertExternalReferenceDialog::middleColumn() {
    auto* const scale = new QGroupBox(tr("Scale"), this);
    auto* const scaleRows = new QFormLayout(scale);
    scaleRows->addRow(scaleOnScreenCheck);
    scaleRows->addRow(tr("X:"), scaleXEdit);
    scaleRows->addRow(tr("Y:"), scaleYEdit);
    scaleRows->addRow(tr("Z:"), scaleZEdit);
    scaleRows->addRow(uniformScaleCheck);
    auto* const insertion = new QGroupBox(tr("Insertion Point"), this);
    auto* const insertionRows = new QFormLayout(insertion);
    insertionRows->addRow(insertionOnScreenCheck);
    insertionRows->addRow(tr("X:"), insertXEdit);
    insertionRows->addRow(tr("Y:"), insertYEdit);
    insertionRows->addRow(tr("Z:"), insertZEdit);
    auto* const column = new QVBoxLayout;
    column->addWidget(scale);
    column->addWidget(insertion);
    column->addStretch();
    return column;
}

QLayout* hostInsertExternalReferenceDialog::rightColumn() {
    auto* const pathType = new QGroupBox(tr("Path Type"), this);
    (new QVBoxLayout(pathType))->addWidget(pathTypeCombo);
    auto* const rotation = new QGroupBox(tr("Rotation"), this);
    auto* const rotationRows = new QFormLayout(rotation);
    rotationRows->addRow(rotationOnScreenCheck);
    addAngleRow(rotationRows, tr("Angle:"), angleEdit, angleUnit.name());
    auto* const unit = new QGroupBox(tr("Block Unit"), this);
    auto* const unitRows = new QFormLayout(unit);
    unitRows->addRow(tr("Unit:"), unitEdit);
    unitRows->addRow(tr("Factor:"), factorEdit);
    auto* const column = new QVBoxLayout;
    column->addWidget(pathType);
    column->addWidget(rotation);
    column->addWidget(unit);
    column->addWidget(autoZoomCheck);
    column->addStretch();
    return column;
}

QLayout* hostInsertExternalReferenceDialog::buttonRow() const {
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(0, 10, 0, 0);
    row->addStretch();
    for (QPushButton* button : {okButton, cancelButton, helpButton})
        row->addWidget(button);
    return row;
}
