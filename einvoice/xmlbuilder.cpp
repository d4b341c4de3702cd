#include "einvoice/xmlbuilder.h"

namespace qor::einvoice {

namespace {

// What XML 1.0 does not allow in a document: left out, as QXmlStreamWriter does.
bool isLeftOut(char16_t c)
{
    return (c < 0x20 && c != u'\t' && c != u'\n' && c != u'\r') || c == 0xFFFE || c == 0xFFFF;
}

// The escape of a character, or nullptr when it stands as it is.
const char16_t *escapeOf(char16_t c, bool inAttribute)
{
    switch (c) {
    case u'<': return u"&lt;";
    case u'>': return u"&gt;";
    case u'&': return u"&amp;";
    case u'"': return u"&quot;";
    case u'\t': return inAttribute ? u"&#9;" : nullptr;
    case u'\n': return inAttribute ? u"&#10;" : nullptr;
    case u'\r': return inAttribute ? u"&#13;" : nullptr;
    default: return nullptr;
    }
}

} // namespace

void XmlBuilder::writeStartDocument()
{
    m_out.append(u"<?xml version=\"1.0\"?>");
}

void XmlBuilder::writeEndDocument()
{
    while (!m_open.empty())
        writeEndElement();
    m_out.append(u'\n');
}

void XmlBuilder::writeStartElement(const QString &qualifiedName)
{
    if (!finishStartElement(false) && m_autoFormatting)
        indent(qsizetype(m_open.size()));
    m_out.append(u'<');
    m_out.append(qualifiedName);
    m_open.push_back(qualifiedName);
    m_inStartElement = true;
}

void XmlBuilder::writeEndElement()
{
    if (m_open.empty())
        return;
    if (m_inStartElement) {
        // Nothing inside: an empty element.
        m_out.append(u"/>");
        m_inStartElement = false;
        m_open.pop_back();
        return;
    }
    // After child elements the end tag goes on a line of its own; after text not.
    if (!finishStartElement(false) && m_autoFormatting)
        indent(qsizetype(m_open.size()) - 1);
    m_out.append(u"</");
    m_out.append(m_open.back());
    m_out.append(u'>');
    m_open.pop_back();
}

void XmlBuilder::writeTextElement(const QString &qualifiedName, const QString &text)
{
    writeStartElement(qualifiedName);
    writeCharacters(text);
    writeEndElement();
}

void XmlBuilder::writeCharacters(const QString &text)
{
    finishStartElement(true);
    writeEscaped(text, false);
}

void XmlBuilder::writeAttribute(const QString &qualifiedName, const QString &value)
{
    m_out.append(u' ');
    m_out.append(qualifiedName);
    m_out.append(u"=\"");
    writeEscaped(value, true);
    m_out.append(u'"');
}

void XmlBuilder::writeDefaultNamespace(const QString &uri)
{
    writeAttribute(QStringLiteral("xmlns"), uri);
}

void XmlBuilder::writeNamespace(const QString &uri, const QString &prefix)
{
    writeAttribute(QStringLiteral("xmlns:") + prefix, uri);
}

bool XmlBuilder::finishStartElement(bool contents)
{
    const bool hadSomethingWritten = m_wroteSomething;
    m_wroteSomething = contents;
    if (m_inStartElement) {
        m_out.append(u'>');
        m_inStartElement = false;
    }
    return hadSomethingWritten;
}

void XmlBuilder::indent(qsizetype level)
{
    m_out.append(u'\n');
    for (qsizetype i = 0; i < level; ++i)
        m_out.append(m_indent);
}

// Runs of characters that stand as they are are appended whole.
void XmlBuilder::writeEscaped(const QString &text, bool inAttribute)
{
    qsizetype runStart = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        const char16_t *escape = escapeOf(c, inAttribute);
        if (!escape && !isLeftOut(c))
            continue;
        m_out.append(QStringView(text).sliced(runStart, i - runStart));
        if (escape)
            m_out.append(QStringView(escape));
        runStart = i + 1;
    }
    m_out.append(QStringView(text).sliced(runStart));
}

} // namespace qor::einvoice
