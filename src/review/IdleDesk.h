#pragma once

#include "platform/CommandStart.h"
#include "platform/Focus.h"
#include "platform/FolderPicker.h"
#include "platform/Pointer.h"
#include "platform/Process.h"

namespace etiquetas {

/// A desk without a window: no focus moves, no pointer shows, no folder is picked, and no command
/// ends the program or starts another one.
struct IdleDesk final : Focus, Pointer, Process, FolderPicker, CommandStart {
    void tabForward() override {}
    void tabBackward() override {}
    void moveTo(const TextField& /*field*/) override {}
    void busy() override {}
    void normal() override {}
    void end() override {}
    [[nodiscard]] Text pick(TextView /*title*/) override { return {}; }
    void start(TextView /*command_file*/) override {}
};

} // namespace etiquetas
