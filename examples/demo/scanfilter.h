#pragma once

#include <QObject>
#include <QString>

class QLineEdit;
class clsqorGenLib;

namespace qor {
class LineEditAdapter;
}

// Hands every key typed into a field to the library's scanner routine, so that
// a barcode framed as "%[...]" lands in the field as its code, while ordinary
// typing passes. The filter belongs to the field.
class ScanFilter : public QObject
{
    Q_OBJECT

public:
    ScanFilter(QLineEdit *field, clsqorGenLib &lib, const QString &scanFormat);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    qor::LineEditAdapter *m_control;
    clsqorGenLib &m_lib;
    QString m_format;
};
