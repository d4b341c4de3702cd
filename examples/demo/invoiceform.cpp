#include "invoiceform.h"

#include "catalogueword.h"
#include "customerblock.h"
#include "demosettings.h"
#include "einvoiceexport.h"
#include "invoiceheader.h"
#include "lineentry.h"
#include "linefile.h"
#include "linegrid.h"
#include "totalsblock.h"

#include <qorgenlib/host/qt/formadapter.h>

#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
// The language names are the same in every language.
const QStringList languages { QStringLiteral("Nederlands"), QStringLiteral("Français"),
    QStringLiteral("English"), QStringLiteral("Deutsch"), QStringLiteral("Espanol"),
    QStringLiteral("Italiano") };
} // namespace

InvoiceForm::InvoiceForm(clsqorGenLib &lib, DemoSettings &settings, QWidget *parent)
    : QWidget(parent)
    , m_lib(lib)
    , m_settings(settings)
    , m_customer(new CustomerBlock(lib, this))
    , m_header(new InvoiceHeader(lib, this))
    , m_entry(new LineEntry(lib, this))
    , m_grid(new LineGrid(lib, this))
    , m_totals(new TotalsBlock(lib, this))
    , m_language(new QComboBox(this))
    , m_languageCaption(new QLabel(this))
    , m_form(new qor::FormAdapter(this, this))
{
    setObjectName(QStringLiteral("frmFactuur"));
    m_language->setObjectName(QStringLiteral("cboTaal"));
    for (int i = 0; i < languages.size(); ++i)
        m_language->addItem(languages.at(i), i * 10000);
    m_language->setCurrentIndex(m_lib.property("Offset").toInt() / 10000);
    createButtons();
    layOut();
    connect(m_entry, &LineEntry::lineEntered, m_grid, &LineGrid::append);
    connect(m_grid, &LineGrid::linesChanged, this, &InvoiceForm::showTotals);
    connect(m_header, &InvoiceHeader::referenceChanged, m_totals, &TotalsBlock::setReference);
    connect(m_language, &QComboBox::currentIndexChanged, this,
        [this](int index) { setLanguage(m_language->itemData(index).toInt()); });
    retranslate();
    startInvoice();
}

void InvoiceForm::createButtons()
{
    m_save = new QPushButton(this);
    m_save->setObjectName(QStringLiteral("cmdOpslaan"));
    m_export = new QPushButton(QStringLiteral("Export"), this);
    m_export->setObjectName(QStringLiteral("cmdExport"));
    m_import = new QPushButton(QStringLiteral("Import"), this);
    m_import->setObjectName(QStringLiteral("cmdImport"));
    m_einvoice = new QPushButton(QStringLiteral("E-factuur"), this);
    m_einvoice->setObjectName(QStringLiteral("cmdEFactuur"));
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("lblStatus"));
    connect(m_save, &QPushButton::clicked, this, &InvoiceForm::save);
    connect(m_export, &QPushButton::clicked, this, &InvoiceForm::exportLines);
    connect(m_import, &QPushButton::clicked, this, &InvoiceForm::importLines);
    connect(m_einvoice, &QPushButton::clicked, this, &InvoiceForm::writeEInvoice);
}

void InvoiceForm::layOut()
{
    auto *grid = new QGridLayout(this);
    auto *top = new QHBoxLayout;
    top->addWidget(m_customer, 3);
    top->addWidget(m_header, 2);
    grid->addLayout(top, 0, 0, 1, 2);
    grid->addWidget(m_entry, 1, 0, 1, 2);
    grid->addWidget(m_grid, 2, 0, 1, 2);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_languageCaption);
    buttons->addWidget(m_language);
    buttons->addStretch();
    for (QPushButton *button : { m_save, m_export, m_import, m_einvoice })
        buttons->addWidget(button);
    auto *left = new QVBoxLayout;
    left->addWidget(m_status);
    left->addStretch();
    left->addLayout(buttons);
    grid->addLayout(left, 3, 0);
    grid->addWidget(m_totals, 3, 1);
}

void InvoiceForm::retranslate()
{
    setWindowTitle(catalogueWord(m_lib, 9574) + QStringLiteral(" - qorGenLib Demo"));
    m_languageCaption->setText(catalogueWord(m_lib, 9541));
    m_save->setText(catalogueWord(m_lib, 9504));
    m_customer->retranslate();
    m_header->retranslate();
    m_entry->retranslate();
    m_grid->retranslate();
    m_totals->retranslate();
}

void InvoiceForm::setLanguage(int offset)
{
    // The grid is set up anew in the new language; the form's change check must not see it.
    const bool changed = m_lib.DataChange(m_form);
    m_lib.setProperty("Offset", offset);
    m_language->setCurrentIndex(offset / 10000);
    retranslate();
    if (!changed)
        m_lib.DataChange(m_form, true);
    m_settings.setValue(QStringLiteral("Taal"), QString::number(offset));
    emit languageChanged(offset);
}

void InvoiceForm::startInvoice()
{
    m_header->setNumber(m_settings.value(QStringLiteral("VolgendeFactuur"), QStringLiteral("1")));
    m_lib.DataChange(m_form, true);
    bool reset = true;
    m_lib.ControleerBtwClick(reset);
}

void InvoiceForm::showTotals()
{
    m_totals->showTotals(m_grid->lines());
}

void InvoiceForm::showStatus(const QString &text)
{
    m_status->setText(text);
}

void InvoiceForm::save()
{
    if (!m_lib.DataChange(m_form)) {
        showStatus(catalogueWord(m_lib, 9703));
        return;
    }
    // Whether the amounts typed since the last VAT key are VAT inclusive.
    const bool inclusive = m_lib.ControleerBtwClick();
    const QString number = m_header->number();
    m_settings.setValue(QStringLiteral("Factuur") + number,
        m_header->date() + QLatin1Char(' ') + m_header->reference()
            + (inclusive ? QStringLiteral(" BTW incl.") : QString()));
    m_settings.setValue(
        QStringLiteral("VolgendeFactuur"), QString::number(m_lib.CGetal(number).toLongLong() + 1));
    m_lib.DataChange(m_form, true);
    bool reset = true;
    m_lib.ControleerBtwClick(reset);
    showStatus(catalogueWord(m_lib, 9705));
}

QString InvoiceForm::exportPath() const
{
    const QString folder = m_settings.value(QStringLiteral("ExportMap"), QDir::homePath());
    return QDir(folder).filePath(QStringLiteral("factuur-%1.txt").arg(m_header->number()));
}

void InvoiceForm::exportLines()
{
    const QString path = exportPath();
    LineFile file(m_lib);
    if (!file.write(path, m_grid->lines())) {
        m_lib.MsgBoxE(catalogueWord(m_lib, 9726) + path, 48, QStringLiteral("Export"));
        return;
    }
    m_settings.setValue(QStringLiteral("LaatsteExport"), path);
    showStatus(QStringLiteral("Export: %1 (%2)").arg(path).arg(m_grid->lines().size()));
}

void InvoiceForm::importLines()
{
    const QString path = m_lib.InputBoxE(QStringLiteral("Import :"), QStringLiteral("Import"),
        m_settings.value(QStringLiteral("LaatsteExport"), exportPath()), 250);
    if (path == QLatin1String("-9999") || path.trimmed().isEmpty())
        return;
    LineFile file(m_lib);
    const LineFile::ReadResult read = file.read(path.trimmed());
    if (!read.opened) {
        m_lib.MsgBoxE(catalogueWord(m_lib, 9725) + path, 48, QStringLiteral("Import"));
        return;
    }
    m_grid->setLines(m_grid->lines() + read.lines);
    showStatus(QStringLiteral("Import: %1 OK, %2 NOK").arg(read.lines.size()).arg(read.refused));
}

void InvoiceForm::writeEInvoice()
{
    EInvoiceSource source;
    source.number = m_header->number();
    // The date field shows the Belgian notation, with slashes, dashes or dots.
    for (const QString &format : { QStringLiteral("dd/MM/yyyy"), QStringLiteral("dd-MM-yyyy"),
             QStringLiteral("dd.MM.yyyy") }) {
        if (!source.date.isValid())
            source.date = QDate::fromString(m_header->date(), format);
    }
    if (!source.date.isValid())
        source.date = QDate::currentDate();
    source.reference = m_header->reference();
    source.customerName = findChild<QLineEdit *>(QStringLiteral("txtNaam"))->text();
    QVariant vatDigits = findChild<QLineEdit *>(QStringLiteral("txtBtwNr"))->text();
    source.customerVat = m_lib.FilterNumeric(vatDigits).toString();
    source.lines = m_grid->lines();
    const QString path = QDir(m_settings.value(QStringLiteral("ExportMap"), QDir::homePath()))
                             .filePath(QStringLiteral("factuur-%1.xml").arg(source.number));
    const QVariantList broken = saveEInvoice(source, path, m_lib.property("Offset").toInt());
    if (broken.isEmpty()) {
        showStatus(QStringLiteral("E-factuur: %1").arg(path));
        return;
    }
    QStringList lines;
    for (const QVariant &rule : broken)
        lines.append(rule.toList().value(0).toString() + QStringLiteral(": ")
            + rule.toList().value(1).toString());
    m_lib.MsgBoxE(lines.join(QChar(13)), 48, QStringLiteral("E-factuur"));
}

void InvoiceForm::closeEvent(QCloseEvent *event)
{
    if (!m_lib.DataChange(m_form)) {
        event->accept();
        return;
    }
    // Yes saves before the window closes, No closes without saving.
    if (m_lib.MsgBoxE(catalogueWord(m_lib, 9702), 4 + 32, catalogueWord(m_lib, 9574)) == 6)
        save();
    event->accept();
}
