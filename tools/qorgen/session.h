#pragma once

#include "tools/qorgen/jsonsink.h"
#include "tools/qorgen/jsonvalue.h"
#include "tools/qorgen/request.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class clsqorGenLib;

namespace qor {

struct AutomationClass;
class Platform;
class RequestError;
class RecordingPlatform;
struct MethodInfo;
struct PropertyInfo;

// One library object with its module-wide state and a recording platform,
// living across the requests of a batch. Each request gets its arguments made
// into library values, the platform and dialog answers it asks for, the call,
// and a response with the result, the arguments after the call, the object's
// properties, what the user saw or heard, and the error the call raised.
class Session
{
public:
    enum class Outcome { Ran, RuntimeError, Unreadable };
    struct Reply
    {
        JsonValue response;
        Outcome outcome = Outcome::Ran;
    };

    // Installs the session's recording platform for the calling thread.
    Session();
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    Reply handleLine(QByteArrayView utf8);
    Reply handleJson(const JsonValue &request);
    // The same with the response written into a sink (the batch writes it
    // straight into its output).
    Outcome handleLine(QByteArrayView utf8, JsonSink &out);
    Outcome handleJson(const JsonValue &request, JsonSink &out);
    Outcome handle(const Request &request, JsonSink &out);
    // The response to a request that could not be read: its id (when it has
    // one) and the error.
    static Outcome writeUnreadable(JsonSink &out, const RequestError &error,
        const std::optional<JsonValue> &id = std::nullopt);

    // Where sounds go when a request asks for them ("sound": true); by default nowhere.
    void setSoundOutput(
        std::function<void(const QString &, bool)> play, std::function<void()> stop);

    RecordingPlatform &platform() { return *m_platform; }
    clsqorGenLib &library() { return *m_library; }
    // The batch's object of a class: the library object, or one of a further
    // class made on its first use and kept until a fresh start.
    QObject &objectOf(const AutomationClass &cls);

private:
    struct Call;

    Call prepare(const Request &request, QObject *owner) const;
    void prepareArguments(Call &call, const Request &request, QObject *owner) const;
    void applyPlatform(const Request &request);
    void startFresh();
    // Runs the call and writes its response: the result, the arguments after
    // the call, the properties, what was shown, what the call asked the machine
    // to do (program starts, shut-down, topmost forms) and the error.
    Outcome run(Call &call, JsonSink &out);
    void writeArguments(const Call &call, JsonSink &out) const;
    void writeProperties(const Call &call, JsonSink &out) const;
    // Keeps the host objects the library holds (Variant properties, the
    // application) past the request, and releases those it holds no more.
    void keepHeldObjects(QObject *owner);

    std::shared_ptr<RecordingPlatform> m_platform;
    std::shared_ptr<Platform> m_previous;
    std::unique_ptr<clsqorGenLib> m_library;
    std::vector<std::unique_ptr<QObject>> m_objects; // of the further classes, by class index
    std::unique_ptr<QObject> m_keeper; // host objects the library holds between requests
    std::function<void(const QString &, bool)> m_play;
    std::function<void()> m_stop;
};

} // namespace qor
