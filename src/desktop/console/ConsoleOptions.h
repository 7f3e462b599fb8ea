#pragma once

#include "platform/MessageBoxes.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

namespace etiquetas {

/// What the command line asks for. `window` is the Workbench itself, `manual` a window as well.
enum class Task : std::uint8_t { window, manual, help, version, print, review, list, history };

/// What `--listar` can list.
enum class Listed : std::uint8_t { kinds, orders, items, printers };

/// Whole numbers from the first to the last one, both included.
struct NumberRange {
    int first = 0;
    int last = 0;

    friend bool operator==(const NumberRange&, const NumberRange&) = default;
};

/// The command line, read and found to make sense by itself.
struct ConsoleOptions {
    Task task = Task::window;
    QString folder; // of the Workbench; empty where none is named
    QString order;
    QString kind;    // empty where none is named
    QString printer; // likewise
    std::vector<NumberRange> items;
    std::optional<NumberRange> volumes;
    QString output;               // folder of the written jobs; empty where it is the usual one
    std::optional<Answer> answer; // to questions on the way; without it they stop the run
    bool confirms = true;         // answers the closing question with Yes
    Listed listed = Listed::kinds;
    bool json = false;
};

/// The options, or in `fault` a sentence in Portuguese that tells why they make no sense.
struct ReadOptions {
    ConsoleOptions options;
    QString fault;
};

/// Reads the arguments, the program's name being the first one.
[[nodiscard]] ReadOptions readOptions(const QStringList& arguments);

/// The numbers of "1,3-5"; nothing where the text is of another form or a number is not positive.
[[nodiscard]] std::optional<std::vector<NumberRange>> numberRanges(const QString& text);

/// The help text, in Portuguese.
[[nodiscard]] QString helpText();

} // namespace etiquetas
