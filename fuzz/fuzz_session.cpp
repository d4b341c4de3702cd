// A whole qorgen session driven by arbitrary request lines, one per line of
// the input, sharing one library object as a batch does. Responses go
// straight into an output as the batch writes them, every other one into a
// JsonValue as qorgen call reads them.
#include "fuzz/fuzzinput.h"
#include "tools/qorgen/jsonwriter.h"
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
    QByteArray output;
    qor::JsonWriter writer(output);
    bool intoTree = false;
    for (const QByteArray &line : bytes.split('\n')) {
        if (intoTree)
            session.handleLine(line);
        else
            session.handleLine(line, writer);
        intoTree = !intoTree;
        output.resize(0);
    }
    return 0;
}
