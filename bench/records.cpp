// Records per second and megabytes per second of the record writer and
// reader: 1,000,000 records of ten fields, in memory and through a file.

#include "interchange/recordfilereader.h"
#include "interchange/recordfilewriter.h"
#include "interchange/recordreader.h"
#include "interchange/recordwriter.h"
#include "platform/coreplatform.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace qor;

namespace {

constexpr int recordCount = 1000000;
constexpr int fieldCount = 10;

RecordLayout benchLayout()
{
    RecordLayout layout;
    layout.widths = { 6, 20, 12, 8, 4, 10, 3, 15, 6, 9 };
    return layout;
}

// A few hundred distinct rows, as an export of articles and amounts repeats its shapes.
std::vector<QStringList> sampleRows()
{
    std::vector<QStringList> rows;
    for (int r = 0; r < 256; ++r) {
        QStringList row;
        for (int f = 0; f < fieldCount; ++f)
            row.append(f % 3 == 0 ? QString::number(r * 37 + f)
                                  : QStringLiteral("Artikel %1-%2 ").arg(r).arg(f));
        rows.push_back(row);
    }
    return rows;
}

double threadSeconds()
{
    timespec t {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) / 1e9;
}

// Wall time and the processor time of this thread: on a shared machine the
// second tells what the code costs, the first what the machine gave it.
struct Stopwatch
{
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
    double cpuStart = threadSeconds();
    double wall() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    double cpu() const { return threadSeconds() - cpuStart; }
};

void report(const char *what, const Stopwatch &clock, qint64 bytes)
{
    const double cpu = clock.cpu();
    const double wall = clock.wall();
    std::printf("%-28s %10.0f records/s %8.1f MB/s per processor second  (%.3f s; wall %.3f s)\n",
        what, recordCount / cpu, double(bytes) / 1e6 / cpu, cpu, wall);
}

} // namespace

int main()
{
    const RegionalSettings rs = RegionalSettings::fromLocale(QStringLiteral("nl_BE"));
    Platform::install(std::make_shared<CorePlatform>());
    const RecordLayout layout = benchLayout();
    const std::vector<QStringList> rows = sampleRows();
    const RecordWriter writer(layout, rs);

    // In memory: one text holding every record, one per line.
    // Memory for every record, touched before the clock starts: the writer
    // is measured, not the system's first handing out of pages.
    const qsizetype recordLength = writer.record(1, rows[0]).size();
    QString all(qsizetype(recordCount) * recordLength, QLatin1Char(' '));
    all.resize(0);
    std::vector<qsizetype> ends;
    ends.reserve(recordCount);
    Stopwatch writing;
    for (int i = 0; i < recordCount; ++i) {
        const QStringList &row = rows[size_t(i & 255)];
        writer.append(i % 999999 + 1, std::span(row.cbegin(), row.cend()), all);
        ends.push_back(all.size());
    }
    report("write, in memory", writing, all.size());

    const RecordReader reader(layout, rs);
    QList<QStringView> fields;
    fields.reserve(fieldCount);
    qint64 faults = 0;
    Stopwatch reading;
    qsizetype begin = 0;
    for (const qsizetype end : ends) {
        if (reader.read(QStringView(all).sliced(begin, end - begin), fields) != RecordFault::None)
            ++faults;
        begin = end;
    }
    report("read, in memory", reading, all.size());

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("records.txt"));
    {
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        RecordFileWriter fileWriter(file, layout, rs);
        Stopwatch fileWriting;
        for (int i = 0; i < recordCount; ++i)
            fileWriter.write(rows[size_t(i & 255)]);
        fileWriter.flush();
        file.flush();
        report("write, file", fileWriting, file.size());
    }
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    RecordFileReader fileReader(file, layout, rs);
    Stopwatch fileReading;
    qint64 records = 0;
    for (auto s = fileReader.next(); s != RecordFileReader::Status::End; s = fileReader.next())
        s == RecordFileReader::Status::Record ? ++records : ++faults;
    report("read, file (byte fields)", fileReading, file.size());

    file.seek(0);
    RecordFileReader decodingReader(file, layout, rs);
    Stopwatch decoding;
    for (auto s = decodingReader.next(); s != RecordFileReader::Status::End;
         s = decodingReader.next()) {
        if (s == RecordFileReader::Status::Record)
            records += decodingReader.fields().size() > 0;
    }
    report("read, file (text fields)", decoding, file.size());

    {
        // The same bytes written without the codec: what the system costs.
        QFile plain(dir.filePath(QStringLiteral("plain.txt")));
        plain.open(QIODevice::WriteOnly);
        const QByteArray block(1 << 20, 'x');
        const qint64 total = QFileInfo(path).size();
        Stopwatch plainWriting;
        for (qint64 done = 0; done < total; done += block.size())
            plain.write(block.constData(), qMin<qint64>(block.size(), total - done));
        plain.flush();
        report("plain file write (the disk)", plainWriting, total);
    }

    Stopwatch copying;
    QFile again(path);
    again.open(QIODevice::ReadOnly);
    qint64 copied = 0;
    QByteArray chunk(1 << 20, Qt::Uninitialized);
    for (qint64 n; (n = again.read(chunk.data(), chunk.size())) > 0;)
        copied += n;
    report("plain file read (the disk)", copying, copied);

    if (faults != 0 || records != 2 * qint64(recordCount)) {
        std::printf(
            "unexpected: %lld faults, %lld records\n", qlonglong(faults), qlonglong(records));
        return 1;
    }
    return 0;
}
