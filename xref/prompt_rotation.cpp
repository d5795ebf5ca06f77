// The loop of the rotation prompt.
#include "xref/prompt_rotation.h"

#include "host/command_io.h"
#include "xref/attach_host.h"
#include "xref/prompt_value.h"
#include "xref/ucs_rotation.h"
#include "xref/xref_tracker.h"

int promptRotation(const OdDbBlockReferencePtr& reference) {
    HostCommandIO& io = *attach::io();
    const OdString prompt = attach::word(L"Specify rotation angle <0>");
    double angle = 0.0;
    const OdGePoint3d base = reference->position();
    XRefTracker tracker(reference, kTrackRotation, &angle, nullptr, base);
    int code;
    for (;;) {
        OdString text;
        code = io.getAngle(base, &angle, prompt.c_str(), nullptr, kValueFlags, &text, &tracker);
        if (code != kInputTyped || hostdbAngToF(text, -1, angle, 3))
            break;
        refuseAnswer(L"Requires valid numeric angle or second point.");
    }
    reference->setRotation(ucsRotation(reference, angle));
    return code;
}
