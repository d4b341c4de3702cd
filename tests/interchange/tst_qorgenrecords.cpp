// `qorgen records` as scripts use it: JSON Lines in, a data file out, and
// back, with every faulty line reported and the exit status telling.

#include "tests/qorgen/qorgenprocess.h"

#include <QFile>
#include <QTemporaryDir>

class tst_QorgenRecords : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

private slots:
    void roundTrip()
    {
        const QString file = path("round.txt");
        const QorgenRun written = runQorgen({ "records", "write", "--widths", "4,8", "--formats",
                                                "[\"\",\"#,##0.00\"]", "--locale", "nl_BE", file },
            "[\"AB\",\"7\"]\n[\"Caf\xC3\xA9\",1234.5]\n");
        QCOMPARE(written.exitCode, 0);
        QCOMPARE(written.err, QByteArray());
        QFile bytes(file);
        QVERIFY(bytes.open(QIODevice::ReadOnly));
        QCOMPARE(bytes.readAll(),
            QByteArray("000001 AB       7,00 67\r\n000002 Caf\xE9 1.234,50 DE\r\n"));

        const QorgenRun read = runQorgen({ "records", "read", "--widths", "4,8", file });
        QCOMPARE(read.exitCode, 0);
        QCOMPARE(read.lines(),
            (QList<QByteArray> { "[\"AB\",\"7,00\"]", "[\"Caf\xC3\xA9\",\"1.234,50\"]" }));
    }

    void faultyLines()
    {
        const QString file = path("faulty.txt");
        QFile bytes(file);
        QVERIFY(bytes.open(QIODevice::WriteOnly));
        bytes.write("000001 AB   7   9B\r\n000002 AB   7   9B\r\n\n000004 CD   8   A3");
        bytes.close();
        const QorgenRun read = runQorgen({ "records", "read", "--widths=4,3", file });
        QCOMPARE(read.exitCode, 1);
        QCOMPARE(read.lines(), (QList<QByteArray> { "[\"AB\",\"7\"]", "[\"CD\",\"8\"]" }));
        QList<QByteArray> faults = read.err.split('\n');
        faults.removeAll(QByteArray());
        QCOMPARE(faults.size(), 2);
        QCOMPARE(QJsonDocument::fromJson(faults[0]).object().value("line").toInt(), 2);
        QCOMPARE(QJsonDocument::fromJson(faults[1]).object().value("line").toInt(), 3);
        QCOMPARE(QJsonDocument::fromJson(faults[1]).object().value("fault").toString(),
            QStringLiteral("checksum"));
    }

    void badInputLines()
    {
        const QorgenRun written = runQorgen(
            { "records", "write", "--widths", "2", "--no-checksum", "--no-line-numbers", "-" },
            "[\"a\"]\nnot json\n[\"a\",\"b\"]\n[true]\n[\"b\"]\n");
        QCOMPARE(written.exitCode, 1);
        QCOMPARE(written.out, QByteArray("a \r\nb \r\n"));
        QCOMPARE(written.err.count('\n'), 3);
    }

    void usageErrors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no direction") << QStringList { "records" };
        QTest::newRow("no widths") << QStringList { "records", "read", "x.txt" };
        // clang-format off
        QTest::newRow("negative width") << QStringList { "records", "read", "--widths", "4,-1", "x" };
        QTest::newRow("width no number") << QStringList { "records", "read", "--widths", "4,a", "x" };
        QTest::newRow("huge width") << QStringList { "records", "read", "--widths", "99999999999", "x" };
        QTest::newRow("formats no array") << QStringList { "records", "write", "--widths", "4", "--formats", "0.00", "x" };
        QTest::newRow("formats count") << QStringList { "records", "write", "--widths", "4,3", "--formats", "[\"\"]", "x" };
        QTest::newRow("no file") << QStringList { "records", "read", "--widths", "4" };
        QTest::newRow("missing file") << QStringList { "records", "read", "--widths", "4", "/nonexistent/x" };
        QTest::newRow("unknown option") << QStringList { "records", "read", "--widths", "4", "--fast", "x" };
        // clang-format on
    }

    void usageErrors()
    {
        QFETCH(QStringList, arguments);
        const QorgenRun run = runQorgen(arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.startsWith("qorgen records: "));
    }
};

QTEST_GUILESS_MAIN(tst_QorgenRecords)
#include "tst_qorgenrecords.moc"
