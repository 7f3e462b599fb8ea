#include "channel/CommandFile.h"

#include "config/ProgramFiles.h"

#include <algorithm>
#include <utility>

namespace etiquetas {

namespace {

constexpr TextView net_use = u"net use ";
constexpr TextView remove_mapping = u": /delete";
constexpr TextView to_share = u": \\\\127.0.0.1\\";
constexpr TextView without_question = u" /yes";
constexpr TextView type = u"type ";
constexpr TextView to_port = u" > ";

struct LineWriter {
    Text operator()(const UnmapPort& unmap) const {
        return Text(net_use).append(unmap.port).append(remove_mapping);
    }
    Text operator()(const MapPort& map) const {
        return Text(net_use).append(map.port).append(to_share).append(map.share).append(
            without_question);
    }
    Text operator()(const TypeFile& typed) const {
        return Text(type).append(typed.file).append(to_port).append(typed.port);
    }
};

// What stands between the two ends of a line; nothing where the line has other ends.
std::optional<TextView> between(TextView start, TextView line, TextView end) {
    if (line.size() < start.size() + end.size() ||
        !equalIgnoringCase(left(line, start.size()), start) ||
        !equalIgnoringCase(right(line, end.size()), end)) {
        return {};
    }
    return line.substr(start.size(), line.size() - start.size() - end.size());
}

struct Parts {
    TextView first; // never empty
    TextView second;
};

// What stands before and after the last separator.
std::optional<Parts> cutAtLast(TextView text, TextView separator) {
    const std::size_t at = text.rfind(separator);
    if (at == TextView::npos || at == 0) {
        return {};
    }
    return Parts{text.substr(0, at), text.substr(at + separator.size())};
}

std::optional<PortCommand> unmapOf(TextView line) {
    const auto port = between(net_use, line, remove_mapping);
    if (!port || port->empty()) {
        return {};
    }
    return UnmapPort{Text(*port)};
}

std::optional<PortCommand> mapOf(TextView line) {
    const auto mapping = between(net_use, line, without_question);
    const auto parts = mapping ? cutAtLast(*mapping, to_share) : std::nullopt;
    if (!parts) {
        return {};
    }
    return MapPort{Text(parts->first), Text(parts->second)};
}

std::optional<PortCommand> typeOf(TextView line) {
    const auto typed = between(type, line, {});
    const auto parts = typed ? cutAtLast(*typed, to_port) : std::nullopt;
    if (!parts || parts->second.empty()) {
        return {};
    }
    return TypeFile{Text(parts->first), Text(parts->second)};
}

} // namespace

std::vector<PortCommand> portCommands(TextView port, const std::optional<Text>& share) {
    std::vector<PortCommand> commands;
    if (share) {
        commands.emplace_back(UnmapPort{Text(port)});
        commands.emplace_back(MapPort{Text(port), *share});
    }
    commands.emplace_back(TypeFile{Text(job_file), Text(port)});
    return commands;
}

Text commandLine(const PortCommand& command) {
    return std::visit(LineWriter{}, command);
}

std::optional<PortCommand> readCommandLine(TextView line) {
    for (const auto& read : {unmapOf, mapOf, typeOf}) {
        if (auto command = read(line)) {
            return command;
        }
    }
    return {};
}

std::vector<PortCommand> readCommandFile(TextView text) {
    constexpr TextView line_ends = u"\r\n";
    std::vector<PortCommand> commands;
    while (!text.empty()) {
        const TextView line = text.substr(0, text.find_first_of(line_ends));
        if (auto command = readCommandLine(line)) {
            commands.push_back(*std::move(command));
        }
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return commands;
}

} // namespace etiquetas
