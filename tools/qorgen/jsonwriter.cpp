#include "tools/qorgen/jsonwriter.h"

#include <QLocale>

#include <charconv>
#include <cmath>

namespace qor {

namespace {

// A whole-valued number written without fraction or exponent gets ".0".
void markFractional(QByteArray &digits)
{
    for (char c : digits) {
        if (c == '.' || c == 'e' || c == 'E')
            return;
    }
    digits.append(".0");
}

const char hexDigits[] = "0123456789abcdef";

} // namespace

JsonWriter::JsonWriter(bool indent)
    : m_indent(indent)
{ }

QByteArray JsonWriter::compact(const JsonValue &value)
{
    JsonWriter writer(false);
    writer.m_out.reserve(1024);
    writer.write(value, 0);
    return writer.m_out;
}

void JsonWriter::appendCompact(QByteArray &out, const JsonValue &value)
{
    JsonWriter writer(false);
    writer.m_out.swap(out);
    writer.write(value, 0);
    writer.m_out.swap(out);
}

QByteArray JsonWriter::indented(const JsonValue &value)
{
    JsonWriter writer(true);
    writer.write(value, 0);
    writer.m_out.append('\n');
    return writer.m_out;
}

void JsonWriter::write(const JsonValue &value, int level)
{
    switch (value.kind()) {
    case JsonValue::Kind::Null: m_out.append("null"); break;
    case JsonValue::Kind::Boolean: m_out.append(value.toBool() ? "true" : "false"); break;
    case JsonValue::Kind::Integer: m_out.append(QByteArray::number(value.toInteger())); break;
    case JsonValue::Kind::Single: writeSingle(value.toSingle()); break;
    case JsonValue::Kind::Double: writeDouble(value.toDouble()); break;
    case JsonValue::Kind::String: writeString(value.toString()); break;
    case JsonValue::Kind::Array: writeArray(value.toArray(), level); break;
    case JsonValue::Kind::Object: writeObject(value.toObject(), level); break;
    }
}

void JsonWriter::newLine(int level)
{
    if (!m_indent)
        return;
    m_out.append('\n');
    m_out.append(QByteArray(level * 2, ' '));
}

void JsonWriter::writeArray(const JsonValue::Array &array, int level)
{
    m_out.append('[');
    for (size_t i = 0; i < array.size(); ++i) {
        if (i > 0)
            m_out.append(',');
        newLine(level + 1);
        write(array[i], level + 1);
    }
    if (!array.empty())
        newLine(level);
    m_out.append(']');
}

void JsonWriter::writeObject(const JsonValue::Object &object, int level)
{
    m_out.append('{');
    for (size_t i = 0; i < object.size(); ++i) {
        if (i > 0)
            m_out.append(',');
        newLine(level + 1);
        writeString(object[i].first);
        m_out.append(m_indent ? ": " : ":");
        write(object[i].second, level + 1);
    }
    if (!object.empty())
        newLine(level);
    m_out.append('}');
}

void JsonWriter::writeString(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    m_out.append('"');
    // Runs of characters that need no escape are copied at once.
    qsizetype runStart = 0;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        const unsigned char byte = static_cast<unsigned char>(utf8[i]);
        if (byte >= 0x20 && byte != '"' && byte != '\\')
            continue;
        m_out.append(utf8.constData() + runStart, i - runStart);
        runStart = i + 1;
        switch (byte) {
        case '"': m_out.append("\\\""); break;
        case '\\': m_out.append("\\\\"); break;
        case '\b': m_out.append("\\b"); break;
        case '\f': m_out.append("\\f"); break;
        case '\n': m_out.append("\\n"); break;
        case '\r': m_out.append("\\r"); break;
        case '\t': m_out.append("\\t"); break;
        default: {
            const char escape[]
                = { '\\', 'u', '0', '0', hexDigits[byte >> 4], hexDigits[byte & 0xF] };
            m_out.append(escape, sizeof escape);
        }
        }
    }
    m_out.append(utf8.constData() + runStart, utf8.size() - runStart);
    m_out.append('"');
}

void JsonWriter::writeDouble(double value)
{
    if (!std::isfinite(value)) {
        m_out.append("null");
        return;
    }
    QByteArray digits = QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
    markFractional(digits);
    m_out.append(digits);
}

void JsonWriter::writeSingle(float value)
{
    if (!std::isfinite(value)) {
        m_out.append("null");
        return;
    }
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    QByteArray digits(buffer, result.ptr - buffer);
    markFractional(digits);
    m_out.append(digits);
}

} // namespace qor
