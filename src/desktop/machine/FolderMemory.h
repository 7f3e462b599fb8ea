#pragma once

#include "platform/Files.h"

#include <functional>
#include <map>

namespace etiquetas {

/// Files that are asked once: what they told of a folder or of a file being there is kept until it
/// is forgotten, so that a folder that answers slowly is listed once in an event however many steps
/// of the event look into it. What a file holds is always read anew.
class FolderMemory final : public Files {
  public:
    /// `asked` must outlive this object.
    explicit FolderMemory(Files& asked) : asked_(&asked) {}

    /// From here on all is asked anew: time has passed, and others may have changed the folders.
    void forget();

    [[nodiscard]] Text programFolder() const override { return asked_->programFolder(); }
    [[nodiscard]] char16_t separator() const override { return asked_->separator(); }

    [[nodiscard]] bool fileExists(TextView path) const override;
    [[nodiscard]] bool folderExists(TextView path) const override;
    [[nodiscard]] std::vector<Text> filesIn(TextView folder) const override;

    void makeFolder(TextView path) override;
    void deleteFile(TextView path) override;

    [[nodiscard]] std::string read(TextView path) const override { return asked_->read(path); }
    void replace(TextView path, std::string_view bytes) override;
    void update(TextView path, const Change& change) override;

  private:
    template <typename Answer>
    using Answers = std::map<Text, Answer, std::less<>>;

    void noteWritten(TextView path);

    Files* asked_;
    mutable Answers<bool> files_;
    mutable Answers<bool> folders_;
    mutable Answers<std::vector<Text>> listings_;
};

} // namespace etiquetas
