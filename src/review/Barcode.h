#pragma once

#include "base/Text.h"
#include "platform/PictureBox.h"
#include "review/Finding.h"

#include <optional>

namespace etiquetas {

/// A fault of a barcode: its kind, and what is wrong in Portuguese.
struct BarcodeFault {
    FindingKind kind;
    Text text;
};

/// What is wrong with a code that is printed as EAN-13: 12 digits, or 13 with the check digit.
[[nodiscard]] std::optional<BarcodeFault> faultOfEan(TextView code);

/// What is wrong with a code that is printed in Code 39, which `scratch` draws. One that has the
/// length of an EAN-13 or EAN-8 must have its check digit (GS1 General Specifications).
[[nodiscard]] std::optional<BarcodeFault> faultOfCartonCode(TextView code, PictureBox& scratch);

/// The digits of an EAN-13 code, the check digit added where it lacks.
[[nodiscard]] Text wholeEan(TextView code);

} // namespace etiquetas
