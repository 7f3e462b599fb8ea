#include "desktop/printing/PrintJob.h"

#include "desktop/printing/JobPulse.h"
#include "tests/desktop/Faults.h"

#include <QtNetwork>
#include <QtTest/QTest>
#include <gtest/gtest.h>

#include <unistd.h>

namespace etiquetas::test {

// A print server with one queue, which answers all but new jobs. It lives on the thread of the
// windows, so that it answers only while they live.
class FakePrintServer : public QTcpServer {
  public:
    FakePrintServer() {
        listen(QHostAddress::LocalHost);
        qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(serverPort()));
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* const client = nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, this, [this, client] { take(*client); });
        });
    }
    ~FakePrintServer() override { qunsetenv("CUPS_SERVER"); }

    /// The client that waits for its new job.
    [[nodiscard]] const QTcpSocket* waiting() const { return waiting_; }

  private:
    void take(QTcpSocket& client) {
        QByteArray& request = requests_[&client];
        request += client.readAll();
        const qsizetype body = request.indexOf("\r\n\r\n") + 4;
        if (request.startsWith("GET") && body >= 4) {
            client.write("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n");
            request.clear();
        } else if (body >= 4 && request.endsWith('\x03')) { // the end of its attributes
            answer(client, request.mid(body));
            request.clear();
        }
    }

    void answer(QTcpSocket& client, const QByteArray& request) {
        const int operation = request[2] << 8 | request[3];
        constexpr int new_job = 0x0005; // of IPP (RFC 8011)
        if (operation == new_job) {
            waiting_ = &client;
            return;
        }
        const QByteArray queue = "Fila";
        const QByteArray address = qgetenv("CUPS_SERVER") + "/printers/" + queue;
        const QByteArray told = request.left(2) + QByteArray(2, '\0') + request.mid(4, 4) + '\x01' +
                                attribute('\x47', "attributes-charset", "utf-8") +
                                attribute('\x48', "attributes-natural-language", "pt-br") + '\x04' +
                                attribute('\x42', "printer-name", queue) +
                                attribute('\x45', "printer-uri-supported", "ipp://" + address) +
                                '\x03';
        client.write("HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " +
                     QByteArray::number(told.size()) + "\r\n\r\n" + told);
    }

    static QByteArray attribute(char type, const QByteArray& name, const QByteArray& value) {
        const auto counted = [](const QByteArray& text) {
            return QByteArray(1, '\0') + static_cast<char>(text.size()) + text;
        };
        return type + counted(name) + counted(value);
    }

    QHash<QTcpSocket*, QByteArray> requests_;
    const QTcpSocket* waiting_ = nullptr;
};

class PrintJobTest : public testing::Test {
  protected:
    PrintJobTest() {
        pulse.onBeat(
            [this](const JobProgress&) {
                ++beats;
                QCoreApplication::processEvents();
                return JobWish::goes_on;
            },
            [] {});
    }

    const PrintTarget queue{u"Fila"_s};
    int beats = 0;
    JobPulse pulse{JobPulse::Milliseconds(0), JobPulse::Milliseconds(0)};
};

TEST_F(PrintJobTest, givesUpAPrintServerThatNeverAnswers) {
    static constexpr PrintJob::Patience patience{500};
    QTcpServer server; // nobody takes what it gets
    server.listen(QHostAddress::LocalHost);
    server.pauseAccepting();
    // Open to the end of the program: those who wait are left behind.
    EXPECT_GE(dup(static_cast<int>(server.socketDescriptor())), 0);
    qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(server.serverPort()));
    expectFailure(failure_number::printer, u"não respondeu em 0.5 segundos",
                  [this] { PrintJob(queue, pulse, {}, patience); });
    EXPECT_GT(beats, 5) << "the windows lived";
    EXPECT_FALSE(QtPrinters(Deadline(patience)).answered());
    qunsetenv("CUPS_SERVER");
}

TEST_F(PrintJobTest, breaksOffASubmissionThatIsGivenUpSoThatItIsNotPrintedLater) {
    const FakePrintServer server;
    constexpr PrintJob::Patience of_a_busy_machine{3000}; // to find the queue, which is answered
    PrintJob job(queue, pulse, {LabelPage{.size = builtInPage(), .marks = {}, .labels = 1}},
                 of_a_busy_machine);
    expectFailure(failure_number::printer, u"ainda podem sair", [&job] { job.send(); });
    ASSERT_NE(server.waiting(), nullptr);
    EXPECT_TRUE(QTest::qWaitFor(
        [&server] { return server.waiting()->state() == QAbstractSocket::UnconnectedState; }));
}

} // namespace etiquetas::test
