#include "platform/Files.h"

#include <algorithm>

namespace etiquetas {

void Files::update(TextView path, const Change& change) {
    replace(path, change(fileExists(path) ? read(path) : std::string()));
}

Text joined(const Files& files, TextView folder, TextView name) {
    Text path(folder);
    if (path.empty() || path.back() != files.separator()) {
        path += files.separator();
    }
    return path.append(name);
}

bool isPlainName(const Files& files, TextView name) {
    return name.find_first_of(u"/\\") == TextView::npos &&
           name.find(files.separator()) == TextView::npos && name.find(u"..") == TextView::npos;
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
