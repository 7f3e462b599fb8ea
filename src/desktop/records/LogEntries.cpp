#include "desktop/records/LogEntries.h"

#include "base/Version.h"
#include "desktop/machine/QtText.h"

#include <QDir>
#include <QStringList>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

QString nameOf(Symbol symbol) {
    switch (symbol) {
    case Symbol::stop:
        return u"parada"_s;
    case Symbol::question:
        return u"pergunta"_s;
    case Symbol::exclamation:
        return u"exclamação"_s;
    case Symbol::none:
        break;
    }
    return u"sem símbolo"_s;
}

QString nameOf(Answer answer) {
    switch (answer) {
    case Answer::yes:
        return u"Sim"_s;
    case Answer::no:
        return u"Não"_s;
    case Answer::ok:
        break;
    }
    return u"OK"_s;
}

QString targetOf(const EndedJob& job) {
    switch (job.target.device) {
    case Device::printer:
        return u"impressora \"%1\""_s.arg(job.target.name);
    case Device::preview:
        return u"pré-visualização"_s;
    case Device::pdf_file:
        break;
    }
    return job.file.isEmpty() ? u"arquivo PDF"_s : u"arquivo \"%1\""_s.arg(job.file);
}

QString resultOf(const EndedJob& job) {
    if (!job.delivered) {
        return u"não entregue: %1"_s.arg(job.reason);
    }
    const QString number = job.number == 0 ? QString() : u" (trabalho %1)"_s.arg(job.number);
    const QString waits =
        job.waits.isEmpty() ? QString() : u", a fila está parada: %1"_s.arg(job.waits);
    return u"entregue"_s + number + waits;
}

} // namespace

Log startedLog(const QString& folder) {
    Log log(QDir(folder).filePath(u"etiquetas.log"_s));
    log.info(u"Início: Etiquetas %1.%2.%3, Qt %4, pasta \"%5\""_s.arg(version_major)
                 .arg(version_minor)
                 .arg(version_patch)
                 .arg(QString::fromLatin1(qVersion()), QDir::toNativeSeparators(folder)));
    return log;
}

void logPrinters(Log& log, const Printers& printers) {
    QStringList names;
    for (const Text& name : printers.names()) {
        names.append(u"\"%1\""_s.arg(toQString(name)));
    }
    log.info(u"Impressoras: %1; padrão: \"%2\""_s.arg(names.join(u", "_s),
                                                      toQString(printers.defaultName())));
}

void logFileRead(Log& log, TextView path, std::size_t bytes) {
    const QString name = toQString(path);
    if (!name.endsWith(u".ini"_s, Qt::CaseInsensitive)) {
        log.info(u"Arquivo lido: \"%1\", %2 bytes"_s.arg(name, QString::number(bytes)));
    }
}

void logJob(Log& log, const EndedJob& job) {
    QString text = u"Impressão: %1, etiquetas: %2, páginas: %3, %4"_s.arg(
        targetOf(job), QString::number(job.labels), QString::number(job.pages), resultOf(job));
    if (job.cut_off > 0) {
        text += u", etiquetas incompletas: %1"_s.arg(job.cut_off);
    }
    job.delivered ? log.info(text) : log.warning(text);
}

void logMessage(Log& log, const Message& message) {
    log.info(u"Mensagem (%1): %2"_s.arg(nameOf(message.symbol), toQString(message.text)));
}

void logAnswer(Log& log, Answer answer) {
    log.info(u"Resposta: %1"_s.arg(nameOf(answer)));
}

void logDraftRemoved(Log& log, const QString& path) {
    log.info(u"Rascunho antigo removido: \"%1\""_s.arg(path));
}

void logSkipped(Log& log, const Failure& failure) {
    log.warning(u"Falha ignorada: %1 (%2, número %3)"_s.arg(toQString(failure.description()),
                                                            toQString(failure.source()),
                                                            QString::number(failure.number())));
}

void logFatal(Log& log, const QString& description) {
    log.error(u"Falha que encerra o programa: %1"_s.arg(description));
}

void logEnd(Log& log, int exit_code) {
    log.info(u"Fim, código %1"_s.arg(exit_code));
}

} // namespace etiquetas
