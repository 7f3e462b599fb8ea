#include "desktop/records/JobHistory.h"

#include "base/Failure.h"
#include "desktop/machine/QtText.h"
#include "model/FrmPadrao.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

#include <array>
#include <initializer_list>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fail(const QSqlError& error) {
    throw Failure(failure_number::file_access, u"JobHistory",
                  toText(u"O histórico de impressões não está disponível: %1"_s.arg(error.text())));
}

QSqlQuery run(const QSqlDatabase& database, const QString& statement,
              const QVariantList& values = {}) {
    QSqlQuery query(database);
    if (!query.prepare(statement)) {
        fail(query.lastError());
    }
    for (const QVariant& value : values) {
        query.addBindValue(value);
    }
    if (!query.exec()) {
        fail(query.lastError());
    }
    return query;
}

// An answer in the database and, in words, for the operator.
struct AnswerName {
    Answer answer;
    QString name;
};

const std::array<AnswerName, 2>& answerNames() {
    static const std::array<AnswerName, 2> names{{{Answer::yes, u"Sim"_s}, {Answer::no, u"Não"_s}}};
    return names;
}

QString nameOf(Answer answer) {
    return answerNames()[answer == Answer::yes ? 0 : 1].name;
}

std::optional<Answer> answerOf(const QString& name) {
    for (const AnswerName& row : answerNames()) {
        if (row.name == name) {
            return row.answer;
        }
    }
    return std::nullopt;
}

const QString& columns() {
    static const QString names = u"quando, pedido, tipo, item, etiquetas, destino, resposta"_s;
    return names;
}

// Of a row with the columns in their order. The time is kept in UTC, so that the clock of another
// machine or a change of the season does not disturb it.
PrintedJob jobOf(const QSqlQuery& row) {
    const auto text = [&row](int column) { return row.value(column).toString(); };
    return {.time = QDateTime::fromString(text(0), Qt::ISODate).toLocalTime(),
            .item = {.order = text(1), .kind = text(2), .item = text(3)},
            .labels = row.value(4).toInt(),
            .target = text(5),
            .answer = answerOf(text(6))};
}

} // namespace

PrintedItem shownItem(const FrmPadrao& form) {
    const bool cartons = !form.Frame1.visible;
    return {.order = toQString(trimmed(form.txtarquivo.text)),
            .kind = toQString(cartons ? tipo::corrugado : TextView(form.cmbtipo.text)),
            .item = toQString(cartons ? form.cmb_referencia1.text : form.cmb_referencia.text)};
}

QString tellJob(const PrintedJob& job) {
    const QString labels = job.labels == 1 ? u"1 etiqueta"_s : u"%1 etiquetas"_s.arg(job.labels);
    return u"impresso em %1 (%2)"_s.arg(job.time.toString(u"dd/MM/yyyy 'às' HH:mm"_s), labels);
}

JobHistory::JobHistory(const QString& folder)
    : path_(QDir(folder).filePath(u"historico.sqlite"_s)),
      connection_(QUuid::createUuid().toString()) {}

JobHistory::~JobHistory() {
    QSqlDatabase::removeDatabase(connection_); // no matter whether it was ever opened
}

// The journal stays the one that the database begins with: write-ahead logs need memory that is
// shared, which folders of a network lack.
void JobHistory::open() const {
    if (QSqlDatabase::database(connection_, false).isOpen()) {
        return;
    }
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, connection_);
    database.setDatabaseName(path_);
    database.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=200"_s); // ms
    if (!database.open()) {
        fail(database.lastError());
    }
    for (const QString& statement :
         {u"CREATE TABLE IF NOT EXISTS trabalhos (id INTEGER PRIMARY KEY, quando TEXT NOT NULL, "
          "pedido TEXT NOT NULL, tipo TEXT NOT NULL, item TEXT NOT NULL, "
          "etiquetas INTEGER NOT NULL, destino TEXT NOT NULL, resposta TEXT)"_s,
          u"CREATE INDEX IF NOT EXISTS trabalhos_item ON trabalhos (pedido, tipo, item)"_s}) {
        run(database, statement);
    }
}

qint64 JobHistory::add(const PrintedJob& job) {
    open();
    const QVariantList values{job.time.toUTC().toString(Qt::ISODate),
                              job.item.order,
                              job.item.kind,
                              job.item.item,
                              job.labels,
                              job.target,
                              job.answer ? QVariant(nameOf(*job.answer)) : QVariant()};
    const QString statement =
        u"INSERT INTO trabalhos (%1) VALUES (?, ?, ?, ?, ?, ?, ?)"_s.arg(columns());
    return run(QSqlDatabase::database(connection_), statement, values).lastInsertId().toLongLong();
}

void JobHistory::answer(qint64 number, Answer answer) {
    open();
    run(QSqlDatabase::database(connection_), u"UPDATE trabalhos SET resposta = ? WHERE id = ?"_s,
        {nameOf(answer), number});
}

std::vector<PrintedJob> JobHistory::jobs(const QString& order) const {
    std::vector<PrintedJob> jobs;
    if (!QFile::exists(path_)) {
        return jobs;
    }
    open();
    const QString condition = order.isEmpty() ? QString() : u"WHERE pedido = ? "_s;
    const QString statement = u"SELECT %1 FROM trabalhos %2ORDER BY id"_s.arg(columns(), condition);
    QSqlQuery rows = run(QSqlDatabase::database(connection_), statement,
                         order.isEmpty() ? QVariantList() : QVariantList{order});
    while (rows.next()) {
        jobs.push_back(jobOf(rows));
    }
    return jobs;
}

std::optional<PrintedJob> JobHistory::lastOf(const PrintedItem& item) const {
    if (!QFile::exists(path_)) {
        return std::nullopt;
    }
    open();
    const QString statement = u"SELECT %1 FROM trabalhos WHERE pedido = ? AND tipo = ? AND "
                              "item = ? ORDER BY id DESC LIMIT 1"_s.arg(columns());
    QSqlQuery rows =
        run(QSqlDatabase::database(connection_), statement, {item.order, item.kind, item.item});
    return rows.next() ? std::optional(jobOf(rows)) : std::nullopt;
}

} // namespace etiquetas
