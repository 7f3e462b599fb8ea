#pragma once

#include <QProcess>
#include <QString>
#include <QTcpServer>
#include <QTemporaryDir>

#include <cstdio>
#include <map>

namespace etiquetas::test {

class DriverlessPrinters;

/// A print server of the test's own, which this process and the tools that it starts ask as long
/// as the server lives. Each of its queues has a printer.
class PrintServer {
  public:
    PrintServer();
    ~PrintServer();
    PrintServer(const PrintServer&) = delete;
    PrintServer& operator=(const PrintServer&) = delete;

    /// False where the machine lacks the print system, or this user may not start it.
    [[nodiscard]] bool isRunning() const { return is_running_; }
    /// Adds a queue with a driver, called as `lpadmin -m` calls it, or told by the path of its PPD.
    void addQueue(const QString& name, const QString& driver);
    /// Adds a queue without a driver, whose printer has these attributes.
    void addQueue(const QString& name, DriverlessPrinters& printers, const QString& attributes);
    /// Runs a tool of the print system, which must not fail, and tells what it tells.
    static QString tell(const QString& tool, const QStringList& arguments);
    /// What the next job of a queue sends to its printer; empty where none comes.
    [[nodiscard]] QByteArray printed(const QString& queue);
    /// The filters that have been started for all jobs, in their order.
    [[nodiscard]] QStringList filters() const;
    /// How many jobs a queue has had.
    [[nodiscard]] static qsizetype jobs(const QString& queue);

  private:
    void writeSettings() const;
    [[nodiscard]] QByteArray log() const;

    // In the system's own folder, which the filters' user may enter and whose name a socket can
    // bear.
    QTemporaryDir folder_{QStringLiteral(P_tmpdir "/print-server-XXXXXX")};
    QProcess server_;
    std::map<QString, QTcpServer> printers_; // by queue
    bool is_running_ = false;
};

} // namespace etiquetas::test
