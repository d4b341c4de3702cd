#include "einvoice/rulecheck.h"
#include "einvoice/ublwriter.h"

#include "officialrules.h"
#include "testinvoices.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace qor::einvoice;

// Every test invoice, written as UBL, passes the official rules of the norm
// and of Peppol, and the library's own rule check raises no false alarm on it.
class TestUblValidation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        const QStringList files = test::testInvoiceFiles();
        QVERIFY2(files.size() >= 20, QOR_EINVOICE_TEST_DATA);
        QStringList written;
        for (const QString &file : files) {
            const InvoiceFromJson read = test::readInvoiceFile(file);
            QVERIFY2(read.errors.isEmpty(), qPrintable(file + u'\n' + read.errors.join(u'\n')));
            const QString name = QFileInfo(file).completeBaseName();
            QFile out(m_dir.filePath(name + QStringLiteral(".xml")));
            QVERIFY(out.open(QIODevice::WriteOnly));
            out.write(writeUbl(read.invoice, UblLayout::Indented));
            written.append(out.fileName());
            m_invoices.insert(name, read.invoice);
        }
        QVERIFY2(m_rules.run(written), qPrintable(m_rules.output()));
    }

    void passes_data()
    {
        QTest::addColumn<QString>("name");
        for (auto it = m_invoices.cbegin(); it != m_invoices.cend(); ++it)
            QTest::newRow(qPrintable(it.key())) << it.key();
    }
    void passes()
    {
        QFETCH(QString, name);
        QCOMPARE(
            m_rules.resultOf(m_dir.filePath(name + QStringLiteral(".xml"))), QStringLiteral("ok"));
        const QList<RuleBreach> found = checkRules(m_invoices.value(name));
        QVERIFY2(found.isEmpty(),
            qPrintable(
                found.isEmpty() ? QString() : found.first().ruleId + ' ' + found.first().message));
    }

private:
    QTemporaryDir m_dir;
    QMap<QString, Invoice> m_invoices;
    test::OfficialRules m_rules;
};

QTEST_GUILESS_MAIN(TestUblValidation)
#include "tst_ublvalidation.moc"
