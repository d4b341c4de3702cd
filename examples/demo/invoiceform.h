#pragma once

#include <QHash>
#include <QWidget>

class QLabel;
class QLineEdit;
class clsqorGenLib;

namespace qor {
class LineEditAdapter;
}

// The header of an invoice as a host application would build it: each field is
// checked by the library when it loses the focus and gets the library's notation.
class InvoiceForm : public QWidget
{
    Q_OBJECT

public:
    explicit InvoiceForm(clsqorGenLib &lib, QWidget *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString label(int baseId) const;
    QLineEdit *addField(const QString &objectName, const QString &label);
    void checkAccount();
    void checkVat();
    void makeReference();
    void showAmount();

    clsqorGenLib &m_lib;
    QLineEdit *m_account = nullptr;
    QLineEdit *m_vat = nullptr;
    QLineEdit *m_invoiceNumber = nullptr;
    QLineEdit *m_amount = nullptr;
    QLabel *m_reference = nullptr;
    QLabel *m_euro = nullptr;
    QHash<QObject *, qor::LineEditAdapter *> m_adapters;
};
