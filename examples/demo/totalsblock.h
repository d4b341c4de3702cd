#pragma once

#include "invoiceline.h"

#include <QGroupBox>

class QFormLayout;
class QLineEdit;
class clsqorGenLib;
namespace qor {
class PaymentQrLabel;
}

// The totals of the invoice in euro: excluding VAT, the VAT, and including VAT,
// and the payment QR code of the total to the shop's account with the invoice's
// structured reference. The totals are read-only fields, so that the form's
// change check sees the lines change.
class TotalsBlock : public QGroupBox
{
    Q_OBJECT

public:
    explicit TotalsBlock(clsqorGenLib &lib, QWidget *parent = nullptr);
    void retranslate();
    void showTotals(const QList<InvoiceLine> &lines);
    void setReference(const QString &reference);

private:
    QLineEdit *addTotal(const char *objectName);

    clsqorGenLib &m_lib;
    QFormLayout *m_form;
    QLineEdit *m_exclVat;
    QLineEdit *m_vat;
    QLineEdit *m_inclVat;
    qor::PaymentQrLabel *m_paymentCode;
};
