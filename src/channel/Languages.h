#pragma once

#include "base/Text.h"
#include "channel/MarginKeys.h"
#include "channel/Transporte.h"

#include <cstddef>
#include <optional>
#include <span>

namespace etiquetas {

struct FrmPadrao;

// The printer languages. Each has a file of its own, with the margins of every stock of labels and
// the test labels that calibrate them. One more language is a file like Ppla.cpp and a row in
// Languages.cpp.

/// One column of a test label: the texts of the dialog's fields, as they are typed.
struct TestColumn {
    std::size_t index = 0; // from left to right
    TextView left;         // left margin
    TextView top;          // empty where the language has no top margin
    TextView code;         // empty where the label has a sample of its own
};

/// How the test label of a stock is written: the heading, each column, the end.
struct TestLabel {
    PrinterProgram (*heading)(const FrmPadrao& form) = nullptr;
    void (*writeColumn)(const TestColumn& column, PrinterProgram& program) = nullptr;
    std::span<const TextView> ending;
};

/// A stock of labels in one language. Only a stock that a dialog calibrates has a test label.
struct LabelStock {
    std::span<const MarginKey> columns; // left margins, from left to right
    std::optional<MarginKey> top;       // none where the language has no top margin
    TestLabel test_label;
};

struct PrinterLanguage {
    TextView name;         // as `lbllinguagem` holds it
    LabelStock hidden_3;   // hidden label, three columns
    LabelStock hidden_7;   // hidden label turned by a quarter, seven columns
    LabelStock hidden_8;   // hidden label turned by a quarter, eight columns
    LabelStock box_front;  // box front label, two columns
    LabelStock box_front2; // second box front label, two columns
    LabelStock carton;     // one column
};

extern const PrinterLanguage zpl;
extern const PrinterLanguage ppla;

/// The language of this name, exact in its case; any other name stands for PPLA.
[[nodiscard]] const PrinterLanguage& languageNamed(TextView name);

} // namespace etiquetas
