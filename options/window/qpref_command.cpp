// Runs the Options dialog over the current document.
#include "options/window/qpref_command.h"

#include "host/app.h"
#include "host/documents.h"
#include "host/modal_runner.h"
#include "host/options_parent.h"
#include "options/window/preferences.h"

#include <QApplication>

namespace {

QWidget* parentOfOptions() {
    if (const auto host = appService<IOptionsParent>())
        return host->optionsParent();
    const QWidgetList widgets = QApplication::topLevelWidgets();
    return widgets.isEmpty() ? nullptr : widgets.first();
}

} // namespace

int QPREF::Run(IParam*) {
    if (!currentDocument())
        return 0;
    Preferences preferences(parentOfOptions());
    preferences.setWindowFlags(Qt::Window | Qt::WindowCloseButtonHint);
    preferences.setWindowTitle(QObject::tr("Options"));
    runModal(preferences);
    return 0;
}
