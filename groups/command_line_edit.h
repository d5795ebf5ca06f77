// The group command that starts from a member: add objects to its group, remove some, or rename it.
#pragma once

#include "groups/command_line_unified.h"

class CCommandLineGroupEdit : public CCommandLineGroupUnified {
public:
    int Run(IParam* params) override;
    int enableQuery() override;

private:
    // What a run has in hand.
    struct Found {
        hostSelectionSetPtr selection; // of the search; what selectObjects leaves alone stays from before
        OdDbDictionaryPtr dictionary;
        OdDbGroupPtr group;
        OdString name;
    };
    bool findGroup(const Scene& scene, Found& found);
    bool selectMember(const Scene& scene, Found& found);
    int runOption(const Scene& scene, Found& found);
    int removeObjects(const Scene& scene, const Found& found, const OdDbObjectIdArray& members);
    int renameGroup(const Scene& scene, const Found& found, const OdDbObjectIdArray& members);
};
