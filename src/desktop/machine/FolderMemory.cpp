#include "desktop/machine/FolderMemory.h"

namespace etiquetas {

namespace {

// The answer that is kept under the path, or else the one that `ask` gives now.
template <typename Answers, typename Ask>
const auto& answerOf(Answers& answers, TextView path, Ask&& ask) {
    const auto known = answers.find(path);
    return known != answers.end() ? known->second : answers.emplace(path, ask()).first->second;
}

} // namespace

void FolderMemory::forget() {
    files_.clear();
    folders_.clear();
    listings_.clear();
}

bool FolderMemory::fileExists(TextView path) const {
    return answerOf(files_, path, [&] { return asked_->fileExists(path); });
}

bool FolderMemory::folderExists(TextView path) const {
    return answerOf(folders_, path, [&] { return asked_->folderExists(path); });
}

std::vector<Text> FolderMemory::filesIn(TextView folder) const {
    return answerOf(listings_, folder, [&] { return asked_->filesIn(folder); });
}

void FolderMemory::makeFolder(TextView path) {
    forget();
    asked_->makeFolder(path);
}

void FolderMemory::deleteFile(TextView path) {
    forget();
    asked_->deleteFile(path);
}

void FolderMemory::replace(TextView path, std::string_view bytes) {
    noteWritten(path);
    asked_->replace(path, bytes);
}

// By the machine's own way, which keeps other programs out meanwhile.
void FolderMemory::update(TextView path, const Change& change) {
    noteWritten(path);
    asked_->update(path, change);
}

// New bytes in a file that was there leave every answer as it is.
void FolderMemory::noteWritten(TextView path) {
    if (!fileExists(path)) {
        forget();
    }
}

} // namespace etiquetas
