#include "tools/qorgen/jsonwriter.h"

#include "tools/qorgen/jsonvalue.h"

#include <QLocale>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace qor {

namespace {

const char hexDigits[] = "0123456789abcdef";

// A whole-valued number written without fraction or exponent gets ".0".
char *markFractional(char *begin, char *end)
{
    for (const char *c = begin; c != end; ++c) {
        if (*c == '.' || *c == 'e' || *c == 'E')
            return end;
    }
    *end++ = '.';
    *end++ = '0';
    return end;
}

// The UTF-8 of one character (or of a surrogate pair, which moves `i` on) at
// `write`; a lone surrogate is written as '?'.
char *writeUtf8(QStringView text, qsizetype &i, char *write)
{
    const char16_t c = text[i].unicode();
    if (c < 0x800) {
        *write++ = char(0xC0 | (c >> 6));
        *write++ = char(0x80 | (c & 0x3F));
        return write;
    }
    if (!QChar::isSurrogate(c)) {
        *write++ = char(0xE0 | (c >> 12));
        *write++ = char(0x80 | ((c >> 6) & 0x3F));
        *write++ = char(0x80 | (c & 0x3F));
        return write;
    }
    if (QChar::isHighSurrogate(c) && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
        const char32_t u = QChar::surrogateToUcs4(c, text[++i].unicode());
        *write++ = char(0xF0 | (u >> 18));
        *write++ = char(0x80 | ((u >> 12) & 0x3F));
        *write++ = char(0x80 | ((u >> 6) & 0x3F));
        *write++ = char(0x80 | (u & 0x3F));
        return write;
    }
    *write++ = '?';
    return write;
}

// The escape of an ASCII character JSON does not take as it is.
char *writeEscape(unsigned char c, char *write)
{
    *write++ = '\\';
    switch (c) {
    case '"': *write++ = '"'; break;
    case '\\': *write++ = '\\'; break;
    case '\b': *write++ = 'b'; break;
    case '\f': *write++ = 'f'; break;
    case '\n': *write++ = 'n'; break;
    case '\r': *write++ = 'r'; break;
    case '\t': *write++ = 't'; break;
    default:
        *write++ = 'u';
        *write++ = '0';
        *write++ = '0';
        *write++ = hexDigits[c >> 4];
        *write++ = hexDigits[c & 0xF];
    }
    return write;
}

} // namespace

JsonWriter::JsonWriter(QByteArray &out, bool indent)
    : m_out(out)
    , m_indent(indent)
{
    m_hasElement.reserve(16);
}

QByteArray JsonWriter::compact(const JsonValue &value)
{
    QByteArray out;
    out.reserve(1024);
    appendCompact(out, value);
    return out;
}

void JsonWriter::appendCompact(QByteArray &out, const JsonValue &value)
{
    JsonWriter(out).value(value);
}

QByteArray JsonWriter::indented(const JsonValue &value)
{
    QByteArray out;
    JsonWriter(out, true).value(value);
    out.append('\n');
    return out;
}

void JsonWriter::beforeValue()
{
    if (m_afterKey) {
        m_afterKey = false;
        return;
    }
    if (m_hasElement.empty())
        return claim();
    if (m_hasElement.back())
        put(',');
    m_hasElement.back() = true;
    newLine(qsizetype(m_hasElement.size()));
}

void JsonWriter::afterValue()
{
    if (m_hasElement.empty())
        settle();
}

void JsonWriter::claim()
{
    const qsizetype size = m_out.size();
    m_out.resize(std::max(m_out.capacity(), size + 256));
    m_write = m_out.data() + size;
    m_limit = m_out.data() + m_out.size();
}

void JsonWriter::settle()
{
    m_out.resize(m_write - m_out.data());
    m_write = m_limit = nullptr;
}

void JsonWriter::grow(qsizetype n)
{
    const qsizetype size = m_write - m_out.data();
    m_out.resize(std::max(size + n, 2 * m_out.size()));
    m_write = m_out.data() + size;
    m_limit = m_out.data() + m_out.size();
}

void JsonWriter::put(char c)
{
    makeRoom(1);
    *m_write++ = c;
}

void JsonWriter::append(const char *text, qsizetype size)
{
    makeRoom(size);
    m_write = std::copy_n(text, size, m_write);
}

void JsonWriter::open(char bracket)
{
    beforeValue();
    put(bracket);
    m_hasElement.push_back(false);
}

void JsonWriter::close(char bracket)
{
    const bool any = m_hasElement.back();
    m_hasElement.pop_back();
    if (any)
        newLine(qsizetype(m_hasElement.size()));
    put(bracket);
    afterValue();
}

void JsonWriter::newLine(qsizetype level)
{
    if (!m_indent)
        return;
    makeRoom(1 + 2 * level);
    *m_write++ = '\n';
    m_write = std::fill_n(m_write, 2 * level, ' ');
}

void JsonWriter::beginObject()
{
    open('{');
}

void JsonWriter::endObject()
{
    close('}');
}

void JsonWriter::beginArray()
{
    open('[');
}

void JsonWriter::endArray()
{
    close(']');
}

void JsonWriter::key(QStringView name)
{
    beforeValue();
    writeString(name);
    if (m_indent)
        append(": ", 2);
    else
        put(':');
    m_afterKey = true;
}

void JsonWriter::null()
{
    beforeValue();
    append("null", 4);
    afterValue();
}

void JsonWriter::boolean(bool value)
{
    beforeValue();
    if (value)
        append("true", 4);
    else
        append("false", 5);
    afterValue();
}

void JsonWriter::integer(qint64 value)
{
    beforeValue();
    makeRoom(24);
    m_write = std::to_chars(m_write, m_limit, value).ptr;
    afterValue();
}

void JsonWriter::single(float value)
{
    beforeValue();
    if (std::isfinite(value)) {
        char buffer[40];
        char *end = std::to_chars(buffer, buffer + 32, value).ptr;
        end = markFractional(buffer, end);
        append(buffer, end - buffer);
    } else {
        append("null", 4);
    }
    afterValue();
}

void JsonWriter::number(double value)
{
    beforeValue();
    if (std::isfinite(value)) {
        QByteArray digits = QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
        digits.resize(digits.size() + 2);
        char *begin = digits.data();
        char *end = markFractional(begin, begin + digits.size() - 2);
        append(begin, end - begin);
    } else {
        append("null", 4);
    }
    afterValue();
}

void JsonWriter::string(QStringView text)
{
    beforeValue();
    writeString(text);
    afterValue();
}

void JsonWriter::writeString(QStringView text)
{
    // Room for the worst case, six bytes a character ("\u001f"), a block of
    // characters at a time: no copy of the text, and no more room than a block
    // needs however long the text.
    constexpr qsizetype block = 4096;
    put('"');
    for (qsizetype from = 0; from < text.size();) {
        const qsizetype end = std::min(text.size(), from + block);
        makeRoom(6 * (end - from) + 6); // a surrogate pair may end past the block
        char *write = m_write;
        qsizetype i = from;
        for (; i < end; ++i) {
            const char16_t c = text[i].unicode();
            if (c >= 0x80)
                write = writeUtf8(text, i, write);
            else if (c >= 0x20 && c != '"' && c != '\\')
                *write++ = char(c);
            else
                write = writeEscape((unsigned char)c, write);
        }
        m_write = write;
        from = i;
    }
    put('"');
}

} // namespace qor
