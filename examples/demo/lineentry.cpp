#include "lineentry.h"

#include "catalogueword.h"
#include "scanfilter.h"

#include <qorgenlib/host/qt/comboboxadapter.h>
#include <qorgenlib/host/qt/keyfilteradapter.h>

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
// The catalogue's unit names (1 m3 ... 13 keer) and long payment-method names.
constexpr int unitWords = 9830;
constexpr int unitCount = 13;
constexpr int paymentWords = 9900;
constexpr int paymentCount = 19;
} // namespace

LineEntry::LineEntry(clsqorGenLib &lib, QWidget *parent)
    : QGroupBox(parent)
    , m_lib(lib)
    , m_grid(new QGridLayout(this))
{
    setObjectName(QStringLiteral("fraIngave"));
    m_code = addField("txtArtikel", 0);
    m_description = addField("txtOmschrijving", 1);
    m_quantity = addField("txtAantal", 2);
    m_unit = addCombo("cboEenheid", 3);
    m_price = addField("txtPrijs", 4);
    m_vat = addCombo("cboBTW", 5);
    m_payment = addCombo("cboBetaling", 6);
    m_add = new QPushButton(this);
    m_add->setObjectName(QStringLiteral("cmdToevoegen"));
    m_grid->addWidget(m_add, 1, 7);
    m_grid->setColumnStretch(1, 3);
    m_vatAdapter = new qor::ComboBoxAdapter(m_vat, this);

    new ScanFilter(m_code, m_lib, QStringLiteral("%[_]"));
    qor::KeyFilterAdapter::attachKeyPress(m_description, &m_lib, QString());
    qor::KeyFilterAdapter::attachKeyGetal(m_quantity, &m_lib, 2);
    qor::KeyFilterAdapter::attachKeyEuro(m_price, &m_lib);
    connect(m_code, &QLineEdit::textChanged, this, &LineEntry::showArticle);
    connect(m_add, &QPushButton::clicked, this, &LineEntry::enter);
    retranslate();
}

QLineEdit *LineEntry::addField(const char *objectName, int column)
{
    auto *field = new QLineEdit(this);
    field->setObjectName(QLatin1String(objectName));
    auto *label = new QLabel(this);
    label->setObjectName(QStringLiteral("lbl") + QLatin1String(objectName + 3));
    label->setBuddy(field);
    m_grid->addWidget(label, 0, column);
    m_grid->addWidget(field, 1, column);
    return field;
}

QComboBox *LineEntry::addCombo(const char *objectName, int column)
{
    auto *combo = new QComboBox(this);
    combo->setObjectName(QLatin1String(objectName));
    auto *label = new QLabel(this);
    label->setObjectName(QStringLiteral("lbl") + QLatin1String(objectName + 3));
    m_grid->addWidget(label, 0, column);
    m_grid->addWidget(combo, 1, column);
    return combo;
}

void LineEntry::retranslate()
{
    const QList<std::pair<int, int>> captions { { 0, 9562 }, { 1, 9564 }, { 2, 9568 }, { 3, 9570 },
        { 4, 9572 }, { 5, 9590 }, { 6, 9612 } };
    for (const auto &[column, id] : captions)
        static_cast<QLabel *>(m_grid->itemAtPosition(0, column)->widget())
            ->setText(catalogueWord(m_lib, id));
    setTitle(catalogueWord(m_lib, 9562));
    m_add->setText(catalogueWord(m_lib, 9501));
    fillUnits();
    fillPayments();
    // Chosen by position: a value equal to the first rate would select the
    // second one, as the classic call does. The first rate is the usual one.
    qint32 value = 0;
    qint32 index = m_vat->currentIndex() < 0 ? 1 : m_vat->currentIndex();
    m_lib.LoadComboBTW(m_vatAdapter, value, index);
}

void LineEntry::fillUnits()
{
    const int chosen = qMax(0, m_unit->currentIndex());
    m_unit->clear();
    for (int code = 1; code <= unitCount; ++code)
        m_unit->addItem(catalogueWord(m_lib, unitWords + code), code);
    m_unit->setCurrentIndex(chosen);
}

void LineEntry::fillPayments()
{
    const int chosen = qMax(0, m_payment->currentIndex());
    m_payment->clear();
    for (int code = 1; code <= paymentCount; ++code)
        m_payment->addItem(catalogueWord(m_lib, paymentWords + code), code);
    m_payment->setCurrentIndex(chosen);
}

void LineEntry::showArticle(const QString &code)
{
    const std::optional<InvoiceLine> article = m_articles.find(code);
    if (!article)
        return;
    m_description->setText(article->description);
    m_quantity->setText(QStringLiteral("1"));
    m_unit->setCurrentIndex(m_unit->findData(article->unit));
    m_price->setText(m_lib.SetEuro(float(article->price)));
    m_vat->setCurrentIndex(m_vat->findData(article->vatRate));
    m_payment->setCurrentIndex(m_payment->findData(article->payment));
}

std::optional<InvoiceLine> LineEntry::line()
{
    InvoiceLine line;
    line.code = m_code->text().trimmed();
    line.description = m_description->text().trimmed();
    line.quantity = m_lib.CGetal(m_quantity->text()).toDouble();
    line.unit = m_unit->currentData().toInt();
    line.price = m_lib.CGetal(m_price->text()).toDouble();
    line.vatRate = m_vat->currentData().toInt();
    line.payment = m_payment->currentData().toInt();
    QLineEdit *missing = line.description.isEmpty() ? m_description
        : line.quantity == 0                        ? m_quantity
                                                    : nullptr;
    if (!missing)
        return line;
    m_lib.MsgBoxE(catalogueWord(m_lib, 9704), 48, catalogueWord(m_lib, 1031));
    missing->setFocus();
    return std::nullopt;
}

void LineEntry::enter()
{
    if (const std::optional<InvoiceLine> entered = line()) {
        emit lineEntered(*entered);
        clear();
    }
}

void LineEntry::clear()
{
    for (QLineEdit *field : { m_code, m_description, m_quantity, m_price })
        field->clear();
    m_code->setFocus();
}
