#include "einvoice/ublreader.h"
#include "einvoice/ublwriter.h"

#include "officialrules.h"

#include <QTemporaryDir>
#include <QTest>

using namespace qor::einvoice;

// Every Peppol example document is read, written back and passes the
// official rules again with the same totals and lines.
class TestPeppolExamples : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        const QDir examples(QStringLiteral(QOR_EINVOICE_RULES "/examples"));
        m_names = examples.entryList({ QStringLiteral("*.xml") }, QDir::Files);
        QVERIFY2(!m_names.isEmpty(), qPrintable(examples.path()));
        QStringList written;
        for (const QString &name : m_names) {
            QFile file(examples.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            m_read[name] = readUbl(file.readAll());
            QFile out(m_dir.filePath(name));
            QVERIFY(out.open(QIODevice::WriteOnly));
            out.write(writeUbl(m_read[name].invoice));
            written.append(out.fileName());
        }
        QVERIFY2(m_rules.run(written), qPrintable(m_rules.output()));
    }

    void examples_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : m_names)
            QTest::newRow(qPrintable(name)) << name;
    }

    void readsWithoutErrorAndAgreesWithTheComputation_data() { examples_data(); }
    void readsWithoutErrorAndAgreesWithTheComputation()
    {
        QFETCH(QString, name);
        QCOMPARE(m_read[name].errors, QStringList());
        QVERIFY(!m_read[name].invoice.lines.isEmpty());
        QCOMPARE(m_read[name].differences, QList<AmountDifference>());
    }

    void writtenBackKeepsTotalsAndLines_data() { examples_data(); }
    void writtenBackKeepsTotalsAndLines()
    {
        QFETCH(QString, name);
        QFile file(m_dir.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const UblReadResult again = readUbl(file.readAll());
        QCOMPARE(again.errors, QStringList());
        QCOMPARE(again.invoice.statedAmounts, m_read[name].invoice.statedAmounts);
        QCOMPARE(again.invoice.lines, m_read[name].invoice.lines);
        QCOMPARE(again.invoice.number, m_read[name].invoice.number);
        QCOMPARE(again.invoice.seller, m_read[name].invoice.seller);
        QCOMPARE(again.invoice.buyer, m_read[name].invoice.buyer);
    }

    void writtenBackPassesTheOfficialRules_data() { examples_data(); }
    void writtenBackPassesTheOfficialRules()
    {
        QFETCH(QString, name);
        QCOMPARE(m_rules.resultOf(m_dir.filePath(name)), QStringLiteral("ok"));
    }

private:
    QTemporaryDir m_dir;
    QStringList m_names;
    QHash<QString, UblReadResult> m_read;
    test::OfficialRules m_rules;
};

QTEST_GUILESS_MAIN(TestPeppolExamples)
#include "tst_peppolexamples.moc"
