#include "dialogs/qt/scannerfield.h"

namespace qor {

ScannerField::ScannerField(QWidget *parent)
    : QLineEdit(parent)
{
    setObjectName(QStringLiteral("TextScanBM"));
    setVisible(false);
}

} // namespace qor
