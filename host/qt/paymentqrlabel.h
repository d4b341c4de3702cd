#pragma once

#include "qorgenlib_export.h"

#include <QObject>
#include <QPointer>
#include <QString>

class QLabel;

namespace qor {

/// Shows on a real QLabel the payment QR code of a SEPA credit transfer to one
/// beneficiary: set the amount (and the reference) and the label shows the
/// code a banking app scans. An amount, reference or beneficiary that cannot
/// be paid clears the label.
class QORGENLIB_WIDGETS_EXPORT PaymentQrLabel : public QObject
{
    Q_OBJECT

public:
    /// The adapter belongs to the label and goes with it. name, iban and bic
    /// as GetEPCQR takes them; moduleSize pixels per module (1 to 20).
    static PaymentQrLabel *attach(QLabel *label, const QString &name, const QString &iban,
        const QString &bic = QString(), int moduleSize = 3);

    /// A creditor reference or a Belgian structured communication; "" for none.
    void setReference(const QString &reference);
    void setAmount(double amount);
    /// What the label shows: the code's text, "" when it shows none.
    QString payload() const { return m_payload; }

private:
    PaymentQrLabel(QLabel *label, const QString &name, const QString &iban, const QString &bic,
        int moduleSize);
    void redraw();

    QPointer<QLabel> m_label;
    QString m_name;
    QString m_iban;
    QString m_bic;
    QString m_reference;
    double m_amount = 0;
    int m_moduleSize;
    QString m_payload;
};

} // namespace qor
