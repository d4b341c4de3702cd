// A whole qorgen session driven by arbitrary request lines, one per line of
// the input, sharing one library object as a batch does.
#include "fuzz/fuzzinput.h"
#include "tools/qorgen/session.h"

#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Files the calls write (settings, records) go to a folder of their own.
    static QTemporaryDir folder;
    qputenv("HOME", folder.path().toUtf8());
    qor::ModGenLib::reset();
    qor::Session session;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const QByteArray &line : bytes.split('\n'))
        session.handleLine(line);
    return 0;
}
