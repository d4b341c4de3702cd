#include "totalsblock.h"

#include "catalogueword.h"

#include <qorgenlib/host/qt/paymentqrlabel.h>

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include <cmath>

namespace {
double cents(double amount)
{
    return std::round(amount * 100.0) / 100.0;
}

// The shop the demo invoices for.
const QString shopName = QStringLiteral("Qorsoft Demo BV");
const QString shopIban = QStringLiteral("BE71 0961 2345 6769");
} // namespace

TotalsBlock::TotalsBlock(clsqorGenLib &lib, QWidget *parent)
    : QGroupBox(parent)
    , m_lib(lib)
    , m_form(new QFormLayout(this))
{
    setObjectName(QStringLiteral("fraTotalen"));
    m_exclVat = addTotal("txtTotaalExcl");
    m_vat = addTotal("txtTotaalBtw");
    m_inclVat = addTotal("txtTotaalIncl");
    auto *code = new QLabel(this);
    code->setObjectName(QStringLiteral("imgBetaalcode"));
    m_form->addRow(code);
    m_paymentCode = qor::PaymentQrLabel::attach(code, shopName, shopIban, m_lib.GetBIC(shopIban));
    retranslate();
    showTotals({});
}

QLineEdit *TotalsBlock::addTotal(const char *objectName)
{
    auto *field = new QLineEdit(this);
    field->setObjectName(QLatin1String(objectName));
    field->setReadOnly(true);
    field->setFocusPolicy(Qt::NoFocus);
    field->setAlignment(Qt::AlignRight);
    auto *label = new QLabel(this);
    label->setObjectName(QStringLiteral("lbl") + QLatin1String(objectName + 3));
    m_form->addRow(label, field);
    return field;
}

void TotalsBlock::retranslate()
{
    setTitle(catalogueWord(m_lib, 9596));
    const QList<std::pair<QLineEdit *, int>> captions { { m_exclVat, 9599 }, { m_vat, 9593 },
        { m_inclVat, 9595 } };
    for (const auto &[field, id] : captions)
        static_cast<QLabel *>(m_form->labelForField(field))->setText(catalogueWord(m_lib, id));
}

void TotalsBlock::showTotals(const QList<InvoiceLine> &lines)
{
    double inclVat = 0;
    double exclVat = 0;
    for (const InvoiceLine &line : lines) {
        inclVat += cents(line.amount());
        exclVat += cents(line.amountExclVat());
    }
    m_exclVat->setText(m_lib.SetEuro(float(exclVat), qorGenLib::vbSymbolEuro));
    m_vat->setText(m_lib.SetEuro(float(inclVat - exclVat), qorGenLib::vbSymbolEuro));
    m_inclVat->setText(m_lib.SetEuro(float(inclVat), qorGenLib::vbSymbolEuro));
    m_paymentCode->setAmount(inclVat);
}

void TotalsBlock::setReference(const QString &reference)
{
    m_paymentCode->setReference(reference);
}
