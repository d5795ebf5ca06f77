// What the answers to the prompts for Y and Z mean.
#include "xref/prompt_axis_scale.h"

#include "host/command_io.h"
#include "xref/attach_host.h"
#include "xref/prompt_value.h"

namespace {

bool isUsable(double factor) {
    if (!isZeroLength(factor))
        return true;
    refuseAnswer(kValueMustBeNonzero);
    return false;
}

bool readFactor(const OdString& text, double& out) {
    if (hostdbDisToF(text, -1, out))
        return isUsable(out);
    refuseAnswer(L"X scale factor or 2D corner point required.");
    return false;
}

} // namespace

int promptYScale(double& out, double xScale) {
    const OdString prompt = attach::word(L"Specify Y scale factor or <use X scale factor>:");
    const int code = attach::io()->getReal(&out, prompt.c_str(), nullptr, kRealFlags, 0, 0);
    if (code == kInputPicked)
        return kInputPicked;
    if (code == kInputNone) {
        out = xScale;
        return kInputPicked;
    }
    out = 1.0;
    return code == kInputCancelled ? kInputCancelled : kInputPicked;
}

int promptZScale(double& out, OdGePoint3d& corner, const OdGePoint3d& base, double xScale) {
    const OdString prompt = attach::word(L"Specify Z scale factor or <use X scale factor>:");
    for (;;) {
        OdString text;
        switch (
            attach::io()->getPoint(&base, &corner, prompt.c_str(), nullptr, kValueFlags, &text, nullptr)) {
        case kInputTyped:
            if (readFactor(text, out))
                return kInputPicked;
            break;
        case kInputNone:
            out = xScale;
            return kInputPicked;
        case kInputPicked:
            out = base.distanceTo(corner);
            if (isUsable(out))
                return kInputPicked;
            break;
        case kInputCancelled:
            return kInputCancelled;
        default:
            return kInputPicked;
        }
    }
}
