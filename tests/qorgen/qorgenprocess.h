#pragma once

// Runs the qorgen program as a separate process, as its users do.

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

struct QorgenRun
{
    bool finished = false;
    int exitCode = -1;
    QByteArray out;
    QByteArray err;

    // Each line of the output read as a JSON object (the responses of `qorgen batch`).
    QList<QJsonObject> responses() const
    {
        QList<QByteArray> lines = out.split('\n');
        if (!lines.isEmpty() && lines.last().isEmpty())
            lines.removeLast();
        QList<QJsonObject> result;
        for (const QByteArray &line : lines)
            result.append(QJsonDocument::fromJson(line).object());
        return result;
    }
};

inline QorgenRun runQorgen(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    QProcess process;
    process.start(QStringLiteral(QORGEN_PATH), arguments);
    QorgenRun run;
    if (!process.waitForStarted(10000))
        return run;
    process.write(input);
    process.closeWriteChannel();
    run.finished = process.waitForFinished(30000);
    if (!run.finished)
        process.kill();
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}
