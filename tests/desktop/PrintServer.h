#pragma once

#include <QProcess>
#include <QString>
#include <QTcpServer>
#include <QTemporaryDir>

namespace etiquetas::test {

/// A print server of the test's own, which this process and the tools that it starts ask as long
/// as the server lives. Its printers are one.
class PrintServer {
  public:
    PrintServer();
    ~PrintServer();
    PrintServer(const PrintServer&) = delete;
    PrintServer& operator=(const PrintServer&) = delete;

    /// False where the machine lacks the print system, or this user may not start it.
    [[nodiscard]] bool isRunning() const { return is_running_; }
    /// Adds a queue with one of the sample drivers of the print system.
    void addQueue(const QString& name, const QString& driver) const;
    /// What the next job sends to its printer; empty where none comes.
    [[nodiscard]] QByteArray printed();
    /// How many jobs a queue has had.
    [[nodiscard]] static qsizetype jobs(const QString& queue);

  private:
    void writeSettings() const;

    QTemporaryDir folder_{QStringLiteral("/tmp/print-server-XXXXXX")}; // sockets have short paths
    QProcess server_;
    QTcpServer printer_;
    bool is_running_ = false;
};

} // namespace etiquetas::test
