#include "invoiceheader.h"

#include "catalogueword.h"
#include "formfield.h"

#include <qorgenlib/host/qt/keyfilteradapter.h>

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

InvoiceHeader::InvoiceHeader(clsqorGenLib &lib, QWidget *parent)
    : QGroupBox(parent)
    , m_lib(lib)
    , m_form(new QFormLayout(this))
{
    setObjectName(QStringLiteral("fraFactuur"));
    m_number = addFormField(m_form, this, "txtFactuurNr");
    m_reference = new QLabel(this);
    m_reference->setObjectName(QStringLiteral("lblOGM"));
    m_reference->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *referenceLabel = new QLabel(this);
    referenceLabel->setObjectName(QStringLiteral("lblOGMCaption"));
    m_form->addRow(referenceLabel, m_reference);
    m_date = addFormField(m_form, this, "txtDatum");
    m_time = addFormField(m_form, this, "txtUur");
    qor::KeyFilterAdapter::attachKeyPress(m_number, &m_lib, QStringLiteral("C"));
    qor::KeyFilterAdapter::attachKeyPress(m_date, &m_lib, QStringLiteral("D"));
    qor::KeyFilterAdapter::attachKeySpin(m_date, &m_lib);
    connect(m_number, &QLineEdit::editingFinished, this, &InvoiceHeader::makeReference);
    connect(m_date, &QLineEdit::editingFinished, this, &InvoiceHeader::checkDate);
    connect(m_time, &QLineEdit::editingFinished, this, &InvoiceHeader::checkTime);
    retranslate();
}

void InvoiceHeader::retranslate()
{
    setTitle(catalogueWord(m_lib, 9574));
    const QList<std::pair<QWidget *, int>> captions { { m_number, 9575 }, { m_reference, 9611 },
        { m_date, 9535 }, { m_time, 9519 } };
    for (const auto &[field, id] : captions)
        static_cast<QLabel *>(m_form->labelForField(field))->setText(catalogueWord(m_lib, id));
}

QString InvoiceHeader::number() const
{
    return m_number->text();
}

void InvoiceHeader::setNumber(const QString &number)
{
    m_number->setText(number);
    makeReference();
}

QString InvoiceHeader::date() const
{
    return m_date->text();
}

QString InvoiceHeader::reference() const
{
    return m_reference->text();
}

void InvoiceHeader::makeReference()
{
    QString number = m_number->text().trimmed();
    m_reference->setText(
        number.isEmpty() ? QString() : QStringLiteral("+++%1+++").arg(m_lib.GetOGM(number)));
    emit referenceChanged(m_reference->text());
}

void InvoiceHeader::checkDate()
{
    QString typed = m_date->text();
    const QString checked = m_lib.ControleerDatum(typed, false, true);
    m_date->setText(checked.isEmpty() ? typed : checked);
}

void InvoiceHeader::checkTime()
{
    QString typed = m_time->text();
    const QString checked = m_lib.ControleerUur(typed);
    m_time->setText(checked.isEmpty() ? typed : checked);
}
