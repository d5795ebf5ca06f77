// A record of free tags in a dictionary.
#pragma once

#include "sdk/db/object.h"

class OdDbXrecord : public OdDbObject {
    ODRX_DECLARE_CLASS(OdDbXrecord)
public:
    OdDbXrecord();
    // The free tags among tags(); edit() changes them.
    DxfTagList::Range dataRange() const;
};
using OdDbXrecordPtr = OdSmartPtr<OdDbXrecord>;
