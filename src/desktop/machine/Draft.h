#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <cstdint>

namespace etiquetas {

/// What became of a name that a draft was to take.
enum class NewName : std::uint8_t { given, taken, refused };

/// A file that is being written, which takes its name when it is whole. Until then it is gone with
/// this object.
class Draft {
  public:
    /// Makes an empty file with the permissions of any new file. Its name is `names` with something
    /// that no other file has in place of the `*`.
    Draft(const QDir& folder, QStringView names);
    ~Draft();
    Draft(const Draft&) = delete;
    Draft(Draft&&) = delete;
    Draft& operator=(const Draft&) = delete;
    Draft& operator=(Draft&&) = delete;

    /// False where the folder can't be written to.
    [[nodiscard]] bool isMade() const { return made_; }
    [[nodiscard]] const QString& path() const { return path_; }

    /// Puts the draft in place of the file of this path in the same folder, if there is one, in one
    /// step; false where that fails.
    [[nodiscard]] bool replace(const QString& path) const;

    /// Gives the draft a path in the same folder, in one step and never that of a file which is
    /// there: of two programs that want a name one gets it.
    [[nodiscard]] NewName take(const QString& path) const;

  private:
    QString path_;
    bool made_ = false;
};

/// Forces what was written to a file that is open for writing to the disk; false where that fails.
[[nodiscard]] bool forceToDisk(const QFile& file);

/// Removes the drafts that a killed program left in a folder: files of these names, with
/// wildcards, that no one has written to for more than an hour. Tells their paths.
QStringList removeOldDrafts(const QDir& folder, QStringView names);

} // namespace etiquetas
