#include "host/frame.h"

namespace qor {

Frame::Frame(QObject *parent)
    : Control(parent)
{ }

} // namespace qor
