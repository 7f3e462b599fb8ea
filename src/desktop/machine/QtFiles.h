#pragma once

#include "base/Text.h"
#include "platform/Files.h"

#include <QString>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace etiquetas {

/// The file system by the toolkit. A fault is a `Failure` whose description names the file.
class QtFiles final : public Files {
  public:
    using FileRead = std::function<void(TextView path, std::size_t bytes)>;

    /// With the folder that holds the program.
    explicit QtFiles(const QString& program_folder);

    /// What is called after each file that was read, with its path and its size.
    void onRead(FileRead told) { file_read_ = std::move(told); }

    [[nodiscard]] Text programFolder() const override { return program_folder_; }
    [[nodiscard]] char16_t separator() const override;

    [[nodiscard]] bool fileExists(TextView path) const override;
    [[nodiscard]] bool folderExists(TextView path) const override;
    [[nodiscard]] std::vector<Text> filesIn(TextView folder) const override;

    /// One folder; the one that it stands in must be there. Fails where it exists already.
    void makeFolder(TextView path) override;
    void deleteFile(TextView path) override;

    /// Regular files of up to 256 MB, and links to them.
    [[nodiscard]] std::string read(TextView path) const override;
    void replace(TextView path, std::string_view bytes) override;

    /// Keeps other programs out by a lock file beside the file, for which it waits up to a second;
    /// fails then. A lock whose program was killed counts for nothing.
    void update(TextView path, const Change& change) override;

  private:
    Text program_folder_;
    FileRead file_read_ = [](TextView, std::size_t) {};
};

} // namespace etiquetas
