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
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWindow>

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
           qobject_cast<const QFileDialog*>(dialog) || qobject_cast<const QColorDialog*>(dialog);
}

QByteArray keyOf(const QWidget& dialog) {
    const QString name = dialog.objectName();
    return name.isEmpty() ? QByteArray(dialog.metaObject()->className()) : name.toUtf8();
}

// An invalid size where none is kept.
QSize rememberedSize(const QWidget& dialog) {
    const Ref<IParam> section = openChild(appService<IProfile>().get(), sectionName);
    CXString text;
    if (!readValue(section.get(), keyOf(dialog).constData(), &text))
        return {};
    const QList<QByteArray> numbers = QByteArray(text.c_str()).split('x');
    return numbers.size() == 2 ? QSize(numbers[0].toInt(), numbers[1].toInt()) : QSize();
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
    const QSize kept = hasSizeOfItsOwn(&dialog) ? QSize() : rememberedSize(dialog);
    const QSize wanted = (kept.isValid() ? kept : dialog.size()).expandedTo(needed);
    dialog.setMaximumSize(
        dialog.maximumSize().expandedTo(needed)); // long texts need more than a size that is fixed
    const bool isPut = isPutByItsUser(dialog);
    const QRect over = placeOver(isPut ? dialog.geometry() : window.geometry(), wanted, area);
    dialog.setGeometry(shown && !isPut ? placeBeside(shown(), over, area) : over);
    dialog.setProperty(placeProperty, dialog.geometry().topLeft());
    if (isDialog(dialog) && dialog.windowHandle() && !dialog.windowHandle()->transientParent())
        dialog.windowHandle()->setTransientParent(window.windowHandle());
}

void DialogPlaces::remember(const QWidget& dialog) const {
    const Ref<IParam> section = openChild(appService<IProfile>().get(), sectionName, 1);
    if (!section)
        return;
    const QByteArray size = QByteArray::number(dialog.width()) + 'x' + QByteArray::number(dialog.height());
    writeValue(section.get(), keyOf(dialog).constData(), size.constData());
}

} // namespace workbench

#include "moc_dialog_places.cpp"
