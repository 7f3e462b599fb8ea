#include "tests/desktop/PrintServer.h"

#include "tests/desktop/DriverlessPrinters.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTcpSocket>
#include <QtTest/QTest>
#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

PrintServer::PrintServer() {
    for (const char* name : {"spool", "spool/tmp", "cache", "state", "logs", "root"}) {
        QDir(folder_.path()).mkpath(QLatin1String(name));
    }
    // Filters run under a user of their own.
    QFile::setPermissions(folder_.path(), QFile::permissions(folder_.path()) | QFile::ExeGroup |
                                              QFile::ReadOther | QFile::ExeOther);
    writeSettings();
    qputenv("CUPS_SERVER", folder_.filePath(u"socket"_s).toLocal8Bit());
    server_.start(u"/usr/sbin/cupsd"_s, {u"-f"_s, u"-c"_s, folder_.filePath(u"cupsd.conf"_s),
                                         u"-s"_s, folder_.filePath(u"cups-files.conf"_s)});
    constexpr int tries = 200;
    for (int i = 0; i < tries && !is_running_ && server_.state() != QProcess::NotRunning; ++i) {
        constexpr int pause = 50; // milliseconds
        server_.waitForFinished(pause);
        is_running_ = QFile::exists(folder_.filePath(u"socket"_s));
    }
}

PrintServer::~PrintServer() {
    server_.terminate();
    server_.waitForFinished();
    qunsetenv("CUPS_SERVER");
}

void PrintServer::writeSettings() const {
    const auto write = [this](const QString& name, const QString& text) {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toLocal8Bit());
    };
    write(u"cupsd.conf"_s,
          u"Listen %1/socket\nBrowsing Off\nDefaultAuthType None\n"
          "WebInterface No\nLogLevel info\nPreserveJobHistory Yes\n"
          "<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n"
          "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"_s.arg(folder_.path()));
    write(u"cups-files.conf"_s,
          u"SystemGroup root\nServerRoot %1/root\nRequestRoot %1/spool\n"
          "TempDir %1/spool/tmp\nCacheDir %1/cache\nStateDir %1/state\n"
          "AccessLog %1/logs/access\nErrorLog %1/logs/error\nPageLog %1/logs/page\n"_s.arg(
              folder_.path()));
}

void PrintServer::addQueue(const QString& name, const QString& driver) {
    QTcpServer& printer = printers_[name];
    printer.listen(QHostAddress::LocalHost);
    tell(u"/usr/sbin/lpadmin"_s,
         {u"-p"_s, name, u"-E"_s, u"-v"_s,
          u"socket://127.0.0.1:%1/?waiteof=false"_s.arg(printer.serverPort()),
          driver.startsWith(u'/') ? u"-P"_s : u"-m"_s, driver, u"-o"_s,
          u"cupsSNMPSupplies=false"_s});
}

void PrintServer::addQueue(const QString& name, DriverlessPrinters& printers,
                           const QString& attributes) {
    QTcpServer& printer = printers_[name];
    printer.listen(QHostAddress::LocalHost);
    const QString address = printers.start(attributes, printer.serverPort());
    tell(u"/usr/sbin/lpadmin"_s,
         {u"-p"_s, name, u"-E"_s, u"-v"_s, address, u"-m"_s, u"everywhere"_s});
    // The print system asks the printer what it can, and describes it to itself.
    const QString description = folder_.filePath(u"root/ppd/%1.ppd"_s.arg(name));
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(description); })) << log().constData();
}

QString PrintServer::tell(const QString& tool, const QStringList& arguments) {
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

QByteArray PrintServer::printed(const QString& queue) {
    constexpr int patience = 20000; // milliseconds
    QTcpServer& printer = printers_.at(queue);
    QByteArray program;
    if (printer.hasPendingConnections() || printer.waitForNewConnection(patience)) {
        QTcpSocket& job = *printer.nextPendingConnection();
        while (job.waitForReadyRead(patience)) {
        }
        program = job.readAll();
    }
    EXPECT_FALSE(program.isEmpty()) << log().constData();
    return program;
}

QStringList PrintServer::filters() const {
    static const QRegularExpression started(u"Started filter \\S*/(\\w+)"_s);
    QStringList names;
    for (const auto& filter : started.globalMatch(QString::fromUtf8(log()))) {
        names << filter.captured(1);
    }
    return names;
}

QByteArray PrintServer::log() const {
    QFile file(folder_.filePath(u"logs/error"_s));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qsizetype PrintServer::jobs(const QString& queue) {
    return tell(u"lpstat"_s, {u"-W"_s, u"all"_s, u"-o"_s, queue}).count(u'\n');
}

} // namespace etiquetas::test
