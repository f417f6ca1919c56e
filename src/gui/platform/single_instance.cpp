#include "gui/platform/single_instance.h"

#include <pwd.h>
#include <unistd.h>

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>

namespace vexlo::platform {

namespace {

// Waiting for another instance's socket to accept a connection.
constexpr int kConnectTimeoutMs = 500;

// The login name of this process's user, else its user id.
std::string UserName() {
    if (const passwd* pw = ::getpwuid(::getuid()); pw != nullptr && pw->pw_name != nullptr &&
                                                   pw->pw_name[0] != '\0')
        return pw->pw_name;
    return "uid" + std::to_string(::getuid());
}

// Letters, digits, '-', '_' and '.' are kept; anything else becomes '_'.
std::string SafeName(const std::string& s) {
    std::string out = s;
    for (char& c : out) {
        const bool ok = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                        (c >= '0' && c <= '9') || c == '-' || c == '_' || c == '.';
        if (!ok) c = '_';
    }
    return out;
}

QString ToQ(const std::string& s) { return QString::fromStdString(s); }

}  // namespace

SingleInstance::SingleInstance(std::string key) : m_name(SafeName(key + "-" + UserName())) {}

SingleInstance::~SingleInstance() { Release(); }

std::string SingleInstance::LockFilePath() const {
    return QDir(QDir::tempPath()).filePath(ToQ(m_name + ".lock")).toStdString();
}

bool SingleInstance::TryAcquire() {
    if (Held()) return true;

    m_lock = std::make_unique<QLockFile>(ToQ(LockFilePath()));
    // A running instance holds its lock however old it is; only a dead owner makes it stale.
    m_lock->setStaleLockTime(0);
    if (!m_lock->tryLock(0)) {
        m_lock.reset();
        return false;
    }

    // An instance that answers on the socket runs even if its lock file went away.
    {
        QLocalSocket probe;
        probe.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
        probe.connectToServer(ToQ(m_name));
        if (probe.waitForConnected(kConnectTimeoutMs)) {
            probe.disconnectFromServer();
            Release();
            return false;
        }
    }

    m_server = std::make_unique<QLocalServer>();
    m_server->setSocketOptions(QLocalServer::AbstractNamespaceOption);
    if (!m_server->listen(ToQ(m_name))) {
        Release();
        return false;
    }
    // Others only knock to learn that this instance runs; close their connections.
    QLocalServer* server = m_server.get();
    QObject::connect(server, &QLocalServer::newConnection, server, [server] {
        while (QLocalSocket* s = server->nextPendingConnection()) {
            s->disconnectFromServer();
            s->deleteLater();
        }
    });
    return true;
}

void SingleInstance::Release() {
    if (m_server) m_server->close();
    m_server.reset();
    if (m_lock) m_lock->unlock();
    m_lock.reset();
}

}  // namespace vexlo::platform
