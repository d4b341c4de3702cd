// `qorgen records` as scripts use it: JSON Lines in, a data file out, and
// back, with every faulty line reported and the exit status telling.

#include "tests/qorgen/qorgenprocess.h"

#include <QFile>
#include <QTemporaryDir>

class tst_QorgenRecords : public QObject
{
    Q_OBJECT

private slots:
    // One run each: the arguments (FILE is a data file, holding "before" when that is
    // not empty), standard input, the exit status, standard output, the start of
    // standard error and the data file afterwards (when "after" is not empty).
    void records_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("out");
        QTest::addColumn<QByteArray>("err");
        QTest::addColumn<QByteArray>("after");
        const QByteArray none;
        const QByteArray written("000001 AB       7,00 67\r\n000002 Caf\xE9 1.234,50 DE\r\n");
        const QByteArray faulty("000001 AB   7   9B\r\n000002 AB   7   9B\r\n\n000004 CD   8   A3");
        const QByteArray usage("qorgen records: ");
        // clang-format off
        QTest::newRow("write with formats and a locale") << QStringList { "records", "write", "--widths", "4,8", "--formats", "[\"\",\"#,##0.00\"]", "--locale", "nl_BE", "FILE" } << none << QByteArray("[\"AB\",\"7\"]\n[\"Caf\xC3\xA9\",1234.5]\n") << 0 << none << none << written;
        QTest::newRow("faulty lines reported, the rest read") << QStringList { "records", "read", "--widths=4,3", "FILE" } << faulty << none << 1 << QByteArray("[\"AB\",\"7\"]\n[\"CD\",\"8\"]\n") << QByteArray("{\"fault\":\"checksum\",\"line\":2,\"reason\":\"missing or wrong checksum\"}\n{\"fault\":\"checksum\",\"line\":3,") << none;
        QTest::newRow("bad input lines reported, the rest written") << QStringList { "records", "write", "--widths", "2", "--no-checksum", "--no-line-numbers", "-" } << none << QByteArray("[\"a\"]\nnot json\n[\"a\",\"b\"]\n[true]\n[\"b\"]\n") << 1 << QByteArray("a \r\nb \r\n") << QByteArray("{\"fault\":\"input\",\"line\":2,\"reason\":\"illegal value\"}\n{\"fault\":\"input\",\"line\":3,\"reason\":\"2 fields where the layout has 1\"}\n{\"fault\":\"input\",\"line\":4,") << none;
        QTest::newRow("no direction") << QStringList { "records" } << none << none << 2 << none << usage << none;
        // A file that can be read, so that only the widths are wrong.
        QTest::newRow("negative width") << QStringList { "records", "read", "--widths", "4,-1", "FILE" } << faulty << none << 2 << none << usage << none;
        QTest::newRow("formats no array") << QStringList { "records", "write", "--widths", "4", "--formats", "0.00", "x" } << none << none << 2 << none << usage << none;
        QTest::newRow("no file") << QStringList { "records", "read", "--widths", "4" } << none << none << 2 << none << usage << none;
        QTest::newRow("missing file") << QStringList { "records", "read", "--widths", "4", "/nonexistent/x" } << none << none << 2 << none << usage << none;
        QTest::newRow("unknown option") << QStringList { "records", "read", "--widths", "4", "--fast", "x" } << none << none << 2 << none << usage << none;
        // clang-format on
    }
    void records()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, input);
        QFETCH(QByteArray, err);
        QFETCH(QByteArray, after);
        QTemporaryDir dir;
        QFile file(dir.filePath(QStringLiteral("records.txt")));
        if (!before.isEmpty()) {
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(before);
            file.close();
        }
        const QorgenRun run = runQorgen(arguments.replaceInStrings("FILE", file.fileName()), input);
        QTEST(run.exitCode, "status");
        QTEST(run.out, "out");
        QVERIFY2(err.isEmpty() ? run.err.isEmpty() : run.err.startsWith(err), run.err.constData());
        if (!after.isEmpty()) {
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), after);
        }
    }
};

QTEST_GUILESS_MAIN(tst_QorgenRecords)
#include "tst_qorgenrecords.moc"
