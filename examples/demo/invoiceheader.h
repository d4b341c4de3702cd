#pragma once

#include <QGroupBox>

class QFormLayout;
class QLabel;
class QLineEdit;
class clsqorGenLib;

// The invoice itself: its number with the structured payment reference made
// from it, the invoice date and the delivery time. Date and time are typed
// freely (six digits, "8h30", "830") and set right by the library when the
// user leaves the field; the arrow keys step the date a day.
class InvoiceHeader : public QGroupBox
{
    Q_OBJECT

public:
    explicit InvoiceHeader(clsqorGenLib &lib, QWidget *parent = nullptr);
    void retranslate();
    QString number() const;
    void setNumber(const QString &number);
    QString date() const;
    QString reference() const;

signals:
    // The structured reference made from a new invoice number ("" for none).
    void referenceChanged(const QString &reference);

private:
    void makeReference();
    void checkDate();
    void checkTime();

    clsqorGenLib &m_lib;
    QFormLayout *m_form;
    QLineEdit *m_number;
    QLabel *m_reference;
    QLineEdit *m_date;
    QLineEdit *m_time;
};
