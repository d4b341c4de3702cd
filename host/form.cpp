#include "host/form.h"

namespace qor {

Form::Form(QObject *parent)
    : HostObject(parent)
{ }

} // namespace qor
