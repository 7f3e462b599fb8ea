#pragma once

#include <QJsonArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace etiquetas {

/// Exit codes of the command line.
namespace exit_code {
inline constexpr int success = 0;
inline constexpr int failure = 1; // not all was printed, or something was found
inline constexpr int wrong_use = 2;
inline constexpr int question = 3; // that nobody was there to answer
} // namespace exit_code

/// A line to the standard output, in UTF-8, out at once.
void print(const QString& line);

/// A line to the standard error.
void tell(const QString& line);

/// A table: a heading and rows of as many texts.
struct Table {
    QStringList heading;
    std::vector<QStringList> rows;
};

/// Prints a table, its columns two blanks apart.
void print(const Table& table);

/// Prints a JSON document.
void print(const QJsonArray& array);

} // namespace etiquetas
