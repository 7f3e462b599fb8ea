#include "desktop/machine/Log.h"

#include <QFile>

#include <spdlog/logger.h>
#include <spdlog/sinks/null_sink.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <string>

namespace etiquetas {

namespace {

// What entries go to: the file or, where it can't be opened, nothing.
spdlog::sink_ptr openedSink(const QString& path) {
    try {
        auto file = std::make_shared<spdlog::sinks::rotating_file_sink_st>(
            QFile::encodeName(path).toStdString(), Log::most_bytes, Log::most_files - 1);
        file->set_pattern("%Y-%m-%d %H:%M:%S.%e %v");
        return file;
    } catch (const spdlog::spdlog_ex&) {
        return std::make_shared<spdlog::sinks::null_sink_st>();
    }
}

// An entry is one line, whatever its text holds.
std::string oneLine(QString text) {
    for (QChar& character : text) {
        if (character.isSpace() || character.category() == QChar::Other_Control) {
            character = u' ';
        }
    }
    return text.toStdString();
}

} // namespace

Log::Log(const QString& path)
    : logger_(std::make_unique<spdlog::logger>("etiquetas", openedSink(path))) {
    logger_->flush_on(spdlog::level::info); // a program that is killed has told all by then
    // An entry that can't be written is lost. The next one gets a file opened anew: a sink whose
    // file went away while it made room is not fit to be written to.
    logger_->set_error_handler([path, sinks = &logger_->sinks()](const std::string&) {
        sinks->front() = openedSink(path);
    });
}

Log::~Log() = default;
Log::Log(Log&&) noexcept = default;

void Log::info(const QString& text) {
    logger_->info("INFO  {}", oneLine(text));
}

void Log::warning(const QString& text) {
    logger_->warn("AVISO {}", oneLine(text));
}

void Log::error(const QString& text) {
    logger_->error("ERRO  {}", oneLine(text));
}

} // namespace etiquetas
