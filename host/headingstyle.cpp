#include "host/headingstyle.h"

namespace qor {

HeadingStyle::HeadingStyle(QObject *parent)
    : HostObject(parent)
{ }

} // namespace qor
