#pragma once

#include <QString>
#include <QStringView>

#include <functional>

namespace etiquetas {

/// The folder of the written jobs, beneath that of the program.
inline constexpr QStringView pdf_folder = u"impressos";

/// The names of the drafts of PDF files, with wildcards.
inline constexpr QStringView pdf_drafts = u".impressao-*.pdf";

/// Makes a new PDF file in the folder, which is made where it is missing, named by the stem, and
/// tells its path. `write` fills a draft beside it; only what is complete takes the name, so that
/// a fault or a power cut leaves nothing of that name. No file is replaced: where several programs
/// write one of the same stem, each one's file gets a number of its own. Fails where the folder or
/// the file can't be written.
QString writePdfFile(const QString& folder, const QString& stem,
                     const std::function<void(const QString& path)>& write);

/// Puts a PDF file in place of the one at that path, if there is one; `write` fills a draft beside
/// it. Fails where the file can't be written; the old one is there then.
void replacePdfFile(const QString& path, const std::function<void(const QString& path)>& write);

} // namespace etiquetas
