// A column of entries, each of which takes the page away.
#include "workbench/window/start_page.h"

#include "host/tool_tip.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace workbench {

StartPage::StartPage(const QStringList& recent, const QStringList& samples, QWidget* parent)
    : QFrame(parent) {
    setObjectName(QStringLiteral("startPage"));
    setAccessibleName(tr("Start page"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    buildColumn();
    addHeading(tr("Start"));
    addCommands();
    addDrawings(tr("Recent drawings"), QStringLiteral("recent"), recent);
    addDrawings(tr("Samples"), QStringLiteral("sample"), samples);
    parent->installEventFilter(this);
    moveToMiddle();
}

StartPage::~StartPage() = default;

void StartPage::buildColumn() {
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    body = new QWidget;
    column = new QVBoxLayout(body);
    column->setContentsMargins(20, 16, 20, 16);
    column->setSpacing(4);
    area->setWidget(body);
    auto* around = new QVBoxLayout(this);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(area);
}

void StartPage::addHeading(const QString& text) {
    auto* label = new QLabel(text, body);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    column->addSpacing(column->count() ? 10 : 0);
    column->addWidget(label);
}

QPushButton* StartPage::addEntry(const QString& name, const QString& text) {
    auto* button = new QPushButton(text, body);
    button->setObjectName(name);
    button->setFlat(true);
    button->setStyleSheet(QStringLiteral("text-align: left; padding: 4px 10px"));
    column->addWidget(button);
    return button;
}

void StartPage::addCommands() {
    const std::pair<const char*, QString> entries[] = {{"NEW", tr("&New drawing")},
                                                       {"OPEN", tr("&Open a drawing...")},
                                                       {"QPREF", tr("O&ptions...")},
                                                       {"GUIDE", tr("&User guide")}};
    for (const auto& [command, text] : entries)
        connect(addEntry(QString::fromLatin1(command).toLower() + QStringLiteral("Button"), text),
                &QPushButton::clicked, this,
                [this, command = QString::fromLatin1(command)] { emit commandChosen(command); });
}

void StartPage::addDrawings(const QString& heading, const QString& name, const QStringList& paths) {
    if (paths.isEmpty())
        return;
    addHeading(heading);
    for (int i = 0; i < paths.size(); ++i) {
        const QString path = paths[i];
        const QString shown = QFileInfo(path).fileName().replace(QLatin1Char('&'), QLatin1String("&&"));
        QPushButton* button = addEntry(QStringLiteral("%1Button%2").arg(name).arg(i), shown);
        button->setToolTip(hostqt::plainToolTip(QDir::toNativeSeparators(path)));
        connect(button, &QPushButton::clicked, this, [this, path] { emit drawingChosen(path); });
    }
}

void StartPage::moveToMiddle() {
    const QRect room = parentWidget()->rect();
    const QSize frame(2 * frameWidth(), 2 * frameWidth());
    QSize wanted = body->sizeHint() + frame;
    if (wanted.height() > room.height())
        wanted.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QRect place(QPoint(), wanted.boundedTo(room.size()));
    place.moveCenter(room.center());
    setGeometry(place);
}

bool StartPage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        moveToMiddle();
    else if (event->type() == QEvent::MouseButtonPress)
        hide();
    return QFrame::eventFilter(watched, event);
}

// Keys go on where they went before, to the command line.
void StartPage::hideEvent(QHideEvent* event) {
    parentWidget()->setFocus();
    QFrame::hideEvent(event);
}

void StartPage::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        return hide();
    QFrame::keyPressEvent(event);
}

} // namespace workbench

#include "moc_start_page.cpp"
