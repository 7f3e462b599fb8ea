#include "desktop/SingleInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

constexpr int patience_ms = 2000;

// One name for each user and folder, however the folder is reached.
QString nameFor(const QString& folder) {
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    const QString key = QDir::homePath() + u'\n' + (canonical.isEmpty() ? folder : canonical);
    const QByteArray hash = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha256);
    constexpr qsizetype digits = 32; // the whole would be too long for the name of a socket
    return u"etiquetas-"_s + QString::fromLatin1(hash.toHex().left(digits));
}

} // namespace

// Two programs that start at the same moment do so one after the other.
SingleInstance::SingleInstance(const QString& folder) : name_(nameFor(folder)) {
    QLockFile start(QDir::temp().filePath(name_ + u".lock"_s));
    start.tryLock(patience_ms);
    if (!callFirst()) {
        listen();
    }
}

bool SingleInstance::callFirst() const {
    QLocalSocket socket;
    socket.connectToServer(name_);
    return socket.waitForConnected(patience_ms);
}

// The socket of a program that was killed is still there, and nobody answers it. Where no socket
// can be had the program runs all the same.
void SingleInstance::listen() {
    server_ = std::make_unique<QLocalServer>();
    QLocalServer::removeServer(name_);
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    server_->listen(name_);
    QObject::connect(server_.get(), &QLocalServer::newConnection, server_.get(), [this] {
        delete server_->nextPendingConnection();
        called_();
    });
}

} // namespace etiquetas
