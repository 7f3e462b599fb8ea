#include "desktop/printing/PdfBlanks.h"

#include <QByteArray>

#include <algorithm>

namespace etiquetas {

namespace {

// The entries of a table, a line each: the first and the last glyph, and what these say.
constexpr QByteArrayView entries_begin = "beginbfrange\n";
constexpr QByteArrayView entries_end = "endbfrange\n";
constexpr qsizetype two_glyphs = 14; // bytes, as in "<0001> <0025> "

constexpr QByteArrayView tab = "<0009>";
constexpr QByteArrayView blank = "<0020>";

// The first place of a tab in an entry, or -1.
qsizetype tabIn(QByteArrayView entry) {
    const qsizetype place = entry.size() > two_glyphs ? entry.sliced(two_glyphs).indexOf(tab) : -1;
    return place < 0 ? place : place + two_glyphs;
}

bool write(QFile& file, qsizetype place, QByteArrayView bytes) {
    return file.seek(place) && file.write(bytes.data(), bytes.size()) == bytes.size();
}

// `begin` and `end` bound the entries of one table.
bool mendTable(QFile& pdf, QByteArrayView bytes, qsizetype begin, qsizetype end) {
    bool is_written = true;
    while (begin < end) {
        const qsizetype line_end = std::min(bytes.indexOf('\n', begin), end);
        const qsizetype place = tabIn(bytes.sliced(begin, line_end - begin));
        is_written = is_written && (place < 0 || write(pdf, begin + place, blank));
        begin = line_end + 1;
    }
    return is_written;
}

} // namespace

bool mendBlanks(QFile& pdf) {
    pdf.seek(0);
    const QByteArray bytes = pdf.readAll();
    bool is_written = true;
    qsizetype begin = bytes.indexOf(entries_begin);
    while (begin >= 0 && is_written) {
        begin += entries_begin.size();
        const qsizetype end = bytes.indexOf(entries_end, begin);
        is_written = end < 0 || mendTable(pdf, bytes, begin, end);
        begin = bytes.indexOf(entries_begin, begin);
    }
    return is_written && pdf.flush();
}

} // namespace etiquetas
