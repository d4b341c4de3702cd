// The settings-file reader and writer on any file contents: the file is put
// in a folder of its own, read with GetIni, changed with WriteIni and read
// again, with and without the message for a missing key.
#include "fuzz/fuzzinput.h"
#include "lib/clsqorgenlib.h"
#include "system/profilefile.h"

#include <QFile>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QTemporaryDir folder;
    qor::fuzz::fuzzMachine();
    qor::fuzz::FuzzInput input(data, size);
    const bool mbox = input.flag();
    const bool direct = input.flag();
    // Section, key and value, then the file.
    const QStringList parts = input.parts(4);
    const QString header = parts.value(0);
    const QString section = parts.value(1);
    const QString value = parts.value(2);
    const QByteArray contents = parts.value(3).toLatin1();
    if (direct) {
        const qor::ProfileFile file(contents);
        file.value(header, section);
        qor::ProfileFile(file.withValue(header, section, value)).value(header, section);
        return 0;
    }
    QString path = folder.filePath(QStringLiteral("qorSoft.ini"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0;
        file.write(contents);
    }
    clsqorGenLib lib;
    lib.GetIni(header, section, path, mbox);
    lib.WriteIni(header, section, value, path);
    lib.GetIni(header, section, path, mbox);
    return 0;
}
