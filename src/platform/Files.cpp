#include "platform/Files.h"

#include <algorithm>

namespace etiquetas {

Text joined(const Files& files, TextView folder, TextView name) {
    Text path(folder);
    if (path.empty() || path.back() != files.separator()) {
        path += files.separator();
    }
    return path.append(name);
}

std::optional<Text> findFile(const Files& files, TextView folder, TextView name) {
    if (Text exact = joined(files, folder, name); files.fileExists(exact)) {
        return exact;
    }
    std::optional<Text> first;
    for (const Text& candidate : files.filesIn(folder)) {
        if (equalIgnoringCase(candidate, name) && (!first || sortsBefore(candidate, *first))) {
            first = candidate;
        }
    }
    return first ? std::optional(joined(files, folder, *first)) : std::nullopt;
}

} // namespace etiquetas
