#pragma once

#include "base/Text.h"

#include <optional>
#include <variant>
#include <vector>

namespace etiquetas {

// The lines of the command file that takes a job to the printer's port. They are those of the
// command shell of Windows: a machine without that shell reads them here and does what they say.

/// Takes the mapping of a port away.
struct UnmapPort {
    Text port;

    friend bool operator==(const UnmapPort&, const UnmapPort&) = default;
};

/// Maps a port to the share of a printer on this very machine.
struct MapPort {
    Text port;
    Text share;

    friend bool operator==(const MapPort&, const MapPort&) = default;
};

/// Copies a file to a port.
struct TypeFile {
    Text file;
    Text port;

    friend bool operator==(const TypeFile&, const TypeFile&) = default;
};

using PortCommand = std::variant<UnmapPort, MapPort, TypeFile>;

/// What takes the job file to a port: with a share, which may have no name, the port is mapped to
/// it first. The job file is named without a folder: the command file runs in its own.
[[nodiscard]] std::vector<PortCommand> portCommands(TextView port,
                                                    const std::optional<Text>& share);

/// The command as a line of the command file, without a line end.
[[nodiscard]] Text commandLine(const PortCommand& command);

/// The command of one line, without regard to case; nothing for any other line.
[[nodiscard]] std::optional<PortCommand> readCommandLine(TextView line);

/// The commands in the text of a command file, in order. Carriage returns and line feeds end its
/// lines, and other lines are passed over.
[[nodiscard]] std::vector<PortCommand> readCommandFile(TextView text);

} // namespace etiquetas
