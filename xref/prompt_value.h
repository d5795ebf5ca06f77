// What the prompts of the attach command share: their flags, their texts, and the two prompts for a typed or
// picked value. Every prompt routine returns kInputPicked when accepted and kInputCancelled otherwise.
#pragma once

#include "sdk/rx/od_string.h"

enum PromptFlags { kInsertionFlags = 0, kRealFlags = 4, kFirstPointFlags = 6, kValueFlags = 14 };

// Within 1e-10 of zero: no usable extent or factor.
bool isZeroLength(double value);
// Composes the message of a refused answer for the console; the prompt comes again by itself.
void refuseAnswer(const wchar_t* message);
inline constexpr const wchar_t* kValueMustBeNonzero = L"Value must be nonzero.";

// A distance, typed or as two points. With `nonZero` a typed 0 is asked for again; two equal points are not.
int promptDistanceValue(const wchar_t* prompt, const wchar_t* keywords, double& value, bool nonZero);
// An angle in radians, typed or as two points.
int promptAngleValue(const wchar_t* prompt, const wchar_t* keywords, double& value);
