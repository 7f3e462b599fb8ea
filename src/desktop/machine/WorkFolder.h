#pragma once

#include <QString>

namespace etiquetas {

/// The folder that the Workbench works in: settings, logos, photographs, written jobs, history and
/// log. To the system it is the program's folder.
struct WorkFolder {
    QString path;
    bool is_new = false; // it was laid out just now
    bool is_writable = true;
};

/// Where the Workbench works: in the folder that is named; else beside the program, where that
/// stands in a folder of its own that can be written (a portable one); else in "etiquetas" among
/// the user's data. The toolkit's application must exist.
[[nodiscard]] QString workFolderPath(const QString& named);

/// The same folder, ready to work in: that of the user is laid out where it has no settings yet,
/// with folders for photographs and written jobs, and with the logos, the settings and the
/// photographs that the program brings. Nothing fails here: what can't be laid out or written is
/// told by the result.
[[nodiscard]] WorkFolder openWorkFolder(const QString& named);

/// What the operator is to know of the folder, in Portuguese; empty where that is nothing.
[[nodiscard]] QString tellFolder(const WorkFolder& folder);

} // namespace etiquetas
