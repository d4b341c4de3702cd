#pragma once

#include <QByteArray>

#include <memory>
#include <thread>

namespace qor {
class Platform;
class Session;
} // namespace qor

namespace qor::python {

// The bridge's session for one Python GenLib: a library object, the module
// state of its thread and a recording platform that answers dialogs. Requests
// and responses are the bridge's JSON lines. The object serves the thread that
// made it; its platform is the thread's platform during each request, so that
// several objects of one thread keep their own records.
class SessionObject
{
public:
    SessionObject();
    ~SessionObject();
    SessionObject(const SessionObject &) = delete;
    SessionObject &operator=(const SessionObject &) = delete;

    // One request line in, one response line out (without the line end).
    QByteArray request(const QByteArray &line);
    bool isOwnThread() const { return std::this_thread::get_id() == m_thread; }

    // The published type information as JSON.
    static QByteArray typeInformation();

private:
    std::unique_ptr<Session> m_session;
    std::shared_ptr<Platform> m_platform;
    std::thread::id m_thread;
};

} // namespace qor::python
