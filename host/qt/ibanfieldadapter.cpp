#include "host/qt/ibanfieldadapter.h"

#include "lib/clsqorgenlib.h"
#include "payments/iban.h"

#include <QLineEdit>

namespace qor {

namespace {

// The characters the electronic form keeps among the first `count` typed.
int keptBefore(const QString &typed, int count)
{
    return int(ibanElectronicForm(QStringView(typed).first(count)).size());
}

// The position in the grouped text after `kept` kept characters.
int positionAfter(int kept)
{
    return kept + (kept > 0 ? (kept - 1) / 4 : 0);
}

} // namespace

IbanFieldAdapter::IbanFieldAdapter(QLineEdit *field, clsqorGenLib *library, bool mbox)
    : QObject(field)
    , m_field(field)
    , m_library(library)
    , m_mbox(mbox)
{
    connect(field, &QLineEdit::textEdited, this, &IbanFieldAdapter::regroup);
    connect(field, &QLineEdit::editingFinished, this, &IbanFieldAdapter::check);
}

IbanFieldAdapter *IbanFieldAdapter::attach(QLineEdit *field, clsqorGenLib *library, bool mbox)
{
    if (!field || !library)
        return nullptr;
    return new IbanFieldAdapter(field, library, mbox);
}

void IbanFieldAdapter::regroup(const QString &typed)
{
    const int kept = keptBefore(typed, m_field->cursorPosition());
    const QString grouped = ibanPrintForm(ibanElectronicForm(typed));
    if (grouped == typed)
        return;
    m_field->setText(grouped);
    m_field->setCursorPosition(positionAfter(kept));
}

void IbanFieldAdapter::check()
{
    if (!m_field || !m_library)
        return;
    QString iban = m_field->text();
    const QString printForm = m_library->ControleerIBAN(iban, m_mbox);
    if (m_field)
        m_field->setText(printForm.isEmpty() ? iban : printForm);
    emit checked(printForm);
}

} // namespace qor
