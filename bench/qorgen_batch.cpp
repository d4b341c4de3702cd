// Feeds 100,000 FilterNumeric requests to `qorgen batch`, once with the
// object's properties in every response and once without ("props": false), and
// reports how many requests per second it answers (wall time of the batch).
//
//   bench_qorgen_batch [PATH-TO-QORGEN] [REQUESTS]
//
// Without a path it looks for the qorgen built beside it (../tools/qorgen/qorgen).

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

namespace {

QString defaultQorgen()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../tools/qorgen/qorgen");
}

QByteArray requests(int count, bool withProps)
{
    QByteArray input;
    input.reserve(qsizetype(count) * 80);
    const QByteArray end = withProps ? QByteArray(R"("]})") : QByteArray(R"("], "props": false})");
    for (int i = 0; i < count; ++i) {
        input += R"({"call": "FilterNumeric", "args": ["BE )" + QByteArray::number(i) + '-'
            + QByteArray::number(i * 7 % 100000) + end + '\n';
    }
    return input;
}

qsizetype countLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    qsizetype lines = 0;
    while (!file.atEnd())
        lines += file.read(1 << 20).count('\n');
    return lines;
}

// Requests answered per second, or a negative number when the batch failed.
double run(const QString &qorgen, int count, bool withProps, const QTemporaryDir &dir)
{
    const QString in = dir.filePath(QStringLiteral("requests.jsonl"));
    const QString out = dir.filePath(QStringLiteral("responses.jsonl"));
    QFile file(in);
    if (!file.open(QIODevice::WriteOnly) || file.write(requests(count, withProps)) < 0)
        return -1;
    file.close();

    QProcess process;
    process.setStandardInputFile(in);
    process.setStandardOutputFile(out);
    QElapsedTimer timer;
    timer.start();
    process.start(qorgen, { QStringLiteral("batch") });
    if (!process.waitForStarted() || !process.waitForFinished(-1)) {
        std::fprintf(stderr, "cannot run %s\n", qPrintable(qorgen));
        return -1;
    }
    const double seconds = double(timer.nsecsElapsed()) / 1e9;
    const qsizetype answered = countLines(out);
    std::printf("%-16s %lld requests answered of %d in %.2f s: %.0f requests per second\n",
        withProps ? "with props" : "\"props\": false", (long long)answered, count, seconds,
        double(answered) / seconds);
    return answered == count && process.exitCode() == 0 ? double(answered) / seconds : -1;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QString qorgen = argc > 1 ? QString::fromLocal8Bit(argv[1]) : defaultQorgen();
    const int count = argc > 2 ? QByteArray(argv[2]).toInt() : 100000;
    QTemporaryDir dir;
    const double withProps = run(qorgen, count, true, dir);
    const double without = run(qorgen, count, false, dir);
    return withProps > 0 && without > 0 ? 0 : 1;
}
