#pragma once

#include "platform/CommandStart.h"
#include "platform/Fields.h"
#include "platform/Focus.h"
#include "platform/FolderPicker.h"
#include "platform/MessageBoxes.h"
#include "platform/Pointer.h"
#include "platform/Process.h"
#include "support/Journal.h"

#include <array>

namespace etiquetas::test {

/// The operator and what stands before them: message boxes, focus, pointer, and the end of the run.
struct FakeDesk : MessageBoxes, Focus, Pointer, Process, FolderPicker, CommandStart, Fake {
    using Fake::Fake;

    Answer answer = Answer::yes;

    /// The folder that the operator picks, and the field that was given the focus last.
    Text picked;
    const TextField* focused = nullptr;

    Answer show(const Message& message) override {
        constexpr std::array symbols{"none", "stop", "question", "exclamation"};
        const std::string symbol = symbols.at(static_cast<std::size_t>(message.symbol));
        const bool is_question = message.buttons == Buttons::yes_no;
        journal.noteAside("message", symbol, is_question ? "yes/no" : "ok",
                          "[" + utf8(message.title) + "]", utf8(message.text));
        const std::string title = message.title.empty() ? "" : " under " + inQuotes(message.title);
        journal.tell("message", symbol, is_question ? "yes/no" : "ok",
                     inQuotes(message.text) + title);
        return answer;
    }
    void tabForward() override { journal.note("focus forward"); }
    void tabBackward() override { journal.note("focus backward"); }
    void moveTo(const TextField& field) override { focused = &field; }
    void busy() override { journal.note("pointer busy"); }
    void normal() override { journal.note("pointer normal"); }
    void end() override { journal.note("exit"); }
    Text pick(TextView title) override {
        journal.note("pick", utf8(title));
        return picked;
    }
    void start(TextView command_file) override { journal.note("start", utf8(command_file)); }
};

} // namespace etiquetas::test
