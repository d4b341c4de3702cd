#pragma once

#include "qorgenlib_export.h"

#include <QString>
#include <QStringView>
#include <QXmlStreamReader>

#include <vector>

namespace qor::einvoice {

/// A pull reader for the plain XML that e-invoices are written in, with the
/// part of QXmlStreamReader's interface the UBL reader uses and the same
/// tokens, names, texts and positions.
///
/// It reads UTF-8 documents made of elements, attributes, namespace
/// declarations, character data with the five predefined entities and
/// character references, comments and an XML declaration. Whatever else it
/// meets (a DOCTYPE, CDATA, a processing instruction, another encoding, a
/// carriage return in text, a name outside ASCII, an undeclared prefix) and
/// every well-formedness error makes it give up: it then behaves as a reader
/// at an error (atEnd(), hasError()), and the caller reads the document again
/// with QXmlStreamReader, which knows all of XML and words the error. So a
/// document it finishes is one QXmlStreamReader reads the same way.
class QORGENLIB_EXPORT XmlCursor
{
public:
    using TokenType = QXmlStreamReader::TokenType;

    explicit XmlCursor(const QByteArray &utf8);

    TokenType readNext();
    bool readNextStartElement();
    void skipCurrentElement();
    /// The text of the current start element, its child elements skipped;
    /// leaves the cursor on the element's end.
    QString readElementText(QXmlStreamReader::ReadElementTextBehaviour behaviour);

    TokenType tokenType() const { return m_token; }
    bool atEnd() const
    {
        return m_token == TokenType::Invalid || m_token == TokenType::EndDocument;
    }
    /// True once the cursor gave up (see the class comment).
    bool hasError() const { return m_gaveUp; }
    QString errorString() const;

    QStringView name() const { return m_name; }
    QStringView namespaceUri() const { return m_namespaceUri; }
    /// The value of an attribute of the current start element by its
    /// qualified name, entities resolved; empty when it has none.
    QString attributeValue(QLatin1StringView qualifiedName) const;

    /// Line (from 1) and column (UTF-16 units since the line's start) of
    /// the current position, counted as QXmlStreamReader counts them.
    qint64 lineNumber() const;
    qint64 columnNumber() const;

private:
    // A name as it stands in a tag, with where its prefix ends.
    struct Name
    {
        QStringView qualified;
        qsizetype colon = -1;
        QStringView prefix() const { return colon < 0 ? QStringView() : qualified.left(colon); }
        QStringView local() const { return qualified.mid(colon + 1); }
    };
    struct Element
    {
        Name name;
        qsizetype namespaceCount;
    };
    struct Namespace
    {
        QStringView prefix;
        QStringView uri;
    };
    struct Attribute
    {
        Name name;
        QStringView rawValue;
    };

    TokenType giveUp();
    bool readDeclaration();
    TokenType readMarkup();
    TokenType readStartTag();
    TokenType readEndTag();
    TokenType readComment();
    TokenType readCharacters();
    bool readAttributes();
    bool readQuoted(QStringView &value);
    bool declareNamespace(const Attribute &attribute);
    bool resolveNames();
    bool lookUp(QStringView prefix, QStringView &uri) const;
    Name readName();
    void skipSpace();
    bool at(QStringView text) const;
    // The character at a position, or NUL past the end.
    char16_t charAt(qsizetype position) const;
    // Checks character data from m_pos up to the next '<' and moves there.
    bool scanText();
    // Resolves the reference at `from` ('&'); gives the character(s) and
    // the position after the ';'.
    bool reference(qsizetype from, QString *out, qsizetype &after) const;
    void appendText(QStringView raw, QString &out) const;
    void countLinesTo(qsizetype position) const;

    QString m_text;
    QStringView m_document; // m_text, read without detaching
    bool m_hasCarriageReturn = false;
    qsizetype m_pos = 0;
    TokenType m_token = TokenType::NoToken;
    bool m_gaveUp = false;
    bool m_rootSeen = false;
    bool m_emptyElement = false;
    QStringView m_name;
    QStringView m_namespaceUri;
    QStringView m_characters;
    // Whether m_characters holds no reference and no carriage return.
    bool m_charactersPlain = true;
    std::vector<Element> m_open;
    std::vector<Namespace> m_namespaces;
    std::vector<Attribute> m_attributes;
    // Lines are counted lazily, up to the furthest position asked for.
    mutable qsizetype m_countedTo = 0;
    mutable qsizetype m_nextLineFeed = 0; // without carriage returns
    mutable qint64 m_line = 1;
    mutable qsizetype m_lineStart = 0;
};

} // namespace qor::einvoice
