// The reader of help pages. It chooses the pictures that fit the colours of the window.
#pragma once

#include <QTextBrowser>

namespace standin {

// Where a page names the picture "x.png" and there is no such file, "x-dark.png" or "x-light.png" serves.
// Pictures wider than the window are shown smaller.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT
public:
    using QTextBrowser::QTextBrowser;
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QString pictureFile(const QUrl& name) const;
    int pageWidth() const;
    void readAnew();
    int readFor = 0; // the page width that the pictures were scaled for
};

} // namespace standin
