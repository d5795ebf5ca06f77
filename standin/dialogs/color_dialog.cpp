// Builds the colour dialog and answers the host's call for it.
#include "standin/dialogs/color_dialog.h"

#include "host/modal_runner.h"
#include "standin/registry.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace standin {

ColorDialog::ColorDialog(const QColor& start, OdCm::DialogTabs tabs, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("colorDialog"));
    setWindowTitle(tr("Select colour"));
    build(start, tabs);
    layOut();
    connectSignals();
}

ColorDialog::~ColorDialog() = default;

void ColorDialog::build(const QColor& start, OdCm::DialogTabs tabs) {
    tabWidget = new QTabWidget(this);
    tabWidget->setObjectName(QStringLiteral("tabWidget"));
    paletteGrid = new PaletteGrid(this);
    paletteGrid->setObjectName(QStringLiteral("paletteGrid"));
    trueColorPage = new QColorDialog(start, this);
    trueColorPage->setObjectName(QStringLiteral("trueColorPage"));
    trueColorPage->setWindowFlags(Qt::Widget);
    trueColorPage->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog);
    buttonBox = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttonBox->setObjectName(QStringLiteral("buttonBox"));
    const int nearest = OdCmEntityColor::lookUpACI(std::uint8_t(start.red()), std::uint8_t(start.green()),
                                                   std::uint8_t(start.blue()));
    const bool inPalette = PaletteGrid::colorOf(nearest).rgb() == start.rgb();
    paletteGrid->setCurrent(inPalette ? nearest : 0);
    if (tabs & OdCm::kACITab)
        tabWidget->addTab(paletteGrid, tr("Palette"));
    if (tabs & OdCm::kTrueColorTab)
        tabWidget->addTab(trueColorPage, tr("True colour"));
    tabWidget->setCurrentWidget(inPalette ? static_cast<QWidget*>(paletteGrid) : trueColorPage);
}

void ColorDialog::layOut() {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabWidget);
    layout->addWidget(buttonBox);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

// The page of any colour holds the answer; a swatch is put into it. Escape there ends the whole dialog.
void ColorDialog::connectSignals() {
    connect(paletteGrid, &PaletteGrid::picked, this,
            [this](int index) { trueColorPage->setCurrentColor(PaletteGrid::colorOf(index)); });
    connect(trueColorPage, &QDialog::rejected, this, &QDialog::reject);
    connect(buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QColor ColorDialog::color() const { return trueColorPage->currentColor(); }

} // namespace standin

int hostQtSetColorDialogTrueColor(OdCmColor& color, bool flag, const OdCmColor& previous,
                                  OdCm::DialogTabs tabs, QWidget* parent) {
    if (standin::registry().colorDialog)
        return standin::registry().colorDialog(color, flag, previous, tabs, parent);
    standin::ColorDialog dialog(host_qt_ui::toQColor(color), tabs, parent);
    if (!runModal(dialog))
        return 0;
    const QColor chosen = dialog.color();
    color.setRGB(std::uint8_t(chosen.red()), std::uint8_t(chosen.green()), std::uint8_t(chosen.blue()));
    return 1;
}

QColor host_qt_ui::toQColor(const OdCmColor& color) { return {color.red(), color.green(), color.blue()}; }

#include "moc_color_dialog.cpp"
