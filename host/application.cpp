#include "host/application.h"

namespace qor {

Application::Application(QObject *parent)
    : HostObject(parent)
{ }

} // namespace qor
