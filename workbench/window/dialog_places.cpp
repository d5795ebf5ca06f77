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
#include <QWindow>

namespace workbench {

namespace {

const QMargins frameRoom(8, 32, 8, 8); // what a window manager puts around a window
const char* const sectionName = "Dialogs";

bool hasSizeOfItsOwn(const QDialog* dialog) {
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

} // namespace

QRect placeOver(const QRect& below, QSize size, const QRect& area) {
    const QRect free = area.marginsRemoved(frameRoom);
    QRect place(QPoint(), size.boundedTo(free.size()));
    place.moveCenter(below.center());
    place.moveLeft(qBound(free.left(), place.left(), free.right() - place.width() + 1));
    place.moveTop(qBound(free.top(), place.top(), free.bottom() - place.height() + 1));
    return place;
}

DialogPlaces::DialogPlaces(QMainWindow& mainWindow) : window(mainWindow) { qApp->installEventFilter(this); }

DialogPlaces::~DialogPlaces() = default;

bool DialogPlaces::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        auto* const dialog = qobject_cast<QDialog*>(watched);
        if (dialog && dialog->isWindow() && !event->spontaneous()) {
            if (event->type() == QEvent::Show)
                place(*dialog);
            else if (!hasSizeOfItsOwn(dialog))
                remember(*dialog);
        }
    }
    return false;
}

// One that was put somewhere stays there, if the screen reaches that far.
void DialogPlaces::place(QWidget& dialog) {
    const QRect area = window.screen()->availableGeometry();
    const QSize room = area.marginsRemoved(frameRoom).size();
    dialog.setMinimumSize(dialog.minimumSize().boundedTo(room));
    const QSize kept = hasSizeOfItsOwn(qobject_cast<QDialog*>(&dialog)) ? QSize() : rememberedSize(dialog);
    const QSize wanted = kept.isValid() ? kept.expandedTo(dialog.minimumSize()) : dialog.size();
    const bool isPut = dialog.testAttribute(Qt::WA_Moved);
    dialog.setGeometry(placeOver(isPut ? dialog.geometry() : window.geometry(), wanted, area));
    dialog.setAttribute(Qt::WA_Moved, isPut);
    if (dialog.windowHandle() && !dialog.windowHandle()->transientParent())
        dialog.windowHandle()->setTransientParent(window.windowHandle());
}

void DialogPlaces::remember(const QWidget& dialog) const {
    const Ref<IParam> section = openChild(appService<IProfile>().get(), sectionName, 1);
    if (!section)
        return;
    CKWVariant value;
    value = QByteArray(QByteArray::number(dialog.width()) + 'x' + QByteArray::number(dialog.height()))
                .constData();
    section->setValue(keyOf(dialog).constData(), &value);
}

} // namespace workbench

#include "moc_dialog_places.cpp"
