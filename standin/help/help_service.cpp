// Finds the page of a topic and shows it in a window that stays beside the dialogs.
#include "standin/help/help_service.h"

#include "standin/help/help_browser.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QUrl>
#include <QVBoxLayout>

namespace standin {

namespace {

// A topic is a file name; what could lead out of the folder is replaced.
QString pageName(QString topic) {
    return topic.replace(QRegularExpression(QStringLiteral("[^\\w\\[\\]-]")), QStringLiteral("_")) +
           QStringLiteral(".html");
}

} // namespace

HelpWindow::HelpWindow(const QString& pageFolder, QWidget* parent)
    : QWidget(parent, Qt::Window), folder(pageFolder) {
    setObjectName(QStringLiteral("helpWindow"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Help"));
    build();
    layOut();
    resize(760, 640);
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::build() {
    pageBrowser = new HelpBrowser(this);
    pageBrowser->setObjectName(QStringLiteral("pageBrowser"));
    pageBrowser->setOpenExternalLinks(true);
    pageBrowser->document()->setDocumentMargin(14);
    connect(pageBrowser, &QTextBrowser::sourceChanged, this, &HelpWindow::showTitle);
}

void HelpWindow::layOut() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(pageBrowser);
}

void HelpWindow::showTopic(const QString& topic) {
    showFileOr(folder + QLatin1Char('/') + pageName(topic), tr("There is no help page \"%1\".").arg(topic));
}

void HelpWindow::showFile(const QString& path) { showFileOr(path, tr("There is no file %1.").arg(path)); }

void HelpWindow::showFileOr(const QString& path, const QString& missing) {
    const QFileInfo page(path);
    if (page.isFile())
        pageBrowser->setSource(QUrl::fromLocalFile(page.absoluteFilePath()));
    else
        pageBrowser->setPlainText(missing);
    showTitle();
}

void HelpWindow::showPage(const QString& html) {
    pageBrowser->setSource({});
    pageBrowser->setHtml(html);
    showTitle();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        close();
    else
        QWidget::keyPressEvent(event);
}

void HelpWindow::showTitle() {
    const QString title = pageBrowser->documentTitle();
    setWindowTitle(title.isEmpty() ? tr("Help") : tr("Help - %1").arg(title));
}

HelpService::HelpService(QString pageFolder) : folder(std::move(pageFolder)) {}

HelpService::~HelpService() { delete helpWindow; }

// A window that isn't a child of the modal dialog would not take any click.
HelpWindow& HelpService::openWindow() {
    QWidget* parent = QApplication::activeModalWidget();
    if (helpWindow && helpWindow->parentWidget() != parent)
        delete helpWindow;
    if (!helpWindow)
        helpWindow = new HelpWindow(folder, parent);
    helpWindow->show();
    helpWindow->raise();
    return *helpWindow;
}

void HelpService::showTopic(const char* topicId) { openWindow().showTopic(QString::fromUtf8(topicId)); }

void HelpService::showFile(const QString& path) { openWindow().showFile(path); }

void HelpService::showPage(const QString& html) { openWindow().showPage(html); }

} // namespace standin

#include "moc_help_service.cpp"
