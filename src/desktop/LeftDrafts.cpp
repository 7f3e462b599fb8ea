#include "desktop/LeftDrafts.h"

#include "desktop/machine/WholeFile.h"
#include "desktop/printing/PdfFile.h"

#include <QDir>

namespace etiquetas {

QStringList removeLeftDrafts(const QString& folder) {
    const QDir place(folder);
    const QDir jobs(place.filePath(pdf_folder.toString()));
    return removeOldDrafts(place, whole_file_drafts) + removeOldDrafts(jobs, pdf_drafts);
}

} // namespace etiquetas
