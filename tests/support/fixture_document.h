// An open document of the fixture host, over any database, console and selection that the test gives it.
#pragma once

#include "host/documents.h"
#include "sdk/db/database.h"

class FixtureDocument : public HostDocument {
public:
    OdDbDatabasePtr database() override { return databaseObject; }
    HostCommandIO* commandIO() override { return io; }
    HostEditorSelection* selection() override { return editorSelection; }
    const wchar_t* fileName() override { return path.c_str(); }
    const wchar_t* title() override { return shownTitle.c_str(); }

    OdDbDatabasePtr databaseObject;
    HostCommandIO* io = nullptr; // not owned, as is the next one
    HostEditorSelection* editorSelection = nullptr;
    OdString path;
    OdString shownTitle = L"Drawing1.dxf";
};
