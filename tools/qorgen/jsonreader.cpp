#include "tools/qorgen/jsonreader.h"

#include "tools/qorgen/requesterror.h"

#include <QSet>
#include <QStringDecoder>

#include <cmath>

namespace qor {

namespace {

bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

int hexValue(char16_t c)
{
    if (isDigit(c))
        return c - u'0';
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return -1;
}

QString decodeUtf8(QByteArrayView utf8)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(utf8);
    if (decoder.hasError())
        throw RequestError::unreadable(QStringLiteral("Bad JSON: the text is not valid UTF-8"));
    return text;
}

} // namespace

JsonReader::JsonReader(QStringView text, JsonLimits limits)
    : m_text(text)
    , m_limits(limits)
{ }

JsonValue JsonReader::parse(QByteArrayView utf8, JsonLimits limits)
{
    const QString text = decodeUtf8(utf8);
    return JsonReader(text, limits).readDocument();
}

std::optional<JsonValue> JsonReader::tryParse(QByteArrayView utf8, JsonLimits limits)
{
    try {
        return parse(utf8, limits);
    } catch (const RequestError &) {
        return std::nullopt;
    }
}

JsonValue JsonReader::readDocument()
{
    skipSpace();
    if (atEnd())
        fail(QStringLiteral("no value"));
    JsonValue value = readValue(0);
    skipSpace();
    if (!atEnd())
        fail(QStringLiteral("more text after the value"));
    return value;
}

void JsonReader::fail(const QString &what) const
{
    throw RequestError::unreadable(
        QStringLiteral("Bad JSON at character %1: %2").arg(m_pos + 1).arg(what));
}

void JsonReader::skipSpace()
{
    while (!atEnd()) {
        const char16_t c = peek();
        if (c != u' ' && c != u'\t' && c != u'\n' && c != u'\r')
            return;
        ++m_pos;
    }
}

void JsonReader::expect(char16_t c)
{
    skipSpace();
    if (peek() != c)
        fail(atEnd() ? QStringLiteral("the text ends early")
                     : QStringLiteral("expected '%1'").arg(QChar(c)));
    ++m_pos;
}

void JsonReader::countValue()
{
    if (++m_values > m_limits.values)
        fail(QStringLiteral("more than %1 values").arg(m_limits.values));
}

JsonValue JsonReader::readValue(int depth)
{
    countValue();
    skipSpace();
    switch (peek()) {
    case u'{': return readObject(depth + 1);
    case u'[': return readArray(depth + 1);
    case u'"': return readString();
    case u't': readWord(u"true"); return true;
    case u'f': readWord(u"false"); return false;
    case u'n': readWord(u"null"); return nullptr;
    default: break;
    }
    if (peek() == u'-' || isDigit(peek()))
        return readNumber();
    fail(atEnd() ? QStringLiteral("the text ends early") : QStringLiteral("unexpected character"));
}

JsonValue JsonReader::readObject(int depth)
{
    if (depth > m_limits.depth)
        fail(QStringLiteral("nested deeper than %1 levels").arg(m_limits.depth));
    ++m_pos;
    JsonValue object = JsonValue::object();
    skipSpace();
    if (peek() == u'}') {
        ++m_pos;
        return object;
    }
    // A repeated name is looked for among the few first members directly; from
    // then on a set of the names finds it in constant time.
    constexpr qsizetype scannedMembers = 16;
    qsizetype count = 0;
    QSet<QString> names;
    for (;;) {
        skipSpace();
        if (peek() != u'"')
            fail(QStringLiteral("expected a member name in double quotes"));
        const QString key = readString();
        if (count < scannedMembers ? object.member(key) != nullptr : names.contains(key))
            fail(QStringLiteral("member \"%1\" given twice").arg(key));
        if (++count == scannedMembers) {
            for (const JsonValue::Member &member : object.toObject())
                names.insert(member.first);
        }
        if (count >= scannedMembers)
            names.insert(key);
        expect(u':');
        object.insert(key, readValue(depth));
        skipSpace();
        if (peek() == u'}') {
            ++m_pos;
            return object;
        }
        expect(u',');
    }
}

JsonValue JsonReader::readArray(int depth)
{
    if (depth > m_limits.depth)
        fail(QStringLiteral("nested deeper than %1 levels").arg(m_limits.depth));
    ++m_pos;
    JsonValue array = JsonValue::array();
    skipSpace();
    if (peek() == u']') {
        ++m_pos;
        return array;
    }
    for (;;) {
        array.append(readValue(depth));
        skipSpace();
        if (peek() == u']') {
            ++m_pos;
            return array;
        }
        expect(u',');
    }
}

QString JsonReader::readString()
{
    ++m_pos; // the opening quote
    QString out;
    qsizetype runStart = m_pos;
    for (;;) {
        if (atEnd())
            fail(QStringLiteral("a string is not closed"));
        const char16_t c = peek();
        if (c == u'"' || c == u'\\') {
            out.append(m_text.mid(runStart, m_pos - runStart));
            ++m_pos;
            if (c == u'"')
                return out;
            readEscape(out);
            runStart = m_pos;
        } else if (c < 0x20) {
            fail(QStringLiteral("a control character in a string must be escaped"));
        } else {
            ++m_pos;
        }
    }
}

void JsonReader::readEscape(QString &out)
{
    const char16_t c = peek();
    ++m_pos;
    switch (c) {
    case u'"': out.append(u'"'); return;
    case u'\\': out.append(u'\\'); return;
    case u'/': out.append(u'/'); return;
    case u'b': out.append(u'\b'); return;
    case u'f': out.append(u'\f'); return;
    case u'n': out.append(u'\n'); return;
    case u'r': out.append(u'\r'); return;
    case u't': out.append(u'\t'); return;
    case u'u': break;
    default: --m_pos; fail(QStringLiteral("unknown escape in a string"));
    }
    auto readHex = [this]() {
        int code = 0;
        for (int i = 0; i < 4; ++i) {
            const int digit = hexValue(peek());
            if (digit < 0)
                fail(QStringLiteral("\\u needs four hexadecimal digits"));
            code = code * 16 + digit;
            ++m_pos;
        }
        return char16_t(code);
    };
    const char16_t unit = readHex();
    if (QChar::isLowSurrogate(unit))
        fail(QStringLiteral("a \\u escape holds half a character"));
    out.append(QChar(unit));
    if (QChar::isHighSurrogate(unit)) {
        if (peek() != u'\\' || m_pos + 1 >= m_text.size() || m_text[m_pos + 1] != u'u')
            fail(QStringLiteral("a \\u escape holds half a character"));
        m_pos += 2;
        const char16_t low = readHex();
        if (!QChar::isLowSurrogate(low))
            fail(QStringLiteral("a \\u escape holds half a character"));
        out.append(QChar(low));
    }
}

JsonValue JsonReader::readNumber()
{
    const qsizetype start = m_pos;
    bool whole = true;
    if (peek() == u'-')
        ++m_pos;
    if (peek() == u'0') {
        ++m_pos;
    } else if (isDigit(peek())) {
        while (isDigit(peek()))
            ++m_pos;
    } else {
        fail(QStringLiteral("a number needs digits"));
    }
    if (peek() == u'.') {
        whole = false;
        ++m_pos;
        if (!isDigit(peek()))
            fail(QStringLiteral("a number needs digits after the decimal point"));
        while (isDigit(peek()))
            ++m_pos;
    }
    if (peek() == u'e' || peek() == u'E') {
        whole = false;
        ++m_pos;
        if (peek() == u'+' || peek() == u'-')
            ++m_pos;
        if (!isDigit(peek()))
            fail(QStringLiteral("a number needs digits in its exponent"));
        while (isDigit(peek()))
            ++m_pos;
    }
    const QStringView literal = m_text.mid(start, m_pos - start);
    bool ok = false;
    if (whole) {
        const qint64 integer = literal.toLongLong(&ok);
        if (ok)
            return integer;
    }
    const double number = literal.toDouble(&ok);
    if (!std::isfinite(number))
        fail(QStringLiteral("a number out of range"));
    return number;
}

void JsonReader::readWord(QStringView word)
{
    if (m_text.mid(m_pos, word.size()) != word)
        fail(QStringLiteral("unexpected character"));
    m_pos += word.size();
}

} // namespace qor
