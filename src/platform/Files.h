#pragma once

#include "base/Text.h"
#include "platform/Interface.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace etiquetas {

/// The file system. Paths are texts in the machine's own form. Only what changes or reads a file
/// may fail; the questions never do.
class Files : public Interface {
  public:
    /// The folder that holds the program, without a separator at its end unless it is a root.
    [[nodiscard]] virtual Text programFolder() const = 0;
    /// The character between the parts of a path.
    [[nodiscard]] virtual char16_t separator() const = 0;

    [[nodiscard]] virtual bool fileExists(TextView path) const = 0;
    /// False for a blank name.
    [[nodiscard]] virtual bool folderExists(TextView path) const = 0;
    /// Names of the files in a folder, in any order; none where it can't be read.
    [[nodiscard]] virtual std::vector<Text> filesIn(TextView folder) const = 0;

    /// Makes a folder, and deletes a file; they fail where that can't be done.
    virtual void makeFolder(TextView path) = 0;
    virtual void deleteFile(TextView path) = 0;

    /// All bytes of a file; fails where it can't be read.
    [[nodiscard]] virtual std::string read(TextView path) const = 0;
    /// Gives a file new bytes in one step, so that a power cut leaves the old ones or the new ones;
    /// creates it where it is missing, and fails where it can't be written.
    virtual void replace(TextView path, std::string_view bytes) = 0;

    /// What a file's bytes become.
    using Change = std::function<std::string(std::string_view bytes)>;

    /// Reads a file, changes its bytes and replaces it; a missing one is changed from no bytes.
    /// Fails as these steps do, the file as it was then: one that can't be read is never replaced.
    /// A machine on which several programs work on one folder keeps the others out meanwhile.
    virtual void update(TextView path, const Change& change);
};

/// The path of a name in a folder: one separator between them, none added where the folder's text
/// ends in one.
[[nodiscard]] Text joined(const Files& files, TextView folder, TextView name);

/// Whether a text is the name of one file: it holds no separator of a path and no "..", so that it
/// leads out of no folder.
[[nodiscard]] bool isPlainName(const Files& files, TextView name);

/// The path of the file with this name in the folder, found without regard to the case of the
/// name; the exact name wins. Empty where there is none.
[[nodiscard]] std::optional<Text> findFile(const Files& files, TextView folder, TextView name);

} // namespace etiquetas
