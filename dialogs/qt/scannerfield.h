#pragma once

#include <QLineEdit>

namespace qor {

// The message box's hidden scanner field, with the property names the scanner
// routine reaches a host field by.
class ScannerField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ text WRITE setText)
    Q_PROPERTY(qint32 SelStart READ cursorPosition WRITE setCursorPosition)
    Q_PROPERTY(qint32 SelLength READ selectionLength)

public:
    explicit ScannerField(QWidget *parent = nullptr);
};

} // namespace qor
