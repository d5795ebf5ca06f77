// What the tracker hands to the host when a prompt opens and closes.
#include "xref/xref_tracker.h"

#include "xref/attach_host.h"

XRefTracker::XRefTracker(OdDbBlockReferencePtr shown, int trackerMode, double* value, double* scale,
                         const OdGePoint3d& base)
    : basePoint(base), reference(std::move(shown)), mode(trackerMode), database(attach::database()),
      valueOut(value), scaleOut(scale) {
    if (mode == kTrackPosition)
        reference->setPosition(basePoint);
}

int XRefTracker::addDrawables(HostDrawableSink* target) {
    target->addDrawable(reference.get(), 1, 512, 0, 0);
    return 1;
}

int XRefTracker::removeDrawables(HostDrawableSink* target, int a, int b, int c, int d) {
    target->removeDrawable(reference.get(), a, b, c, d);
    return 1;
}
