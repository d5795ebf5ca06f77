#include "workbench/window/drawing_tabs.h"

#include "sdk/db/database.h"
#include "standin/documents/document_manager.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalBlocker>
#include <QToolButton>
#include <algorithm>

using namespace standin;

namespace workbench {

QString titleOf(Document& document) {
    return document.database()->isModified() ? document.displayName() + QLatin1Char('*')
                                             : document.displayName();
}

// The name, and behind it the folder where another open drawing has the same name.
static QString tabTitle(Document& document, const std::vector<Document*>& open) {
    const bool isTwice = std::count_if(open.begin(), open.end(), [&](const Document* other) {
                             return other->displayName() == document.displayName();
                         }) > 1;
    const QString folder = QDir::toNativeSeparators(QFileInfo(document.path()).path());
    return isTwice && !document.path().isEmpty() ? DrawingTabs::tr("%1 in %2").arg(titleOf(document), folder)
                                                 : titleOf(document);
}

DrawingTabs::DrawingTabs(DocumentManager& documentManager, QWidget* parent)
    : QTabBar(parent), documents(documentManager) {
    setObjectName(QStringLiteral("drawingTabs"));
    setAutoHide(true);
    setDocumentMode(true);
    setExpanding(false);
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QTabBar::tabBarClicked, this, [this](int index) {
        if (Document* document = documentAt(index))
            emit chosen(document);
    });
}

DrawingTabs::~DrawingTabs() = default;

Document* DrawingTabs::documentAt(int index) const {
    const std::vector<Document*> open = documents.all();
    return index >= 0 && index < int(open.size()) ? open[std::size_t(index)] : nullptr;
}

// A cross in the colour of the text; the one of the style is hard to see in dark colours.
void DrawingTabs::addCloseButton(int index) {
    auto* button = new QToolButton(this);
    button->setText(QString(QChar(0x00d7)));
    button->setToolTip(tr("Close drawing"));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    setTabButton(index, QTabBar::RightSide, button);
    connect(button, &QToolButton::clicked, this, [this, button] {
        for (int i = 0; i < count(); ++i)
            if (tabButton(i, QTabBar::RightSide) == button)
                return emit closeWanted(documentAt(i));
    });
}

void DrawingTabs::showDrawings() {
    const QSignalBlocker blocker(this);
    const std::vector<Document*> open = documents.all();
    while (count() > int(open.size()))
        removeTab(count() - 1);
    for (int i = 0; i < int(open.size()); ++i) {
        Document& document = *open[std::size_t(i)];
        const QString title = tabTitle(document, open).replace(QLatin1Char('&'), QLatin1String("&&"));
        if (i == count())
            addCloseButton(addTab(title));
        setTabText(i, title);
        setTabToolTip(i, document.path());
        if (&document == documents.currentOne())
            setCurrentIndex(i);
    }
}

} // namespace workbench

#include "moc_drawing_tabs.cpp"
