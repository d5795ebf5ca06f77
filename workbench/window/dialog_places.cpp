// Places a dialog while it is being shown, which is before it is seen.
#include "workbench/window/dialog_places.h"

#include "host/app.h"
#include "host/typed_reads.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWindow>
#include <optional>

namespace workbench {

namespace {

const QMargins frameRoom(8, 32, 8, 8); // what a window manager puts around a window
const char* const sectionName = "Dialogs";
const char* const placeProperty = "placeOfDialog";

// All that the dialog holds goes into an area that scrolls.
void makeScroll(QWidget& dialog) {
    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("scrollArea"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    auto* body = new QWidget;
    body->setLayout(dialog.layout());
    area->setWidget(body);
    auto* around = new QVBoxLayout(&dialog);
    around->setContentsMargins(0, 0, 0, 0);
    around->setSizeConstraint(QLayout::SetNoConstraint);
    around->addWidget(area);
    QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget*, QWidget* now) {
        if (now && area->isAncestorOf(now))
            area->ensureWidgetVisible(now);
    });
}

bool isDialog(const QWidget& widget) { return qobject_cast<const QDialog*>(&widget) != nullptr; }

bool hasSizeOfItsOwn(const QWidget* dialog) {
    return qobject_cast<const QMessageBox*>(dialog) || qobject_cast<const QProgressDialog*>(dialog) ||
           qobject_cast<const QColorDialog*>(dialog);
}

QByteArray keyOf(const QWidget& dialog) {
    const QString name = dialog.objectName();
    return name.isEmpty() ? QByteArray(dialog.metaObject()->className()) : name.toUtf8();
}

// How a dialog was left: as "800x600", or as "800x600 at 40,30" where its user has put it somewhere.
struct Left {
    QSize size;
    std::optional<QPoint> corner;
};

std::optional<Left> remembered(const QWidget& dialog) {
    static const QRegularExpression form("^(\\d+)x(\\d+)(?: at (-?\\d+),(-?\\d+))?$");
    const Ref<IParam> section = openChild(appService<IProfile>().get(), sectionName);
    CXString text;
    if (!readValue(section.get(), keyOf(dialog).constData(), &text))
        return std::nullopt;
    const auto found = form.match(QString::fromLatin1(text.c_str()));
    if (!found.hasMatch())
        return std::nullopt;
    const auto number = [&](int group) { return found.captured(group).toInt(); };
    const bool isPut = !found.captured(3).isEmpty();
    return Left{{number(1), number(2)}, isPut ? std::optional(QPoint(number(3), number(4))) : std::nullopt};
}

// A window manager is free to put what has no place; so a place is given, and remembered as ours.
bool isPutByItsUser(const QWidget& dialog) {
    const QVariant given = dialog.property(placeProperty);
    return dialog.testAttribute(Qt::WA_Moved) &&
           (!given.isValid() || given.toPoint() != dialog.geometry().topLeft());
}

} // namespace

QRect placeOver(const QRect& below, QSize size, const QRect& area) {
    const QRect free = area.marginsRemoved(frameRoom);
    QRect place(QPoint(), size.boundedTo(free.size()));
    place.moveCenter(below.center());
    place.moveLeft(qBound(free.left(), place.left(), free.right() - place.width() + 1));
    place.moveTop(qBound(free.top(), place.top(), free.bottom() - place.height() + 1));
    return place;
}

QRect placeBeside(const QRect& shown, const QRect& place, const QRect& area) {
    const QRect free = area.marginsRemoved(frameRoom), hidden = shown & area;
    const QRect around = place.marginsAdded(frameRoom);
    if (!around.intersects(hidden))
        return place;
    for (const QPoint& corner : {QPoint(hidden.right() + 1 + frameRoom.left(), place.top()),
                                 QPoint(hidden.left() - place.width() - frameRoom.right(), place.top()),
                                 QPoint(place.left(), hidden.bottom() + 1 + frameRoom.top()),
                                 QPoint(place.left(), hidden.top() - place.height() - frameRoom.bottom())})
        if (const QRect beside(corner, place.size()); free.contains(beside))
            return beside;
    return place;
}

DialogPlaces::DialogPlaces(QMainWindow& mainWindow) : window(mainWindow) { qApp->installEventFilter(this); }

DialogPlaces::~DialogPlaces() = default;

bool DialogPlaces::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        auto* const widget = qobject_cast<QWidget*>(watched);
        if (widget && isPlaced(*widget) && !event->spontaneous()) {
            if (event->type() == QEvent::Show)
                place(*widget);
            else if (!hasSizeOfItsOwn(widget))
                remember(*widget);
        }
    }
    return false;
}

bool DialogPlaces::isPlaced(const QWidget& widget) const {
    const bool isWindow = widget.windowType() == Qt::Window && &widget != &window;
    return widget.isWindow() && (isDialog(widget) || isWindow);
}

// One that was put somewhere stays there, if the screen reaches that far.
void DialogPlaces::place(QWidget& dialog) {
    const QRect area = window.screen()->availableGeometry();
    const QSize room = area.marginsRemoved(frameRoom).size();
    const QSize needed = dialog.minimumSizeHint().expandedTo(dialog.minimumSize());
    if (dialog.layout() && needed.boundedTo(room) != needed && !dialog.findChild<QScrollArea*>("scrollArea"))
        makeScroll(dialog);
    dialog.setMinimumSize(dialog.minimumSize().boundedTo(room));
    const std::optional<Left> left = hasSizeOfItsOwn(&dialog) ? std::nullopt : remembered(dialog);
    const QSize wanted = (left ? left->size : dialog.size()).expandedTo(needed);
    dialog.setMaximumSize(
        dialog.maximumSize().expandedTo(needed)); // long texts need more than a size that is fixed
    const bool isPut = isPutByItsUser(dialog), wasPut = !isPut && left && left->corner;
    const QRect before = wasPut ? QRect(*left->corner, wanted) : dialog.geometry();
    const QRect over = placeOver(isPut || wasPut ? before : window.geometry(), wanted, area);
    dialog.setGeometry(shown && !isPut && !wasPut ? placeBeside(shown(), over, area) : over);
    if (!isPut) // a place that its user gave it is not ours
        dialog.setProperty(placeProperty, wasPut ? QVariant() : QVariant(dialog.geometry().topLeft()));
    if (isDialog(dialog) && dialog.windowHandle() && !dialog.windowHandle()->transientParent())
        dialog.windowHandle()->setTransientParent(window.windowHandle());
}

void DialogPlaces::keepMarksInSight() {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (!dialog || !shown || !isPlaced(*dialog) || !dialog->isVisible() || isPutByItsUser(*dialog))
        return;
    const QRect beside = placeBeside(shown(), dialog->geometry(), window.screen()->availableGeometry());
    if (beside == dialog->geometry())
        return;
    dialog->move(dialog->pos() + beside.topLeft() - dialog->geometry().topLeft());
    dialog->setProperty(placeProperty, dialog->geometry().topLeft());
}

void DialogPlaces::remember(const QWidget& dialog) const {
    const Ref<IParam> section = openChild(appService<IProfile>().get(), sectionName, 1);
    if (!section)
        return;
    QString left = QStringLiteral("%1x%2").arg(dialog.width()).arg(dialog.height());
    if (isPutByItsUser(dialog))
        left += QStringLiteral(" at %1,%2").arg(dialog.geometry().x()).arg(dialog.geometry().y());
    writeValue(section.get(), keyOf(dialog).constData(), left.toLatin1().constData());
}

} // namespace workbench

#include "moc_dialog_places.cpp"
