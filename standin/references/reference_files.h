// Where the file dialog of the attach command starts in the workbench.
#pragma once

#include "host/reference_files.h"
#include "host/text.h"

#include <QString>

namespace standin {

// The folder used last while the program runs; before the first use the folder of the drawing, or of the file
// that it is a copy of, or that of the user.
class ReferenceFiles : public CKWUnknownImpl<IReferenceFiles> {
public:
    CXStringW startFolder(OdDbDatabase* drawing) override;
    void chosenIn(const wchar_t* folder) override { last = hostqt::qString(folder); }

private:
    QString last;
};

} // namespace standin
