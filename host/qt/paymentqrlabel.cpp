#include "host/qt/paymentqrlabel.h"

#include "host/qt/qrcodeimage.h"
#include "payments/epcpayload.h"

#include <QLabel>
#include <QPixmap>

namespace qor {

PaymentQrLabel::PaymentQrLabel(
    QLabel *label, const QString &name, const QString &iban, const QString &bic, int moduleSize)
    : QObject(label)
    , m_label(label)
    , m_name(name)
    , m_iban(iban)
    , m_bic(bic)
    , m_moduleSize(moduleSize)
{
    redraw();
}

PaymentQrLabel *PaymentQrLabel::attach(
    QLabel *label, const QString &name, const QString &iban, const QString &bic, int moduleSize)
{
    if (!label)
        return nullptr;
    return new PaymentQrLabel(label, name, iban, bic, moduleSize);
}

void PaymentQrLabel::setReference(const QString &reference)
{
    m_reference = reference;
    redraw();
}

void PaymentQrLabel::setAmount(double amount)
{
    m_amount = amount;
    redraw();
}

void PaymentQrLabel::redraw()
{
    m_payload = epcPayload({ m_name, m_iban, m_amount, m_bic, m_reference, QString() });
    const QImage code = qrCodeImage(m_payload, m_moduleSize);
    if (!m_label)
        return;
    if (code.isNull()) {
        m_payload.clear();
        m_label->clear();
        return;
    }
    m_label->setPixmap(QPixmap::fromImage(code));
}

} // namespace qor
