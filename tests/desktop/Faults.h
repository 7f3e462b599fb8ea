#pragma once

#include "base/Failure.h"
#include "desktop/machine/QtText.h"

#include <QString>
#include <QTcpServer>
#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <unistd.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

/// Does a deed that throws nothing while no file can grow beyond a kilobyte, as on a full disk.
inline void onFullDisk(const std::function<void()>& deed) {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{1000, limit.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    deed();
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// A print server that lets itself be called and never answers, as long as the object lives.
class SilentPrintServer {
  public:
    SilentPrintServer() {
        server_.listen(QHostAddress::LocalHost);
        server_.pauseAccepting(); // nobody takes what it gets
        // Open to the end of the program: those who wait are left behind.
        EXPECT_GE(dup(static_cast<int>(server_.socketDescriptor())), 0);
        qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(server_.serverPort()));
    }
    ~SilentPrintServer() { qunsetenv("CUPS_SERVER"); }
    Q_DISABLE_COPY_MOVE(SilentPrintServer)

  private:
    QTcpServer server_;
};

/// The deed must fail with this number, and tell what it is about.
inline void expectFailure(std::int32_t number, TextView about, const std::function<void()>& deed) {
    try {
        deed();
        ADD_FAILURE() << "went through: " << toQString(about).toStdString();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), number);
        EXPECT_NE(failure.description().find(about), Text::npos);
    }
}

} // namespace etiquetas::test
