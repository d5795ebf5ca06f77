// The store of standard paper sizes, with the host's two dialogs.
#pragma once

#include "host/param.h"

class QWidget;

class IStdPapersParam : public IParam {
public:
    // Both show a dialog of the host and tell whether the store has changed.
    virtual bool AddPaper(QWidget*) { return false; }
    virtual bool ModifyPaper(const wchar_t* /*rowText*/, QWidget*) { return false; }
};
