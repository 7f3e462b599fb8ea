#include "desktop/console/ConsoleText.h"

#include <QJsonDocument>

#include <algorithm>
#include <cstdio>

namespace etiquetas {

namespace {

void write(std::FILE* stream, const QByteArray& line) {
    // A reader that has gone away is no fault of ours.
    (void)std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stream);
    (void)std::fflush(stream);
}

std::vector<qsizetype> widthsOf(const Table& table) {
    std::vector<qsizetype> widths;
    for (qsizetype column = 0; column < table.heading.size(); ++column) {
        qsizetype width = table.heading[column].size();
        for (const QStringList& row : table.rows) {
            width = std::max(width, row[column].size());
        }
        widths.push_back(width);
    }
    return widths;
}

QString lineOf(const QStringList& texts, const std::vector<qsizetype>& widths) {
    QString line;
    for (qsizetype column = 0; column < texts.size(); ++column) {
        line += texts[column].leftJustified(widths[static_cast<std::size_t>(column)]) +
                QStringLiteral("  ");
    }
    while (line.endsWith(u' ')) {
        line.chop(1);
    }
    return line;
}

} // namespace

void print(const QString& line) {
    write(stdout, line.toUtf8() + '\n');
}

void tell(const QString& line) {
    write(stderr, line.toUtf8() + '\n');
}

void print(const Table& table) {
    const auto widths = widthsOf(table);
    print(lineOf(table.heading, widths));
    for (const QStringList& row : table.rows) {
        print(lineOf(row, widths));
    }
}

void print(const QJsonArray& array) {
    write(stdout, QJsonDocument(array).toJson());
}

} // namespace etiquetas
