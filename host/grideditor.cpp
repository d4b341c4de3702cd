#include "host/grideditor.h"

namespace qor {

GridEditor::GridEditor(QObject *parent)
    : HostObject(parent)
{ }

} // namespace qor
