// A tracker that shows one block reference and keeps what it is told.
#pragma once

#include "host/tracker.h"
#include "sdk/db/block_reference.h"

#include <QPointF>

struct ShownReference : HostEdPointTracker {
    explicit ShownReference(OdDbBlockReferencePtr shown) : reference(std::move(shown)) {}
    int cursorType() override { return 0; }
    int defaultValueSource() override { return 0; }
    int snapSource() override { return 0; }
    int addDrawables(HostDrawableSink* sink) override {
        sink->addDrawable(reference.get(), 1, 512, 0, 0);
        return 1;
    }
    int removeDrawables(HostDrawableSink* sink, int, int, int, int) override {
        sink->removeDrawable(reference.get(), 1, 512, 0, 0);
        ++removals;
        return 1;
    }
    int acceptsReal() override { return 0; }
    int acceptsString() override { return 0; }
    int acceptsKeyword() override { return 0; }
    void setValue(double) override {}
    void setText(const OdString&) override {}
    void setBasePoint(double x, double, double) override { baseX = x; }
    void setCursor(double x, double y, double) override { cursor = {x, y}; }
    void setSink(void* target) override { heldSink = target; }

    OdDbBlockReferencePtr reference;
    QPointF cursor;
    void* heldSink = nullptr;
    double baseX = 0;
    int removals = 0;
};
