// Pictures of help pages: by theme and by width.
#include "standin/help/help_browser.h"

#include <QEvent>
#include <QFileInfo>
#include <QImage>
#include <QScrollBar>

namespace standin {

namespace {
const int leastWidth = 200;
} // namespace

QString HelpBrowser::pictureFile(const QUrl& name) const {
    const QString file = source().resolved(name).toLocalFile();
    if (QFileInfo::exists(file))
        return file;
    const bool dark = palette().color(QPalette::Base).lightness() < 128;
    const QFileInfo info(file);
    return QStringLiteral("%1/%2-%3.%4")
        .arg(info.path(), info.completeBaseName(), dark ? QStringLiteral("dark") : QStringLiteral("light"),
             info.suffix());
}

// As if the scroll bar were there, so that its coming changes nothing.
int HelpBrowser::pageWidth() const {
    const int frame = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    return std::max(leastWidth, width() - frame - 2 * static_cast<int>(document()->documentMargin()) - 2);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource)
        return QTextBrowser::loadResource(type, name);
    const QImage picture(pictureFile(name));
    readFor = pageWidth();
    return picture.width() <= readFor ? picture : picture.scaledToWidth(readFor, Qt::SmoothTransformation);
}

void HelpBrowser::readAnew() {
    const int place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(place);
}

void HelpBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && source().isValid())
        readAnew();
}

void HelpBrowser::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    if (source().isValid() && readFor != 0 && readFor != pageWidth())
        readAnew();
}

} // namespace standin

#include "moc_help_browser.cpp"
