#pragma once
// The check that only one copy of the program runs for this user. Two guards: a lock file in
// the temp folder, and a local socket whose name carries the user's name (in the abstract
// namespace, so it does not depend on TMPDIR and leaves no file behind after a crash). A lock
// file left by a crashed copy is taken over, as its process no longer runs.
#include <memory>
#include <string>

class QLockFile;
class QLocalServer;

namespace vexlo::platform {

class SingleInstance {
public:
    // key: the program's name in the lock file's and the socket's names; tests pass their own.
    explicit SingleInstance(std::string key = "vexlo");
    // Releases both guards.
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    // True when this is the only running instance for this user; it then holds the guards
    // until it is destroyed. Asking again while holding them answers true.
    bool TryAcquire();
    bool Held() const { return m_server != nullptr; }

    // "<key>-<user>": the socket's name; the lock file is "<temp>/<name>.lock".
    const std::string& Name() const { return m_name; }
    std::string LockFilePath() const;

private:
    void Release();

    std::string m_name;
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<QLocalServer> m_server;
};

}  // namespace vexlo::platform
