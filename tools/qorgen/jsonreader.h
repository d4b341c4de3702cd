#pragma once

#include "tools/qorgen/jsonvalue.h"

#include <QByteArrayView>

#include <optional>

namespace qor {

// How much one JSON text may hold.
struct JsonLimits
{
    int depth = 64;
    qsizetype values = 1000000;
};

// Reads one JSON text (RFC 8259, UTF-8) into a JsonValue. Anything else (bad
// syntax, bad UTF-8, a key given twice, nesting deeper or more values than the
// limits allow) raises RequestError 5 naming what is wrong and where.
class JsonReader
{
public:
    static JsonValue parse(QByteArrayView utf8, JsonLimits limits = JsonLimits());
    // The value, or nothing when the text is not JSON.
    static std::optional<JsonValue> tryParse(QByteArrayView utf8, JsonLimits limits = JsonLimits());

private:
    JsonReader(QStringView text, JsonLimits limits);

    JsonValue readDocument();
    JsonValue readValue(int depth);
    JsonValue readObject(int depth);
    JsonValue readArray(int depth);
    QString readString();
    void readEscape(QString &out);
    JsonValue readNumber();
    void readWord(QStringView word);
    void skipSpace();
    void expect(char16_t c);
    void countValue();
    bool atEnd() const { return m_pos >= m_text.size(); }
    char16_t peek() const { return atEnd() ? 0 : m_text[m_pos].unicode(); }
    [[noreturn]] void fail(const QString &what) const;

    QStringView m_text;
    JsonLimits m_limits;
    qsizetype m_pos = 0;
    qsizetype m_values = 0;
};

} // namespace qor
