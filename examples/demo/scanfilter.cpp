#include "scanfilter.h"

#include <qorgenlib/host/qt/keyfilteradapter.h>
#include <qorgenlib/host/qt/lineeditadapter.h>
#include <qorgenlib/lib/clsqorgenlib.h>

#include <QKeyEvent>
#include <QLineEdit>

ScanFilter::ScanFilter(QLineEdit *field, clsqorGenLib &lib, const QString &scanFormat)
    : QObject(field)
    , m_control(new qor::LineEditAdapter(field, this))
    , m_lib(lib)
    , m_format(scanFormat)
{
    field->installEventFilter(this);
}

bool ScanFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const int code = qor::KeyFilterAdapter::characterCode(static_cast<QKeyEvent *>(event));
    if (code < 0)
        return false;
    short key = short(code);
    QString format = m_format;
    // 0: the scanner routine took the key (a scan in progress, or its end).
    return m_lib.ScanBM(m_control, key, format, false, true) == 0;
}
