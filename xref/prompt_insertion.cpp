// The loop of the insertion prompt and what each of its keywords does.
#include "xref/prompt_insertion.h"

#include "host/command_io.h"
#include "xref/attach_host.h"
#include "xref/prompt_value.h"
#include "xref/ucs_rotation.h"
#include "xref/xref_tracker.h"

#include <QCursor>
#include <QGuiApplication>

namespace {

// The %s goes to the console as it stands, here and elsewhere: the console fills in the keywords.
constexpr const wchar_t* kPrompt = L"Specify insertion point or [%s]";
constexpr const wchar_t* kKeywords =
    L"Scale X Y Z Rotate PScale PX PY PZ PRotate *S *X *Y *Z *R *PS *PX *PY *PZ *PR _ "
    L"Scale X Y Z Rotate PScale PX PY PZ PRotate *S *X *Y *Z *R *PS *PX *PY *PZ *PR";

// Results of the prompt that do something. All other keywords end it as a cancel, X, Y, Z and *S among them:
// that is meant.
enum InsertionKeyword {
    kScale = 2,
    kRotate = 6,
    kPreviewScale = 7,
    kPreviewX = 8,
    kPreviewY = 9,
    kPreviewZ = 10,
    kPreviewRotate = 11,
    kHiddenX = 13,
    kHiddenY = 14,
    kHiddenZ = 15
};

class InsertionPrompt {
public:
    InsertionPrompt(bool& scale, bool& rotation, const OdDbBlockReferencePtr& placed, double factor)
        : scaleOnScreen(scale), rotationOnScreen(rotation), reference(placed), unitFactor(factor) {}

    // True when the keyword was answered and the prompt comes again.
    bool take(int code) {
        switch (code) {
        case kScale:
            return scaleAll();
        case kRotate:
            return rotate();
        case kPreviewScale:
            return preview(L"Specify preview scale factor for XYZ axes:");
        case kPreviewX:
            return preview(L"Specify preview X scale factor:");
        case kPreviewY:
        case kPreviewZ: // asks with the text of Y, on purpose
            return preview(L"Specify preview Y scale factor:");
        case kPreviewRotate:
            return promptAngleValue(L"Specify preview rotation angle:", L"", value) == kInputPicked;
        case kHiddenX:
            return scaleAxis(L"Specify X scale factor or [%s] <1>:", &OdGeScale3d::sx);
        case kHiddenY:
            return scaleAxis(L"Specify Y scale factor", &OdGeScale3d::sy);
        case kHiddenZ:
            return scaleAxis(L"Specify Z scale factor", &OdGeScale3d::sz);
        default:
            return false;
        }
    }

private:
    bool askFactor(const wchar_t* prompt) {
        return promptDistanceValue(prompt, L"", value, true) == kInputPicked;
    }
    // The preview keywords change nothing in the drawing: their value is dropped.
    bool preview(const wchar_t* prompt) { return askFactor(prompt); }
    bool scaleAll() {
        if (!askFactor(L"Specify scale factor for XYZ axes:"))
            return false;
        reference->setScaleFactors(OdGeScale3d(value / unitFactor));
        scaleOnScreen = false;
        return true;
    }
    bool scaleAxis(const wchar_t* prompt, double OdGeScale3d::*axis) {
        if (!askFactor(prompt))
            return false;
        OdGeScale3d factors = reference->scaleFactors();
        factors.*axis = value / unitFactor;
        reference->setScaleFactors(factors);
        scaleOnScreen = false;
        return true;
    }
    bool rotate() {
        if (promptAngleValue(L"Specify rotation angle <0>", L"", value) != kInputPicked)
            return false;
        reference->setRotation(ucsRotation(reference, value));
        rotationOnScreen = false;
        return true;
    }

    bool& scaleOnScreen;
    bool& rotationOnScreen;
    const OdDbBlockReferencePtr& reference;
    double unitFactor;
    double value = 0;
};

} // namespace

int promptInsertion(bool& scaleOnScreen, bool& rotationOnScreen, const OdDbBlockReferencePtr& reference,
                    double unitFactor) {
    HostCommandIO& io = *attach::io();
    const OdString prompt = attach::word(kPrompt), keywords = attach::word(kKeywords);
    QCursor::pos(QGuiApplication::screens().value(0)); // read and dropped
    XRefTracker tracker(reference, kTrackPosition, nullptr, nullptr, OdGePoint3d::kOrigin);
    InsertionPrompt answers(scaleOnScreen, rotationOnScreen, reference, unitFactor);
    for (;;) {
        OdGePoint3d point;
        OdString text;
        const int code =
            io.getPoint(nullptr, &point, prompt.c_str(), keywords.c_str(), kInsertionFlags, &text, &tracker);
        if (code == kInputPicked || code == kInputTyped) { // typed text takes the same path, on purpose
            reference->setPosition(point);
            return kInputPicked;
        }
        if (!answers.take(code))
            return kInputCancelled;
    }
}
