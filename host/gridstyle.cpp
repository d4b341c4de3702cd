#include "host/gridstyle.h"

namespace qor {

GridStyle::GridStyle(QObject *parent)
    : HostObject(parent)
{ }

} // namespace qor
