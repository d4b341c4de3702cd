#include "python/sessionobject.h"

#include "lib/clsqorgenlib.h"
#include "platform/platform.h"
#include "tools/qorgen/jsonwriter.h"
#include "tools/qorgen/session.h"
#include "tools/qorgen/typeinfojson.h"

namespace qor::python {

namespace {

// Puts a platform in place for the calling thread while it lives.
class InstalledPlatform
{
public:
    explicit InstalledPlatform(std::shared_ptr<Platform> platform)
        : m_previous(Platform::install(std::move(platform)))
    { }
    ~InstalledPlatform() { Platform::install(std::move(m_previous)); }
    InstalledPlatform(const InstalledPlatform &) = delete;
    InstalledPlatform &operator=(const InstalledPlatform &) = delete;

private:
    std::shared_ptr<Platform> m_previous;
};

} // namespace

SessionObject::SessionObject()
    : m_thread(std::this_thread::get_id())
{
    // The session installs its platform for this thread; take it back so that
    // the thread keeps the platform it had between requests.
    const std::shared_ptr<Platform> before = Platform::install(nullptr);
    Platform::install(before);
    m_session = std::make_unique<Session>();
    m_platform = Platform::install(before);
}

SessionObject::~SessionObject()
{
    // The session puts back the platform of the thread it ends in: keep that one.
    const std::shared_ptr<Platform> current = Platform::install(nullptr);
    Platform::install(current);
    m_session.reset();
    Platform::install(current);
}

QByteArray SessionObject::request(const QByteArray &line)
{
    InstalledPlatform installed(m_platform);
    QByteArray response;
    JsonWriter out(response);
    m_session->handleLine(line, out);
    return response;
}

QByteArray SessionObject::typeInformation()
{
    return JsonWriter::compact(TypeInfoJson::describe(clsqorGenLib::typeLibrary()));
}

} // namespace qor::python
