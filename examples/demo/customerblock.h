#pragma once

#include <QGroupBox>

class QFormLayout;
class QLabel;
class QLineEdit;
class clsqorGenLib;

// The customer of the invoice: name, VAT number, IBAN (with its bank's BIC) and national
// number, each checked by the library when the user leaves the field. A wrong
// number is reported by the library's message box; the field keeps the digits
// the check left, so the user can correct them.
class CustomerBlock : public QGroupBox
{
    Q_OBJECT

public:
    explicit CustomerBlock(clsqorGenLib &lib, QWidget *parent = nullptr);
    void retranslate();

private:
    void checkName();
    void checkVat();
    void checkNationalNumber();

    clsqorGenLib &m_lib;
    QFormLayout *m_form;
    QLineEdit *m_name;
    QLineEdit *m_vat;
    QLineEdit *m_account;
    QLabel *m_bic;
    QLineEdit *m_nationalNumber;
};
