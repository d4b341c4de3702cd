#include "einvoice/xmlcursor.h"

#include <algorithm>

namespace qor::einvoice {

namespace {

bool isSpace(char16_t c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

bool isNameStart(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_';
}

bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

bool isHexDigit(char16_t c)
{
    return isDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

bool isNameChar(char16_t c)
{
    return isNameStart(c) || isDigit(c) || c == u'.' || c == u'-';
}

// The characters XML 1.0 allows in a document.
bool isXmlCharacter(char32_t c)
{
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF)
        || (c >= 0xE000 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0x10FFFF);
}

// A character as it may stand literally in character data or a value
// (surrogates come in pairs: the text was decoded from valid UTF-8).
bool isLiteralCharacter(char16_t c)
{
    return c >= 0x20 ? c != 0xFFFE && c != 0xFFFF : c == u'\t' || c == u'\n' || c == u'\r';
}

// Names and prefixes are short: a plain loop compares them faster than a
// call into the general string comparison.
bool sameText(QStringView a, QStringView b)
{
    if (a.size() != b.size())
        return false;
    for (qsizetype i = 0; i < a.size(); ++i) {
        if (a[i] != b[i])
            return false;
    }
    return true;
}

constexpr QStringView NamespaceAttribute = u"xmlns";
constexpr QStringView DeclarationStart = u"<?xml";

} // namespace

XmlCursor::XmlCursor(const QByteArray &utf8)
    : m_text(QString::fromUtf8(utf8))
    , m_document(m_text)
    , m_hasCarriageReturn(m_text.contains(QLatin1Char('\r')))
{
    m_nextLineFeed = m_text.indexOf(QLatin1Char('\n'));
    if (m_nextLineFeed < 0)
        m_nextLineFeed = m_text.size();
    // Bytes that are not UTF-8 decode to U+FFFD. (A byte order mark is
    // dropped by the decoding and counted by neither reader.)
    if (m_text.contains(QChar::ReplacementCharacter))
        giveUp();
}

QString XmlCursor::errorString() const
{
    return m_gaveUp ? QStringLiteral("the document needs the full XML reader") : QString();
}

XmlCursor::TokenType XmlCursor::giveUp()
{
    m_gaveUp = true;
    m_token = TokenType::Invalid;
    return m_token;
}

XmlCursor::TokenType XmlCursor::readNext()
{
    if (atEnd())
        return m_token;
    if (m_token == TokenType::NoToken) {
        if (m_text.startsWith(DeclarationStart) && !readDeclaration())
            return giveUp();
        return m_token = TokenType::StartDocument;
    }
    if (m_emptyElement) {
        // <name/> is a start and an end at the same place.
        m_emptyElement = false;
        m_namespaces.resize(m_open.back().namespaceCount);
        m_open.pop_back();
        return m_token = TokenType::EndElement;
    }
    if (m_pos >= m_document.size())
        return m_open.empty() && m_rootSeen ? m_token = TokenType::EndDocument : giveUp();
    return m_document[m_pos] == u'<' ? readMarkup() : readCharacters();
}

bool XmlCursor::readNextStartElement()
{
    while (readNext() != TokenType::Invalid) {
        if (m_token == TokenType::EndElement || m_token == TokenType::EndDocument)
            return false;
        if (m_token == TokenType::StartElement)
            return true;
    }
    return false;
}

void XmlCursor::skipCurrentElement()
{
    int depth = 1;
    while (depth > 0 && !atEnd()) {
        readNext();
        if (m_token == TokenType::EndElement)
            --depth;
        else if (m_token == TokenType::StartElement)
            ++depth;
    }
}

QString XmlCursor::readElementText(QXmlStreamReader::ReadElementTextBehaviour)
{
    QString text;
    while (readNext() != TokenType::Invalid) {
        switch (m_token) {
        case TokenType::Characters:
            if (m_charactersPlain)
                text.append(m_characters);
            else
                appendText(m_characters, text);
            break;
        case TokenType::StartElement: skipCurrentElement(); break;
        case TokenType::EndElement:
        case TokenType::EndDocument: return text;
        default: break;
        }
    }
    return text;
}

// <?xml version="1.0" [encoding="UTF-8"] [standalone="yes"|"no"] ?>, in
// that order; any other declaration goes to the full reader.
bool XmlCursor::readDeclaration()
{
    m_pos = DeclarationStart.size();
    const auto pseudoAttribute = [this](QStringView name, QStringView &value) {
        const qsizetype start = m_pos;
        skipSpace();
        if (m_pos == start || !at(name)) {
            m_pos = start;
            return false;
        }
        m_pos += name.size();
        skipSpace();
        if (!at(u"="))
            return false;
        ++m_pos;
        skipSpace();
        return readQuoted(value);
    };
    QStringView value;
    if (!pseudoAttribute(u"version", value) || value != u"1.0")
        return false;
    if (pseudoAttribute(u"encoding", value) && value.compare(u"UTF-8", Qt::CaseInsensitive) != 0)
        return false;
    if (pseudoAttribute(u"standalone", value) && value != u"yes" && value != u"no")
        return false;
    skipSpace();
    if (!at(u"?>"))
        return false;
    m_pos += 2;
    return true;
}

XmlCursor::TokenType XmlCursor::readMarkup()
{
    const char16_t next = charAt(m_pos + 1);
    if (next == u'/')
        return readEndTag();
    if (next == u'!' && at(u"<!--"))
        return readComment();
    if (next == u'!' || next == u'?')
        return giveUp(); // a DOCTYPE, CDATA or a processing instruction
    return readStartTag();
}

XmlCursor::TokenType XmlCursor::readStartTag()
{
    if (m_open.empty() && m_rootSeen)
        return giveUp(); // a second root
    ++m_pos;
    const Name name = readName();
    if (name.qualified.isEmpty() || !readAttributes())
        return giveUp();
    m_open.push_back({ name, qsizetype(m_namespaces.size()) });
    for (const Attribute &attribute : m_attributes) {
        if (!declareNamespace(attribute))
            return giveUp();
    }
    if (!resolveNames())
        return giveUp();
    m_rootSeen = true;
    return m_token = TokenType::StartElement;
}

// The attributes up to '>' or "/>"; their values are checked but kept raw.
bool XmlCursor::readAttributes()
{
    m_attributes.clear();
    for (;;) {
        const qsizetype start = m_pos;
        skipSpace();
        if (charAt(m_pos) == u'>') {
            ++m_pos;
            return true;
        }
        if (charAt(m_pos) == u'/' && charAt(m_pos + 1) == u'>') {
            m_pos += 2;
            m_emptyElement = true;
            return true;
        }
        if (m_pos == start)
            return false; // no space between the name and an attribute
        const Name name = readName();
        skipSpace();
        if (name.qualified.isEmpty() || charAt(m_pos) != u'=')
            return false;
        ++m_pos;
        skipSpace();
        const qsizetype valueStart = m_pos + 1;
        QStringView value;
        if (!readQuoted(value))
            return false;
        for (qsizetype i = 0; i < value.size(); ++i) {
            const char16_t c = value[i].unicode();
            qsizetype after = 0;
            // White space in a value is normalized: left to the full reader.
            if (c == u'<' || c == u'\t' || c == u'\n' || c == u'\r' || !isLiteralCharacter(c))
                return false;
            if (c == u'&' && !reference(valueStart + i, nullptr, after))
                return false;
        }
        for (const Attribute &other : m_attributes) {
            if (other.name.qualified == name.qualified)
                return false;
        }
        m_attributes.push_back({ name, value });
    }
}

// A value in single or double quotes at m_pos, raw; moves past its closing quote.
bool XmlCursor::readQuoted(QStringView &value)
{
    const QChar quote = charAt(m_pos);
    const qsizetype end = m_document.indexOf(quote, m_pos + 1);
    if ((quote != u'"' && quote != u'\'') || end < 0)
        return false;
    value = m_document.mid(m_pos + 1, end - m_pos - 1);
    m_pos = end + 1;
    return true;
}

bool XmlCursor::declareNamespace(const Attribute &attribute)
{
    const Name &name = attribute.name;
    QStringView prefix;
    if (name.qualified == NamespaceAttribute)
        prefix = QStringView(u"");
    else if (name.prefix() == NamespaceAttribute)
        prefix = name.local();
    else
        return true;
    const bool reserved = prefix == u"xml" || prefix == u"xmlns";
    const bool undeclares = !prefix.isEmpty() && attribute.rawValue.isEmpty();
    if (reserved || undeclares || attribute.rawValue.contains(u'&'))
        return false;
    m_namespaces.push_back({ prefix, attribute.rawValue });
    return true;
}

bool XmlCursor::lookUp(QStringView prefix, QStringView &uri) const
{
    for (auto it = m_namespaces.rbegin(); it != m_namespaces.rend(); ++it) {
        if (sameText(it->prefix, prefix)) {
            uri = it->uri;
            return true;
        }
    }
    uri = QStringView();
    return prefix.isEmpty(); // no default namespace: the element has none
}

// The element's namespace and those of prefixed attributes, of which no two
// may have the same namespace and local name.
bool XmlCursor::resolveNames()
{
    const Name &element = m_open.back().name;
    m_name = element.local();
    if (!lookUp(element.prefix(), m_namespaceUri))
        return false;
    const auto namespaceOf = [this](const Name &name, QStringView &uri) {
        const QStringView prefix = name.prefix();
        return !prefix.isEmpty() && prefix != NamespaceAttribute && lookUp(prefix, uri);
    };
    for (qsizetype i = 0; i < qsizetype(m_attributes.size()); ++i) {
        const Name &name = m_attributes[i].name;
        QStringView uri;
        if (name.prefix().isEmpty() || name.prefix() == NamespaceAttribute)
            continue;
        if (!namespaceOf(name, uri))
            return false;
        for (qsizetype j = 0; j < i; ++j) {
            QStringView otherUri;
            const Name &other = m_attributes[j].name;
            if (namespaceOf(other, otherUri) && otherUri == uri && other.local() == name.local())
                return false;
        }
    }
    return true;
}

// An end tag must name the open element: its name is compared as it stands
// rather than read as a new name.
XmlCursor::TokenType XmlCursor::readEndTag()
{
    m_pos += 2;
    if (m_open.empty())
        return giveUp();
    const Name name = m_open.back().name;
    if (!sameText(m_document.mid(m_pos, name.qualified.size()), name.qualified))
        return giveUp();
    m_pos += name.qualified.size();
    skipSpace();
    if (charAt(m_pos) != u'>')
        return giveUp();
    ++m_pos;
    m_name = name.local();
    lookUp(name.prefix(), m_namespaceUri);
    m_namespaces.resize(m_open.back().namespaceCount);
    m_open.pop_back();
    return m_token = TokenType::EndElement;
}

XmlCursor::TokenType XmlCursor::readComment()
{
    const qsizetype start = m_pos + 4;
    const qsizetype end = m_document.indexOf(u"--", start);
    // "--" may only close the comment, and not after a '-' ("--->").
    if (end < 0 || !m_document.mid(end).startsWith(u"-->")
        || (end > start && m_document[end - 1] == u'-'))
        return giveUp();
    for (qsizetype i = start; i < end; ++i) {
        if (!isLiteralCharacter(m_document[i].unicode()))
            return giveUp();
    }
    m_pos = end + 3;
    return m_token = TokenType::Comment;
}

XmlCursor::TokenType XmlCursor::readCharacters()
{
    const qsizetype start = m_pos;
    m_charactersPlain = true;
    if (!scanText())
        return giveUp();
    m_characters = m_document.mid(start, m_pos - start);
    if (m_open.empty()) {
        // Outside the root only white space may stand.
        for (QChar c : m_characters) {
            if (!isSpace(c.unicode()))
                return giveUp();
        }
    }
    return m_token = TokenType::Characters;
}

bool XmlCursor::scanText()
{
    const qsizetype size = m_document.size();
    while (m_pos < size) {
        const char16_t c = m_document[m_pos].unicode();
        if (c == u'<')
            return true;
        if (c == u'&') {
            m_charactersPlain = false;
            if (!reference(m_pos, nullptr, m_pos))
                return false;
            continue;
        }
        if (c == u'\r')
            m_charactersPlain = false;
        if (!isLiteralCharacter(c) || (c == u']' && at(u"]]>")))
            return false;
        ++m_pos;
    }
    return true;
}

bool XmlCursor::reference(qsizetype from, QString *out, qsizetype &after) const
{
    constexpr qsizetype longestReference = 12; // &#x10FFFF; with leading zeros
    const qsizetype end = m_document.indexOf(u';', from + 1);
    if (end < 0 || end - from > longestReference)
        return false;
    const QStringView name = m_document.mid(from + 1, end - from - 1);
    char32_t character = 0;
    if (name == u"lt")
        character = u'<';
    else if (name == u"gt")
        character = u'>';
    else if (name == u"amp")
        character = u'&';
    else if (name == u"apos")
        character = u'\'';
    else if (name == u"quot")
        character = u'"';
    else if (name.startsWith(u'#')) {
        const bool hex = name.startsWith(u"#x");
        const QStringView digits = name.mid(hex ? 2 : 1);
        if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), [hex](QChar c) {
                return hex ? isHexDigit(c.unicode()) : isDigit(c.unicode());
            }))
            return false;
        bool number = false;
        const uint value = digits.toUInt(&number, hex ? 16 : 10);
        if (!number || !isXmlCharacter(value))
            return false;
        character = value;
    } else {
        return false;
    }
    if (out)
        out->append(QChar::fromUcs4(character));
    after = end + 1;
    return true;
}

// Character data as the document means it: references resolved, a line
// break written as CR LF or CR read as one LF.
void XmlCursor::appendText(QStringView raw, QString &out) const
{
    const qsizetype offset = raw.data() - m_document.data();
    for (qsizetype i = 0; i < raw.size();) {
        const QChar c = raw[i];
        if (c == u'&') {
            qsizetype after = 0;
            reference(offset + i, &out, after);
            i = after - offset;
        } else if (c == u'\r') {
            out.append(u'\n');
            i += (i + 1 < raw.size() && raw[i + 1] == u'\n') ? 2 : 1;
        } else {
            out.append(c);
            ++i;
        }
    }
}

QString XmlCursor::attributeValue(QLatin1StringView qualifiedName) const
{
    for (const Attribute &attribute : m_attributes) {
        if (attribute.name.qualified == qualifiedName) {
            QString value;
            appendText(attribute.rawValue, value);
            return value;
        }
    }
    return QString();
}

// An ASCII name with at most one colon between two non-empty parts; a name
// that goes on in other characters is left to the full reader.
XmlCursor::Name XmlCursor::readName()
{
    Name name;
    const qsizetype start = m_pos;
    const qsizetype size = m_document.size();
    if (m_pos >= size || !isNameStart(m_document[m_pos].unicode()))
        return name;
    ++m_pos;
    while (m_pos < size) {
        const char16_t c = m_document[m_pos].unicode();
        if (c == u':' && name.colon < 0 && m_pos + 1 < size
            && isNameStart(m_document[m_pos + 1].unicode())) {
            name.colon = m_pos - start;
            m_pos += 2;
        } else if (isNameChar(c)) {
            ++m_pos;
        } else {
            break;
        }
    }
    if (m_pos < size && (m_document[m_pos].unicode() >= 0x80 || m_document[m_pos] == u':'))
        return Name();
    name.qualified = m_document.mid(start, m_pos - start);
    return name;
}

void XmlCursor::skipSpace()
{
    while (m_pos < m_document.size() && isSpace(m_document[m_pos].unicode()))
        ++m_pos;
}

char16_t XmlCursor::charAt(qsizetype position) const
{
    return position < m_document.size() ? m_document[position].unicode() : u'\0';
}

bool XmlCursor::at(QStringView text) const
{
    return m_document.mid(m_pos).startsWith(text);
}

void XmlCursor::countLinesTo(qsizetype position) const
{
    if (!m_hasCarriageReturn) {
        // Only LF breaks lines: jump from one to the next.
        while (m_nextLineFeed < position) {
            ++m_line;
            m_lineStart = m_nextLineFeed + 1;
            m_nextLineFeed = m_document.indexOf(QLatin1Char('\n'), m_lineStart);
            if (m_nextLineFeed < 0)
                m_nextLineFeed = m_document.size();
        }
        return;
    }
    for (; m_countedTo < position; ++m_countedTo) {
        const QChar c = m_document[m_countedTo];
        const bool crBeforeLf = c == u'\r' && m_countedTo + 1 < m_document.size()
            && m_document[m_countedTo + 1] == u'\n';
        if (c == u'\n' || (c == u'\r' && !crBeforeLf)) {
            ++m_line;
            m_lineStart = m_countedTo + 1;
        }
    }
}

qint64 XmlCursor::lineNumber() const
{
    countLinesTo(m_pos);
    return m_line;
}

qint64 XmlCursor::columnNumber() const
{
    countLinesTo(m_pos);
    return m_pos - m_lineStart;
}

} // namespace qor::einvoice
