// The scale prompt as a machine of three states: first answer, factors, opposite corner.
#include "xref/prompt_scale.h"

#include "host/command_io.h"
#include "xref/attach_host.h"
#include "xref/prompt_axis_scale.h"
#include "xref/prompt_value.h"
#include "xref/xref_tracker.h"

namespace {

constexpr const wchar_t* kFactorOrCornerRequired = L"X scale factor or 2D corner point required.";
enum ScaleKeyword { kCorner = kInputKeyword, kXyz = kInputKeyword + 1 };

// The prompt is in one of three states; each asks once and says where to go on.
class ScalePrompt {
public:
    enum class State { First, Factors, Corner, Finish, Cancel };

    ScalePrompt(const OdDbBlockReferencePtr& scaled, bool isUniform)
        : io(*attach::io()), uniform(isUniform), base(scaled->position()),
          tracker(scaled, isUniform ? kTrackUniformScale : kTrackFreeScale, nullptr, &extra, base) {}

    bool run() {
        State state = State::First;
        while (state != State::Finish && state != State::Cancel)
            state = state == State::First ? first() : state == State::Factors ? factors() : oppositeCorner();
        return state == State::Finish;
    }
    OdGeScale3d dividedBy(double factor) const { return {x / factor, y / factor, z / factor}; }

private:
    int ask(const wchar_t* prompt, const wchar_t* keywords) {
        text.empty();
        const OdString words = attach::word(prompt), list = attach::word(keywords);
        if (uniform)
            return io.getDistance(base, &distance, words.c_str(), list.c_str(), kValueFlags, &text, &tracker);
        return io.getPoint(&base, &corner, words.c_str(), list.c_str(), kValueFlags, &text, &tracker);
    }

    State first() {
        const int code = ask(L"Enter X scale factor, specify opposite corner, or [%s] <1>",
                             L"Corner XYZ *C *XYZ _ Corner XYZ *C *XYZ");
        switch (code) {
        case kInputPicked:
            return uniform ? all(distance) : firstCorner();
        case kInputNone:
            text = L"1";
            return firstFactor();
        case kInputTyped:
            return firstFactor();
        case kCorner:
            return State::Corner;
        case kXyz:
            return State::Factors;
        case kInputCancelled:
            return State::Cancel;
        default:
            return State::First;
        }
    }

    // A corner without width or height ends the prompt here, while the other states ask again: that is meant.
    State firstCorner() {
        if (!takeCorner())
            return State::Cancel;
        z = x;
        return State::Finish;
    }

    State firstFactor() {
        if (!readX() || !distanceIsUsable())
            return State::First;
        if (uniform)
            return all(x);
        if (promptYScale(y, x) == kInputCancelled)
            return State::Cancel;
        z = x;
        return State::Finish;
    }

    State factors() {
        const int code = ask(L"Specify X scale factor", L"Kwrd:Corner *C _ Corner *C");
        switch (code) {
        case kInputNone:
            return askYAndZ();
        case kCorner:
            wantZ = true;
            return State::Corner;
        case kInputPicked:
            if (uniform)
                return all(distance);
            return takeCorner() ? askZ() : State::Factors;
        case kInputTyped:
            if (!readX() || !distanceIsUsable())
                return State::Factors;
            return uniform ? all(x) : askYAndZ();
        case kInputCancelled:
            return State::Cancel;
        default:
            return State::First;
        }
    }

    State oppositeCorner() {
        text.empty();
        const OdString prompt = attach::word(L"Specify opposite corner");
        const int code =
            io.getPoint(&base, &corner, prompt.c_str(), nullptr, kFirstPointFlags, &text, &tracker);
        switch (code) {
        case kInputNone:
            corner = io.inputPoint();
            return takeCorner() ? askZOrUseX() : State::Corner;
        case kInputPicked:
            return takeCorner() ? askZOrUseX() : State::Corner;
        case kInputTyped:
            return cornerFactor();
        case kInputCancelled:
            return State::Cancel;
        default:
            return State::First;
        }
    }

    State cornerFactor() {
        if (!readX())
            return State::Corner;
        if (uniform)
            return all(x);
        return promptYScale(y, x) == kInputCancelled ? State::Cancel : askZOrUseX();
    }

    State all(double factor) {
        x = y = z = factor;
        return State::Finish;
    }
    State askYAndZ() { return promptYScale(y, x) == kInputCancelled ? State::Cancel : askZ(); }
    State askZ() {
        return promptZScale(z, corner, base, x) == kInputCancelled ? State::Cancel : State::Finish;
    }
    State askZOrUseX() {
        if (wantZ)
            return askZ();
        z = x;
        return State::Finish;
    }

    bool takeCorner() {
        x = corner.x - base.x;
        y = corner.y - base.y;
        if (!isZeroLength(x) && !isZeroLength(y))
            return true;
        refuseAnswer(kValueMustBeNonzero);
        return false;
    }
    bool readX() {
        if (hostdbDisToF(text, -1, x))
            return true;
        refuseAnswer(kFactorOrCornerRequired);
        return false;
    }
    // Looks at the distance and not at the typed factor, on purpose: a typed 0 passes.
    bool distanceIsUsable() {
        if (!isZeroLength(distance))
            return true;
        refuseAnswer(kValueMustBeNonzero);
        return false;
    }

    HostCommandIO& io;
    bool uniform;
    double x = 1.0, y = 1.0, z = 1.0, distance = 1.0, extra = 1.0;
    bool wantZ = false;
    OdGePoint3d base, corner;
    OdString text;
    XRefTracker tracker;
};

} // namespace

int promptScale(const OdDbBlockReferencePtr& reference, const bool& uniform, double unitFactor) {
    ScalePrompt prompt(reference, uniform);
    if (!prompt.run())
        return kInputCancelled;
    reference->setScaleFactors(prompt.dividedBy(unitFactor));
    return kInputPicked;
}
