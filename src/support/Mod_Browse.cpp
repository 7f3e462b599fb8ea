#include "support/Mod_Browse.h"

#include "base/Failure.h"
#include "platform/FolderPicker.h"

namespace etiquetas {

Text BrowseFolder(FolderPicker& folders, TextView title) {
    Text path;
    skip([&] { path = folders.pick(title); });
    // A zero character ends the path.
    return path.substr(0, path.find(u'\0'));
}

} // namespace etiquetas
