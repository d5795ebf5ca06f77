// What stands behind the host's free functions (HostDocManager, Get_IHelpService, message boxes, ...). The
// workbench fills it at start; a test puts its own pieces in and takes them out again.
#pragma once

#include "host/app.h"
#include "host/color_dialog.h"
#include "host/documents.h"
#include "host/help.h"
#include "host/qt_ui_core.h"
#include "host/style.h"

#include <functional>

class OdDbObjectId;

namespace standin {

enum class MessageKind { Critical, Question };

struct HostRegistry {
    HostDocumentManager* documents = nullptr; // not owned, as are the next four
    HostQtStyleManager* styles = nullptr;     // null: a built-in one with theme 0
    IHelpService* help = nullptr;
    IEvents* events = nullptr;
    QWidget* dialogParent = nullptr; // null: the active window
    QWidget* mainWindow = nullptr;   // the parent while no window is active, as between two dialogs
    std::function<const wchar_t*(const wchar_t*)> translate; // empty: a text is its own translation
    // Asked before a box or a colour dialog is shown; when set, nothing is shown.
    std::function<EV_MB_RET(MessageKind, const QString& title, const QString& text, EV_MB_RET buttons)>
        messageBox;
    std::function<decltype(hostQtSetColorDialogTrueColor)> colorDialog;
    std::function<void()> updateDisplay;
    std::function<void(const OdDbObjectId& id)> zoomObject;
    OdEdCommandContext* commandContext = nullptr; // the one last given to setCtx
};

HostRegistry& registry();

} // namespace standin
