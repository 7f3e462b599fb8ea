#include "tests/desktop/DriverlessPrinters.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest/QTest>
#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

// What the client library of Avahi asks before it begins.
bool NameService::handleMessage(const QDBusMessage& call, const QDBusConnection& bus) {
    constexpr uint version = 0x0201;
    constexpr int running = 2;
    const QVariant answer = call.member() == u"GetAPIVersion"_s ? QVariant(version)
                            : call.member() == u"GetState"_s    ? QVariant(running)
                                                                : QVariant(u"localhost"_s);
    return bus.send(call.createReply(answer));
}

static constexpr auto own_bus = "driverless"_L1;
static constexpr auto printer_program = "/usr/sbin/ippeveprinter"_L1;

DriverlessPrinters::DriverlessPrinters() {
    writeFile(u"bus.conf"_s,
              u"<busconfig><type>system</type><listen>%1</listen><auth>EXTERNAL</auth>"
              "<policy context='default'><allow user='*'/><allow own='*'/>"
              "<allow send_destination='*'/><allow receive_sender='*'/></policy>"
              "</busconfig>"_s.arg(busAddress()));
    bus_.start(u"dbus-daemon"_s, {u"--nofork"_s, u"--nopidfile"_s, u"--print-address"_s,
                                  u"--config-file="_s + folder_.filePath(u"bus.conf"_s)});
    if (bus_.waitForReadyRead()) {
        auto bus = QDBusConnection::connectToBus(busAddress(), own_bus);
        bus.registerVirtualObject(u"/"_s, &names_, QDBusConnection::SubPath);
        EXPECT_TRUE(bus.registerService(u"org.freedesktop.Avahi"_s));
    }
}

DriverlessPrinters::~DriverlessPrinters() {
    for (const auto& printer : printers_) {
        printer->terminate();
        printer->waitForFinished();
    }
    QDBusConnection::disconnectFromBus(own_bus);
    bus_.terminate();
    bus_.waitForFinished();
}

bool DriverlessPrinters::canStart() const {
    return bus_.state() == QProcess::Running && QFile::exists(printer_program);
}

static constexpr auto attributes_of_all = R"(
ATTR text printer-make-and-model "Rolo 203"
ATTR boolean color-supported false
ATTR keyword print-color-mode-supported monochrome
ATTR keyword print-color-mode-default monochrome
ATTR resolution printer-resolution-default 203dpi
ATTR resolution printer-resolution-supported 203dpi
ATTR keyword sides-supported one-sided
ATTR keyword sides-default one-sided
ATTR keyword media-default om_label_100x40mm
ATTR keyword media-ready om_label_100x40mm
ATTR keyword media-supported om_label_100x40mm,custom_min_19x6mm,custom_max_101.6x990mm
ATTR collection media-col-default { MEMBER collection media-size @label@ @margins@ }
ATTR collection media-col-ready { MEMBER collection media-size @label@ @margins@ }
ATTR collection media-size-supported @label@, @rolls@
ATTR collection media-col-database { MEMBER collection media-size @label@ @margins@ }, { MEMBER collection media-size @rolls@ @margins@ }
ATTR integer media-bottom-margin-supported 0
ATTR integer media-left-margin-supported 0
ATTR integer media-right-margin-supported 0
ATTR integer media-top-margin-supported 0
)"_L1;

// All lengths are hundredths of a millimetre.
static QString attributesOfAll() {
    const QString none = u"MEMBER integer media-bottom-margin 0 MEMBER integer media-left-margin 0 "
                         "MEMBER integer media-right-margin 0 MEMBER integer media-top-margin 0"_s;
    const QString label = u"{ MEMBER integer x-dimension 10000 MEMBER integer y-dimension 4000 }"_s;
    const QString rolls = u"{ MEMBER rangeOfInteger x-dimension 1900-10160 "
                          "MEMBER rangeOfInteger y-dimension 600-99000 }"_s;
    return QString(attributes_of_all)
        .replace(u"@margins@"_s, none)
        .replace(u"@label@"_s, label)
        .replace(u"@rolls@"_s, rolls);
}

static quint16 freePort() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

static bool answers(quint16 port) {
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, port);
    return socket.waitForConnected();
}

QString DriverlessPrinters::start(const QString& attributes, quint16 receiver) {
    const quint16 port = freePort();
    const QString settings = u"%1.conf"_s.arg(port);
    writeFile(settings, attributesOfAll() + attributes);
    const auto& printer = printers_.emplace_back(std::make_unique<QProcess>());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s, busAddress());
    printer->setProcessEnvironment(environment);
    printer->start(printer_program,
                   {u"-r"_s, u"off"_s, u"-n"_s, u"localhost"_s, u"-p"_s, QString::number(port),
                    u"-a"_s, folder_.filePath(settings), u"-c"_s, u"/bin/cat"_s, u"-D"_s,
                    u"socket://127.0.0.1:%1"_s.arg(receiver), u"Rolo"_s});
    EXPECT_TRUE(QTest::qWaitFor([port] { return answers(port); }))
        << printer->readAllStandardError().constData();
    return u"ipp://localhost:%1/ipp/print"_s.arg(port);
}

QString DriverlessPrinters::busAddress() const {
    return u"unix:path="_s + folder_.filePath(u"bus"_s);
}

void DriverlessPrinters::writeFile(const QString& name, const QString& text) const {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.toLocal8Bit());
}

} // namespace etiquetas::test
