#include "einvoice/ublwriter.h"

#include "officialrules.h"
#include "testinvoices.h"

#include <QFileInfo>
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
            m_names.append(name);
        }
        QVERIFY2(m_rules.run(written), qPrintable(m_rules.output()));
    }

    void passes_data()
    {
        QTest::addColumn<QString>("file");
        for (const QString &name : m_names)
            QTest::newRow(qPrintable(name)) << m_dir.filePath(name + QStringLiteral(".xml"));
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
