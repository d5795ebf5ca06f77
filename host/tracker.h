// Bases of the trackers that show something at the cursor while a prompt is open.
#pragma once

#include "sdk/rx/rx_object.h"

// Where a tracker hands in what it shows. `drawable` is shown while it is in the sink.
class HostDrawableSink {
public:
    virtual ~HostDrawableSink() = default;
    virtual void addDrawable(OdRxObject* drawable, int, int, int, int) = 0;
    virtual void removeDrawable(OdRxObject* drawable, int, int, int, int) = 0;
};

class HostEdMessageFilter {
public:
    virtual ~HostEdMessageFilter() = default;
};

class HostEdJigDimData {
public:
    virtual ~HostEdJigDimData() = default;
};

class HostEdInputTracker : public HostEdMessageFilter, public HostEdJigDimData {
public:
    virtual int cursorType() = 0;
    virtual int defaultValueSource() = 0;
    virtual int snapSource() = 0;
    virtual int addDrawables(HostDrawableSink* sink) = 0;
    virtual int removeDrawables(HostDrawableSink* sink, int, int, int, int) = 0;
    virtual int acceptsReal() = 0;
    virtual int acceptsString() = 0;
    virtual int acceptsKeyword() = 0;
    virtual void setValue(double) = 0;
    virtual void setText(const OdString&) = 0;
    virtual void setBasePoint(double, double, double) = 0;
    virtual void setCursor(double, double, double) = 0;
    virtual void setSink(void* sink) = 0;
};

class HostEdPointTracker : public HostEdInputTracker {};
