#include "customerblock.h"

#include "catalogueword.h"
#include "formfield.h"

#include <qorgenlib/host/qt/ibanfieldadapter.h>
#include <qorgenlib/host/qt/keyfilteradapter.h>

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

CustomerBlock::CustomerBlock(clsqorGenLib &lib, QWidget *parent)
    : QGroupBox(parent)
    , m_lib(lib)
    , m_form(new QFormLayout(this))
{
    setObjectName(QStringLiteral("fraKlant"));
    m_name = addFormField(m_form, this, "txtNaam");
    m_vat = addFormField(m_form, this, "txtBtwNr");
    m_account = addFormField(m_form, this, "txtBankNr");
    m_bic = new QLabel(this);
    m_bic->setObjectName(QStringLiteral("lblBIC"));
    m_form->addRow(QStringLiteral("BIC :"), m_bic);
    m_nationalNumber = addFormField(m_form, this, "txtNatNr");
    // Quotes never reach a name: the library turns them into the acute accent.
    qor::KeyFilterAdapter::attachKeyPress(m_name, &m_lib, QString());
    connect(m_name, &QLineEdit::editingFinished, this, &CustomerBlock::checkName);
    connect(m_vat, &QLineEdit::editingFinished, this, &CustomerBlock::checkVat);
    // The account is an IBAN, grouped in fours as it is typed and checked on leaving;
    // the bank's BIC shows beside it.
    connect(qor::IbanFieldAdapter::attach(m_account, &m_lib), &qor::IbanFieldAdapter::checked, this,
        [this](const QString &iban) { m_bic->setText(m_lib.GetBIC(iban)); });
    connect(
        m_nationalNumber, &QLineEdit::editingFinished, this, &CustomerBlock::checkNationalNumber);
    retranslate();
}

void CustomerBlock::retranslate()
{
    setTitle(catalogueWord(m_lib, 9537));
    const QList<std::pair<QLineEdit *, int>> captions { { m_name, 9521 }, { m_vat, 9553 },
        { m_account, 9557 } };
    for (const auto &[field, id] : captions)
        static_cast<QLabel *>(m_form->labelForField(field))->setText(catalogueWord(m_lib, id));
    // The catalogue has no word for the national number: the Belgian abbreviation
    // of both national languages serves every language.
    static_cast<QLabel *>(m_form->labelForField(m_nationalNumber))
        ->setText(QStringLiteral("INSZ / NISS :"));
}

void CustomerBlock::checkName()
{
    QString name = m_name->text();
    m_name->setText(m_lib.SCase(name));
}

void CustomerBlock::checkVat()
{
    QString typed = m_vat->text();
    QString country;
    const QString checked = m_lib.ControleerVAT(typed, true, country);
    m_vat->setText(checked.isEmpty() ? typed : checked);
}

void CustomerBlock::checkNationalNumber()
{
    QString typed = m_nationalNumber->text();
    const QString checked = m_lib.ControleerNatNr(typed);
    m_nationalNumber->setText(checked.isEmpty() ? typed : checked);
}
