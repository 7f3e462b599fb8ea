#pragma once

#include "base/Failure.h"
#include "base/Text.h"
#include "platform/Interface.h"

#include <cstdint>

namespace etiquetas {

enum class Buttons : std::uint8_t { ok, yes_no };
enum class Symbol : std::uint8_t { none, stop, question, exclamation };
enum class Answer : std::uint8_t { ok, yes, no };

/// What a message box asks or tells. An empty title stands for the program's own.
struct Message {
    Text text;
    Symbol symbol = Symbol::none;
    Buttons buttons = Buttons::ok;
    Text title;
};

/// Message boxes, which hold the program until the operator has answered.
class MessageBoxes : public Interface {
  public:
    /// Shows the message. A box that is closed without an answer counts as OK or No.
    virtual Answer show(const Message& message) = 0;
};

/// Tells the operator something, in a box with one button. A box that fails is passed over.
inline void tellOperator(MessageBoxes& messages, TextView text, Symbol symbol = Symbol::none) {
    skip([&] { messages.show({.text = Text(text), .symbol = symbol}); });
}

} // namespace etiquetas
