#include "invoiceform.h"

#include <qorgenlib/host/qt/lineeditadapter.h>
#include <qorgenlib/lib/clsqorgenlib.h>

#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

InvoiceForm::InvoiceForm(clsqorGenLib &lib, QWidget *parent)
    : QWidget(parent)
    , m_lib(lib)
{
    setObjectName(QStringLiteral("frmFactuur"));
    setWindowTitle(lib.LLGenLib(9574 + lib.property("Offset").toInt()));
    new QFormLayout(this);
    m_account = addField(QStringLiteral("txtBankNr"), label(9557));
    m_vat = addField(QStringLiteral("txtBtwNr"), label(9553));
    m_invoiceNumber = addField(QStringLiteral("txtFactuurNr"), label(9575));
    m_amount = addField(QStringLiteral("txtBedrag"), label(9597));
    m_reference = new QLabel(this);
    m_reference->setObjectName(QStringLiteral("lblOGM"));
    m_euro = new QLabel(this);
    m_euro->setObjectName(QStringLiteral("lblEuro"));
    auto *form = static_cast<QFormLayout *>(layout());
    form->addRow(QStringLiteral("OGM"), m_reference);
    form->addRow(QStringLiteral("EUR"), m_euro);

    connect(m_account, &QLineEdit::editingFinished, this, &InvoiceForm::checkAccount);
    connect(m_vat, &QLineEdit::editingFinished, this, &InvoiceForm::checkVat);
    connect(m_invoiceNumber, &QLineEdit::editingFinished, this, &InvoiceForm::makeReference);
    connect(m_amount, &QLineEdit::editingFinished, this, &InvoiceForm::showAmount);
}

// Field labels come from the library's dictionary in the host's language.
QString InvoiceForm::label(int baseId) const
{
    return m_lib.LLGenLib(baseId + m_lib.property("Offset").toInt());
}

QLineEdit *InvoiceForm::addField(const QString &objectName, const QString &label)
{
    auto *field = new QLineEdit(this);
    field->setObjectName(objectName);
    static_cast<QFormLayout *>(layout())->addRow(label, field);
    m_adapters.insert(field, new qor::LineEditAdapter(field, field));
    field->installEventFilter(this);
    return field;
}

bool InvoiceForm::eventFilter(QObject *watched, QEvent *event)
{
    // Entering a field selects its whole text, so typing replaces it.
    if (event->type() == QEvent::FocusIn) {
        if (qor::LineEditAdapter *adapter = m_adapters.value(watched))
            m_lib.SelEdit(adapter);
    }
    return QWidget::eventFilter(watched, event);
}

void InvoiceForm::checkAccount()
{
    QString typed = m_account->text();
    const QString checked = m_lib.ControleerBankNr(typed);
    if (!checked.isEmpty())
        m_account->setText(checked);
}

void InvoiceForm::checkVat()
{
    QString typed = m_vat->text();
    QString country;
    const QString checked = m_lib.ControleerVAT(typed, true, country);
    if (!checked.isEmpty())
        m_vat->setText(checked);
}

void InvoiceForm::makeReference()
{
    QString number = m_invoiceNumber->text();
    m_reference->setText(QStringLiteral("+++%1+++").arg(m_lib.GetOGM(number)));
}

void InvoiceForm::showAmount()
{
    const double amount = m_lib.CGetal(m_amount->text()).toDouble();
    m_euro->setText(m_lib.SetEuro(float(amount), qorGenLib::vbSymbolEuro));
}
