// The bridge's JSON reader on any bytes.
#include "tools/qorgen/jsonreader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::JsonReader::tryParse(QByteArrayView(reinterpret_cast<const char *>(data), qsizetype(size)));
    return 0;
}
