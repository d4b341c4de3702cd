#include "qorgenprocess.h"

#include <QFile>
#include <QJsonArray>

namespace {

int errorNumberOf(const QJsonObject &reply)
{
    return reply.value("error").toObject().value("number").toInt();
}

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

// `qorgen batch`, also as a long-running worker whose memory stays flat.
class TestQorgenBatch : public QObject
{
    Q_OBJECT

private slots:
    // One response a line, in order: the layout of each is the session's business. Input
    // that is large, odd or cut off, and a line that cannot be read, never stop the batch.
    void badInputNeverStopsTheBatch()
    {
        const QByteArray hugeString = QByteArray("a1").repeated(2500000);
        const QByteArray hugeArray = "[" + QByteArray("0,").repeated(1500000) + "0]";
        const QorgenRun run = runQorgen({ QStringLiteral("batch") },
            "{\"call\": \"FilterNumeric\", \"args\": [\"" + hugeString + "\"]}\n"
                + R"({"call": "FilterNumeric", "args": [)" + hugeArray + "]}\n\n   \n"
                + R"({"call": "SCase", "args": ["crlf"]})"
                  "\r\n"
                + R"({"call": "FilterNumeric", "args": ["x9"]})"
                  "\n"
                + "{\"call\": \"FilterNu");
        QVERIFY(run.finished);
        QCOMPARE(run.exitCode, 0);
        const QList<QJsonObject> responses = run.responses();
        QCOMPARE(responses.size(), 5); // blank lines get no response
        QCOMPARE(responses[0].value("result").toString().size(), 2500000);
        QCOMPARE(errorNumberOf(responses[1]), 5);
        QCOMPARE(responses[2].value("result").toString(), QStringLiteral("Crlf"));
        QCOMPARE(responses[3].value("result").toString(), QStringLiteral("9"));
        QCOMPARE(errorNumberOf(responses[4]), 5); // the input closed in the middle of a line
    }

    // Objects of any size are read, checked for repeated names and written back
    // in time that grows with their size alone (the test's time limit is the check).
    void largeObjectsAreAnswered_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<QString>("fault"); // named in the error; empty: none
        QTest::newRow("host object with many properties") << QByteArray("$object") << QString();
        QTest::newRow("many members, the last repeated: no JSON, so no id")
            << QByteArray("repeated") << QStringLiteral("m7");
    }
    void largeObjectsAreAnswered()
    {
        QFETCH(QByteArray, kind);
        QFETCH(QString, fault);
        const int members = 200000;
        QByteArray object = kind == "$object" ? QByteArray(R"({"$object": "TextBox", "Text": "ab")")
                                              : QByteArray("{\"m\": 0");
        for (int i = 1; i < members; ++i)
            object += ", \"m" + QByteArray::number(i) + "\": " + QByteArray::number(i);
        object += kind == "repeated" ? ", \"m7\": 1}" : "}";
        const QByteArray call = kind == "$object"
            ? R"({"id": 1, "props": false, "call": "SelEdit", "args": [)" + object + "]}"
            : R"({"id": 1, "props": false, "call": "SCase", "args": ["x"], "extra": )" + object
                + "}";
        const QorgenRun run = runQorgen({ QStringLiteral("batch") },
            call + "\n"
                + R"({"call": "SCase", "args": ["y"]})"
                  "\n");
        QVERIFY(run.finished);
        const QList<QJsonObject> responses = run.responses();
        QCOMPARE(responses.size(), 2);
        const QJsonObject reply = responses[0];
        QCOMPARE(reply.value("id"),
            kind == "repeated" ? QJsonValue(QJsonValue::Undefined) : QJsonValue(1));
        if (fault.isEmpty()) {
            const QJsonObject control = reply.value("args").toArray().at(0).toObject();
            QCOMPARE(control.value("SelLength").toInt(), 2);
            QCOMPARE(control.value("m1").toInt(), 1);
            QCOMPARE(control.value("m" + QString::number(members - 1)).toInt(), members - 1);
        } else {
            QCOMPARE(errorNumberOf(reply), 5);
            QVERIFY(
                reply.value("error").toObject().value("description").toString().contains(fault));
        }
        QCOMPARE(responses[1].value("result").toString(), QStringLiteral("Y"));
    }

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

QTEST_GUILESS_MAIN(TestQorgenBatch)
#include "tst_qorgenbatch.moc"
