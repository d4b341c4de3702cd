#include "einvoice/invoicejson.h"
#include "einvoice/ublwriter.h"

#include "officialrules.h"

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

using namespace qor::einvoice;

// Every test invoice, written as UBL, passes the official rules of the norm
// and of Peppol.
class TestUblValidation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        const QDir invoices(QStringLiteral(QOR_EINVOICE_TEST_DATA "/invoices"));
        const QStringList names = invoices.entryList({ QStringLiteral("*.json") }, QDir::Files);
        QVERIFY2(names.size() >= 20, qPrintable(invoices.path()));
        QStringList written;
        for (const QString &name : names) {
            QFile file(invoices.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const InvoiceFromJson read
                = invoiceFromJson(QJsonDocument::fromJson(file.readAll()).object());
            QVERIFY2(read.errors.isEmpty(),
                qPrintable(name + QStringLiteral(": ") + read.errors.join(u'\n')));
            QFile out(m_dir.filePath(
                QString(name).replace(QStringLiteral(".json"), QStringLiteral(".xml"))));
            QVERIFY(out.open(QIODevice::WriteOnly));
            out.write(writeUbl(read.invoice, UblLayout::Indented));
            written.append(out.fileName());
            m_names.append(name);
        }
        QVERIFY2(m_rules.run(written), qPrintable(m_rules.output()));
    }

    void passes_data()
    {
        QTest::addColumn<QString>("file");
        for (const QString &name : m_names)
            QTest::newRow(qPrintable(name)) << m_dir.filePath(
                QString(name).replace(QStringLiteral(".json"), QStringLiteral(".xml")));
    }
    void passes()
    {
        QFETCH(QString, file);
        QCOMPARE(m_rules.resultOf(file), QStringLiteral("ok"));
    }

private:
    QTemporaryDir m_dir;
    QStringList m_names;
    test::OfficialRules m_rules;
};

QTEST_GUILESS_MAIN(TestUblValidation)
#include "tst_ublvalidation.moc"
