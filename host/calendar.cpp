#include "host/calendar.h"

namespace qor {

Calendar::Calendar(QObject *parent)
    : HostObject(parent)
{ }

} // namespace qor
