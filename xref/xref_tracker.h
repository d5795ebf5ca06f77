// Shows a reference as it stands while one of its prompts is open.
#pragma once

#include "host/tracker.h"
#include "sdk/db/block_reference.h"
#include "sdk/db/database.h"

// What a prompt asks for.
enum XRefTrackerMode { kTrackRotation = 0, kTrackPosition = 1, kTrackUniformScale = 2, kTrackFreeScale = 3 };

// It never moves, scales or turns the reference while the cursor moves, on purpose. With kTrackPosition the
// constructor puts the reference at the base point.
class XRefTracker : public HostEdPointTracker {
public:
    XRefTracker(OdDbBlockReferencePtr shown, int trackerMode, double* value, double* scale,
                const OdGePoint3d& base);

    int cursorType() override { return 0; }
    int defaultValueSource() override { return 3; }
    int snapSource() override { return 3; }
    int addDrawables(HostDrawableSink* target) override;
    int removeDrawables(HostDrawableSink* target, int a, int b, int c, int d) override;
    int acceptsReal() override { return 0; }
    int acceptsString() override { return 0; }
    int acceptsKeyword() override { return 0; }
    void setValue(double) override {}
    void setText(const OdString&) override {}
    void setBasePoint(double, double, double) override {}
    void setCursor(double, double, double) override {}
    void setSink(void* target) override { sink = target; }

private:
    void* sink = nullptr;
    OdGePoint3d basePoint;
    OdDbBlockReferencePtr reference;
    int mode;
    OdDbDatabasePtr database;
    double* valueOut; // kept for the host, read by nothing here, as is the next one
    double* scaleOut;
};
