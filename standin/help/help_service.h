// The help of the host: a window that shows the pages of the data folder.
#pragma once

#include "host/help.h"

#include <QPointer>
#include <QString>
#include <QWidget>

namespace standin {

class HelpBrowser;

class HelpWindow : public QWidget {
    Q_OBJECT
public:
    HelpWindow(const QString& pageFolder, QWidget* parent);
    ~HelpWindow() override;
    void showTopic(const QString& topic);
    void showFile(const QString& path);
    void showPage(const QString& html); // with a title of its own

protected:
    void keyPressEvent(QKeyEvent* event) override; // Escape closes the window

private:
    void build();
    void layOut();
    void showFileOr(const QString& path, const QString& missing);
    void showTitle();
    QString folder;
    HelpBrowser* pageBrowser = nullptr;
};

class HelpService : public CKWUnknownImpl<IHelpService> {
public:
    explicit HelpService(QString pageFolder); // with the pages <topic>.html
    ~HelpService() override;
    // Shows the page in a window that can be used beside a modal dialog, one window at a time.
    void showTopic(const char* topicId) override;
    // In the same window: a file of HTML or Markdown, with the pictures beside it; and a page as it is given.
    void showFile(const QString& path);
    void showPage(const QString& html);
    HelpWindow* window() const { return helpWindow; }

private:
    HelpWindow& openWindow();
    QString folder;
    QPointer<HelpWindow> helpWindow;
};

} // namespace standin
