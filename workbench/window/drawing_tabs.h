// One tab for each open drawing, while there are several; a star marks unsaved changes.
#pragma once

#include <QTabBar>

namespace standin {
class Document;
class DocumentManager;
} // namespace standin

namespace workbench {

// The name of a drawing with a star behind it while it has changes that aren't saved.
QString titleOf(standin::Document& document);

class DrawingTabs : public QTabBar {
    Q_OBJECT
public:
    DrawingTabs(standin::DocumentManager& documentManager, QWidget* parent);
    ~DrawingTabs() override;
    void showDrawings();

signals:
    void chosen(standin::Document* document);
    void closeWanted(standin::Document* document);

private:
    standin::Document* documentAt(int index) const;
    void addCloseButton(int index);
    standin::DocumentManager& documents;
};

} // namespace workbench
