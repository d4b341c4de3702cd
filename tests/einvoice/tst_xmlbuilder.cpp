#include "einvoice/ublreference.h"
#include "einvoice/xmlbuilder.h"

#include "testinvoices.h"

#include <QFileInfo>
#include <QTest>
#include <QXmlStreamWriter>

using namespace qor::einvoice;

namespace {

// Every character class the escaping treats apart, and some it must leave be.
const QString awkward = QStringLiteral("a<b>&c\"d'e\r\nf\tg") + QChar(0x01) + QChar(0x1F)
    + QChar(0xFFFE) + QChar(0xFFFF) + QChar(0xD800) + QStringLiteral("h é€") + QChar(0xD834)
    + QChar(0xDD1E);

// The same calls, in the way the UBL writer makes them, on either writer.
template <typename Writer> QString written(bool formatted)
{
    QString out;
    Writer xml(&out);
    xml.setAutoFormatting(formatted);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("Invoice"));
    xml.writeDefaultNamespace(QStringLiteral("urn:d"));
    xml.writeNamespace(QStringLiteral("urn:a"), QStringLiteral("cac"));
    xml.writeTextElement(QStringLiteral("cbc:Note"), awkward);
    xml.writeStartElement(QStringLiteral("cac:Party"));
    xml.writeAttribute(QStringLiteral("schemeID"), awkward);
    xml.writeCharacters(QStringLiteral("text before a child"));
    xml.writeStartElement(QStringLiteral("cac:Empty"));
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeTextElement(QStringLiteral("cbc:EmptyText"), QString());
    xml.writeStartElement(QStringLiteral("cac:Outer"));
    xml.writeStartElement(QStringLiteral("cac:Inner"));
    xml.writeTextElement(QStringLiteral("cbc:ID"), QStringLiteral("1"));
    xml.writeEndElement();
    xml.writeEndDocument(); // closes cac:Outer and Invoice
    return out;
}

} // namespace

class TestXmlBuilder : public QObject
{
    Q_OBJECT

private slots:
    void writesAsQtWriter_data()
    {
        QTest::addColumn<bool>("formatted");
        QTest::newRow("compact") << false;
        QTest::newRow("formatted") << true;
    }
    void writesAsQtWriter()
    {
        QFETCH(bool, formatted);
        QCOMPARE(written<XmlBuilder>(formatted), written<QXmlStreamWriter>(formatted));
    }

    // Every invoice of the tests, both layouts: byte for byte what
    // QXmlStreamWriter writes.
    void writeUblAsQtWriter_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("layout");
        for (const QString &file : test::testInvoiceFiles()) {
            const QString name = QFileInfo(file).fileName();
            QTest::newRow(qPrintable(name)) << file << int(UblLayout::Compact);
            QTest::newRow(qPrintable(name + QStringLiteral(" indented")))
                << file << int(UblLayout::Indented);
        }
        QTest::newRow("every member indented")
            << test::completeInvoiceFile << int(UblLayout::Indented);
    }
    void writeUblAsQtWriter()
    {
        QFETCH(QString, file);
        QFETCH(int, layout);
        Invoice invoice = test::readInvoiceFile(file).invoice;
        invoice.notes.append(awkward);
        invoice.seller.name = awkward;
        QCOMPARE(
            writeUbl(invoice, UblLayout(layout)), writeUblWithQtWriter(invoice, UblLayout(layout)));
    }
};

QTEST_GUILESS_MAIN(TestXmlBuilder)
#include "tst_xmlbuilder.moc"
