// One loop for distances and angles, which differ in how text is read and the second point asked for.
#include "xref/prompt_value.h"

#include "host/command_io.h"
#include "sdk/ge/point3d.h"
#include "xref/attach_host.h"

#include <cmath>

namespace {

// One kind of value: how typed text is read, and how the second point is asked for.
struct ValueKind {
    bool (*read)(const OdString& text, double& value, bool nonZero);
    int (*askSecond)(HostCommandIO& io, const OdGePoint3d& base, double* value, const wchar_t* prompt,
                     OdString* text);
};

bool readDistance(const OdString& text, double& value, bool nonZero) {
    if (!hostdbDisToF(text, -1, value)) {
        refuseAnswer(L"Requires numeric distance or two points.");
        return false;
    }
    if (nonZero && value == 0.0) {
        refuseAnswer(kValueMustBeNonzero);
        return false;
    }
    return true;
}

bool readAngle(const OdString& text, double& value, bool) {
    if (hostdbAngToF(text, -1, value, 3))
        return true;
    refuseAnswer(L"Requires valid numeric angle or two points.");
    return false;
}

const ValueKind distanceKind{
    readDistance,
    [](HostCommandIO& io, const OdGePoint3d& base, double* value, const wchar_t* prompt, OdString* text) {
        return io.getDistance(base, value, prompt, nullptr, kValueFlags, text, nullptr);
    }};
const ValueKind angleKind{readAngle, [](HostCommandIO& io, const OdGePoint3d& base, double* value,
                                        const wchar_t* prompt, OdString* text) {
                              return io.getAngle(base, value, prompt, nullptr, kValueFlags, text, nullptr);
                          }};

// A picked second point is taken without a test for zero.
int secondPoint(HostCommandIO& io, const ValueKind& kind, const OdGePoint3d& base, const wchar_t* keywords,
                double& value, bool nonZero) {
    // Without keywords the prompt begins with two blanks, on purpose.
    const OdString prompt = OdString(keywords) + OdString(L"  ") + attach::word(L"Specify second point:");
    for (;;) {
        OdString text;
        const int code = kind.askSecond(io, base, &value, prompt.c_str(), &text);
        if (code == kInputPicked)
            return kInputPicked;
        if (code == kInputTyped && kind.read(text, value, nonZero))
            return kInputPicked;
        if (code != kInputTyped && code != kInputNone)
            return kInputCancelled;
    }
}

int promptValue(const ValueKind& kind, const wchar_t* prompt, const wchar_t* keywords, double& value,
                bool nonZero) {
    HostCommandIO& io = *attach::io();
    const OdGePoint3d origin;
    const OdString words = attach::word(prompt);
    for (;;) {
        OdGePoint3d point;
        OdString text;
        const int code =
            io.getPoint(&origin, &point, words.c_str(), keywords, kFirstPointFlags, &text, nullptr);
        if (code == kInputPicked)
            return secondPoint(io, kind, point, keywords, value, nonZero);
        if (code == kInputTyped && kind.read(text, value, nonZero))
            return kInputPicked;
        if (code != kInputTyped && code != kInputNone)
            return kInputCancelled;
    }
}

} // namespace

bool isZeroLength(double value) { return std::fabs(value) <= 1e-10; }

void refuseAnswer(const wchar_t* message) { reportToConsole(attach::io(), attach::word(message)); }

int promptDistanceValue(const wchar_t* prompt, const wchar_t* keywords, double& value, bool nonZero) {
    return promptValue(distanceKind, prompt, keywords, value, nonZero);
}

int promptAngleValue(const wchar_t* prompt, const wchar_t* keywords, double& value) {
    return promptValue(angleKind, prompt, keywords, value, false);
}
