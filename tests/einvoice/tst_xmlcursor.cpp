#include "einvoice/ublreference.h"
#include "einvoice/ublwriter.h"
#include "einvoice/xmlcursor.h"

#include "testinvoices.h"

#include <QFileInfo>
#include <QTest>

using namespace qor::einvoice;

namespace {

QString attribute(const QXmlStreamReader &xml, const char *name)
{
    return xml.attributes().value(QLatin1StringView(name)).toString();
}

QString attribute(const XmlCursor &xml, const char *name)
{
    return xml.attributeValue(QLatin1StringView(name));
}

// What the UBL reader sees of a document, walked the way it walks: each
// start element with its namespace, place and attributes; the text of
// elements named "...Text" (their children skipped); the rest descended.
template <typename Reader> void walk(Reader &xml, QStringList &seen)
{
    while (xml.readNextStartElement()) {
        seen << QStringLiteral("{%1}%2 %3:%4 id=%5 p:id=%6")
                    .arg(xml.namespaceUri(), xml.name())
                    .arg(xml.lineNumber())
                    .arg(xml.columnNumber())
                    .arg(attribute(xml, "id"), attribute(xml, "p:id"));
        if (xml.name().endsWith(u"Text"))
            seen << QStringLiteral("text[%1]")
                        .arg(xml.readElementText(QXmlStreamReader::SkipChildElements));
        else
            walk(xml, seen);
    }
}

template <typename Reader> QStringList walkDocument(const QByteArray &document)
{
    Reader xml(document);
    QStringList seen;
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::StartElement) { }
    if (xml.tokenType() == QXmlStreamReader::StartElement) {
        seen << xml.name().toString();
        walk(xml, seen);
    }
    while (!xml.atEnd())
        xml.readNext();
    seen << (xml.hasError() ? QStringLiteral("error") : QStringLiteral("well-formed"));
    return seen;
}

QString asText(const UblReadResult &read)
{
    QStringList differences;
    for (const AmountDifference &difference : read.differences)
        differences << difference.place + u' ' + difference.stated + u' ' + difference.computed;
    return QString::fromUtf8(QJsonDocument(invoiceToJson(read.invoice)).toJson())
        + read.errors.join(u'\n') + read.dropped.join(u'\n') + differences.join(u'\n');
}

// Each JSON invoice written compact and indented.
void addWrittenInvoiceRows(const QStringList &files)
{
    for (const QString &file : files) {
        const Invoice invoice = test::readInvoiceFile(file).invoice;
        const QString name = QFileInfo(file).fileName();
        QTest::newRow(qPrintable(name + QStringLiteral(" indented")))
            << writeUbl(invoice, UblLayout::Indented);
        QTest::newRow(qPrintable(name)) << writeUbl(invoice);
    }
}

} // namespace

class TestXmlCursor : public QObject
{
    Q_OBJECT

private slots:
    // Documents the cursor reads itself: it must see exactly what
    // QXmlStreamReader sees, places included.
    void readsAsQtReader_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("CR LF line ends, CR LF in text") << QByteArray(
            "<?xml version=\"1.0\"?>\r\n<a>\r\n <bText>one\r\ntwo</bText>\r\n <c/>\r\n</a>\r\n");
        QTest::newRow("lone CR line ends") << QByteArray("<a>\r<bText>one\rtwo</bText>\r<c/></a>");
        QTest::newRow("references in text and attributes")
            << QByteArray("<a><bText id=\"&lt;&amp;&quot;&#65;&#x42;\">&lt;x&gt; &amp; "
                          "&apos;y&quot; &#x1D11E;&#233;&#13;</bText></a>");
        QTest::newRow("children and comments inside text")
            << QByteArray("<a><bText>one<!-- c --><i>skipped<j/></i>two</bText></a>");
        QTest::newRow("comments around the root")
            << QByteArray("<!-- before --><a><!----><b/></a><!-- after -->\n");
        QTest::newRow("non-ASCII text before places")
            << QByteArray("<a><bText>é𝄞€</bText><c/>\n<d/></a>");
        QTest::newRow("namespaces: default, prefixed, redeclared, undeclared default")
            << QByteArray("<p:a xmlns:p=\"urn:p\" xmlns=\"urn:d\"><b p:id=\"q\" id=\"r\"><p:c "
                          "xmlns:p=\"urn:other\"/></b><p:d/><e xmlns=\"\"/></p:a>");
        QTest::newRow("standalone declaration, single quotes, spaces in tags") << QByteArray(
            "<?xml version='1.0' encoding='utf-8' standalone='yes' ?><a ><b\n id = \"1\" /></a >");
        QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF<a>\n<b/></a>");
        QTest::newRow("white space only text outside elements") << QByteArray("\n \t<a/>\n\n");
    }
    void readsAsQtReader()
    {
        QFETCH(QByteArray, document);
        QCOMPARE(walkDocument<XmlCursor>(document), walkDocument<QXmlStreamReader>(document));
        QVERIFY(!walkDocument<XmlCursor>(document).endsWith(QStringLiteral("error")));
    }

    // What the cursor leaves to QXmlStreamReader: XML it does not read
    // itself, and every document that is not well-formed.
    void givesUp_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("DOCTYPE") << QByteArray("<!DOCTYPE a><a/>");
        QTest::newRow("processing instruction") << QByteArray("<a><?pi x?></a>");
        QTest::newRow("other encoding")
            << QByteArray("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a/>");
        QTest::newRow("XML 1.1") << QByteArray("<?xml version=\"1.1\"?><a/>");
        QTest::newRow("bytes that are not UTF-8") << QByteArray("<a>caf\xE9</a>");
        QTest::newRow("white space in an attribute value") << QByteArray("<a id=\"x\ty\"/>");
        QTest::newRow("name outside ASCII") << QByteArray("<é/>");
        QTest::newRow("xml: prefix") << QByteArray("<a xml:lang=\"nl\"/>");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("mismatched end tag") << QByteArray("<a><b></a></b>");
        QTest::newRow("end tag with a longer name") << QByteArray("<a><b></bc></a>");
        QTest::newRow("unclosed element") << QByteArray("<a><b></b>");
        QTest::newRow("second root") << QByteArray("<a/><b/>");
        QTest::newRow("text after the root") << QByteArray("<a/>x");
        QTest::newRow("undeclared prefix") << QByteArray("<p:a/>");
        QTest::newRow("duplicate attribute") << QByteArray("<a id=\"1\" id=\"2\"/>");
        QTest::newRow("same attribute by two prefixes")
            << QByteArray("<a xmlns:p=\"urn:x\" xmlns:q=\"urn:x\" p:id=\"1\" q:id=\"2\"/>");
        QTest::newRow("prefix undeclared by an empty value") << QByteArray("<a xmlns:p=\"\"/>");
        QTest::newRow("attribute without a space before it")
            << QByteArray("<a id=\"1\"id2=\"2\"/>");
        QTest::newRow("'<' in an attribute value") << QByteArray("<a id=\"<\"/>");
        QTest::newRow("undeclared entity") << QByteArray("<a>&nbsp;</a>");
        QTest::newRow("reference to NUL") << QByteArray("<a>&#0;</a>");
        QTest::newRow("reference to a surrogate") << QByteArray("<a>&#xD800;</a>");
        QTest::newRow("reference beyond Unicode") << QByteArray("<a>&#x110000;</a>");
        QTest::newRow("reference with a sign") << QByteArray("<a>&#+65;</a>");
        QTest::newRow("control character") << QByteArray("<a>\x01</a>");
        QTest::newRow("]]> in text") << QByteArray("<a>]]></a>");
        QTest::newRow("-- inside a comment") << QByteArray("<a><!-- a -- b --></a>");
        QTest::newRow("trailing colon in a name") << QByteArray("<a:/>");
    }
    void givesUp()
    {
        QFETCH(QByteArray, document);
        XmlCursor cursor(document);
        while (!cursor.atEnd())
            cursor.readNext();
        QVERIFY(cursor.hasError());
    }

    // Every document of the tests and every official example: readUbl()
    // with its own cursor gives the very same result as QXmlStreamReader.
    void readUblAsQtReader_data()
    {
        QTest::addColumn<QByteArray>("document");
        addWrittenInvoiceRows(test::testInvoiceFiles() << test::completeInvoiceFile);
        const QDir examples(QStringLiteral(QOR_EINVOICE_RULES "/examples"));
        for (const QString &name : examples.entryList({ QStringLiteral("*.xml") }, QDir::Files)) {
            QFile example(examples.filePath(name));
            QVERIFY(example.open(QIODevice::ReadOnly));
            QTest::newRow(qPrintable(name)) << example.readAll();
        }
    }
    void readUblAsQtReader()
    {
        QFETCH(QByteArray, document);
        XmlCursor cursor(document);
        while (!cursor.atEnd())
            cursor.readNext();
        QVERIFY(!cursor.hasError());
        QCOMPARE(asText(readUbl(document)), asText(readUblWithQtReader(document)));
    }
};

QTEST_GUILESS_MAIN(TestXmlCursor)
#include "tst_xmlcursor.moc"
