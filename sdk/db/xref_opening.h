// The drawings that one opening reads because of references: each file once, however many refer to it, none
// into itself, and no more of them than a drawing can need.
#pragma once

#include "sdk/db/database.h"

#include <QString>

class OdDbXrefOpening {
public:
    static constexpr int kMostFiles = 1000; // read in one opening
    static constexpr int kDeepest = 64;     // references within references

    // Goes on with the opening that is under way, or begins one of `host`. What the limits have kept out is
    // told among the host's notices when the opening ends.
    explicit OdDbXrefOpening(OdDbDatabase& host);
    ~OdDbXrefOpening();
    OdDbXrefOpening(const OdDbXrefOpening&) = delete;
    OdDbXrefOpening& operator=(const OdDbXrefOpening&) = delete;

    // The drawing, when it was read before with all that it refers to; null otherwise.
    OdDbDatabasePtr known(const QString& canonicalPath) const;
    // eOk, and the file is on the way until the guard that has to follow ends; eSelfReference for one that is
    // on the way already, eInvalidInput beyond a limit.
    OdResult enter(const QString& canonicalPath);
    class OnTheWay {
    public:
        explicit OnTheWay(OdDbXrefOpening&) {}
        ~OnTheWay();
        OnTheWay(const OnTheWay&) = delete;
        OnTheWay& operator=(const OnTheWay&) = delete;
    };
    // What the innermost file on the way has become, for others that refer to it.
    void keep(const OdDbDatabasePtr& loaded);

private:
    bool isOutermost;
};
