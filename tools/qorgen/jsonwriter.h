#pragma once

#include "tools/qorgen/jsonsink.h"

#include <QByteArray>

#include <vector>

namespace qor {

class JsonValue;

// Writes JSON as UTF-8 into a byte array, as it comes: compact on one line (the
// bridge's responses) or indented for people. Members keep their order. Numbers
// are written in their shortest exact form; a Double or Single with a whole
// value keeps a ".0" so that a reader can tell it from an Integer. A number that
// JSON cannot hold (infinite, not a number) is written as null. A lone surrogate
// in a text is written as "?".
class JsonWriter : public JsonSink
{
public:
    // Appends to out, whose buffer is reused from call to call.
    explicit JsonWriter(QByteArray &out, bool indent = false);

    static QByteArray compact(const JsonValue &value);
    static void appendCompact(QByteArray &out, const JsonValue &value);
    static QByteArray indented(const JsonValue &value);

    void beginObject() override;
    void endObject() override;
    void beginArray() override;
    void endArray() override;
    void key(QStringView name) override;

    void null() override;
    void boolean(bool value) override;
    void integer(qint64 value) override;
    void single(float value) override;
    void number(double value) override;
    void string(QStringView text) override;

private:
    void beforeValue();
    void afterValue();
    void open(char bracket);
    void close(char bracket);
    void newLine(qsizetype level);
    void writeString(QStringView text);
    void append(const char *text, qsizetype size);
    void put(char c);
    // Room for n more bytes at m_write.
    void makeRoom(qsizetype n)
    {
        if (m_limit - m_write < n)
            grow(n);
    }
    void grow(qsizetype n);
    void claim();
    void settle();

    QByteArray &m_out;
    bool m_indent;
    bool m_afterKey = false;
    // One entry per open object or array: whether it has an element yet.
    std::vector<bool> m_hasElement;
    // While a value is written, the output is sized beyond what was written and
    // the bytes go straight into it; it is cut to what was written when the
    // value is complete, so that a caller only ever sees whole values.
    char *m_write = nullptr;
    char *m_limit = nullptr;
};

} // namespace qor
