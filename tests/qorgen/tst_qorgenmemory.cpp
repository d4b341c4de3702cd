// The batch as a long-running worker: its memory stays flat.
#include <QFile>
#include <QProcess>
#include <QTest>

namespace {

// The resident memory of a running process in kilobytes (0: unknown).
qint64 residentKilobytes(qint64 pid)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLongLong();
    }
    return 0;
}

} // namespace

class TestQorgenMemory : public QObject
{
    Q_OBJECT

private slots:
    // A long-running worker stays small: a host object that a property no longer
    // holds is released, however many were assigned before it. It answers every
    // line it was given while its input stays open.
    void replacedHostObjectsAreReleased()
    {
        QProcess process;
        process.start(QStringLiteral(QORGEN_PATH), { QStringLiteral("batch") });
        QVERIFY(process.waitForStarted(10000));
        constexpr int linesPerChunk = 10000;
        const QByteArray chunk = QByteArray(R"({"set": {"FlowCTL": {"$object": "TextBox", )"
                                            R"("Text": "x"}}, "props": false})"
                                            "\n")
                                     .repeated(linesPerChunk);
        for (int written = 0; written < 1000000; written += linesPerChunk) {
            process.write(chunk);
            qsizetype answered = 0;
            while (answered < linesPerChunk && process.waitForReadyRead(20000))
                answered += process.readAllStandardOutput().count('\n');
            QCOMPARE(answered, qsizetype(linesPerChunk));
        }
        const qint64 kilobytes = residentKilobytes(process.processId());
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished(10000));
        QVERIFY(kilobytes > 0);
        QVERIFY2(kilobytes < 30 * 1024, QByteArray::number(kilobytes) + " kB");
    }
};

QTEST_GUILESS_MAIN(TestQorgenMemory)
#include "tst_qorgenmemory.moc"
