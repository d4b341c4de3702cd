#include "tools/qorgen/jsonbuilder.h"
#include "tools/qorgen/jsonwriter.h"

#include <QTest>

using namespace qor;

// The writer puts texts straight into the output a block of characters at a
// time: what matters is what happens at the block's edges, with characters of
// one to four UTF-8 bytes, and that a caller only ever sees whole values.
class TestJsonWriter : public QObject
{
    Q_OBJECT

private slots:
    void writesTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("json");
        const QString emoji = QString::fromUtf8("\xf0\x9f\x98\x80");
        const QByteArray emojiUtf8("\xf0\x9f\x98\x80");
        const QChar high(0xD83D);
        const QChar low(0xDE00);
        constexpr int block = 4096;
        // clang-format off
        QTest::newRow("escapes and controls") << QStringLiteral("\"\\\b\f\n\r\t\x01\x1f\x7f") << QByteArray(R"("\"\\\b\f\n\r\t\u0001\u001f)" "\x7f\"");
        QTest::newRow("two, three and four bytes") << (QStringLiteral("\u00e9\u20ac") + emoji) << ("\"\xc3\xa9\xe2\x82\xac" + emojiUtf8 + '"');
        QTest::newRow("lone high surrogate last") << QString(high) << QByteArray("\"?\"");
        QTest::newRow("lone low surrogate") << (QString(low) + 'a') << QByteArray("\"?a\"");
        QTest::newRow("two high surrogates then low") << (QString(high) + high + low) << ("\"?" + emojiUtf8 + '"');
        QTest::newRow("pair across the block's edge") << (QString(block - 1, 'a') + emoji + 'b') << ('"' + QByteArray(block - 1, 'a') + emojiUtf8 + "b\"");
        QTest::newRow("lone high surrogate ending a block") << (QString(block - 1, 'a') + high + 'b') << ('"' + QByteArray(block - 1, 'a') + "?b\"");
        QTest::newRow("controls filling three blocks") << QString(3 * block, QChar(1)) << ('"' + QByteArray("\\u0001").repeated(3 * block) + '"');
        QTest::newRow("accents over two blocks") << QString(block + 7, QChar(0xe9)) << ('"' + QByteArray("\xc3\xa9").repeated(block + 7) + '"');
        // clang-format on
    }
    void writesTexts()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, json);
        QByteArray out("[");
        JsonWriter(out).string(text);
        QCOMPARE(out, '[' + json);
        QCOMPARE(JsonWriter::compact(text), json);
    }

    void streamsWhatATreeWrites_data()
    {
        QTest::addColumn<bool>("indent");
        QTest::newRow("compact") << false;
        QTest::newRow("indented") << true;
    }
    void streamsWhatATreeWrites()
    {
        QFETCH(bool, indent);
        const JsonValue tree
            = JsonValue::object()
                  .insert("a", JsonValue::array().append(1).append(JsonValue::object()))
                  .insert("b", JsonValue::object().insert("c", JsonValue::single(2.0f)))
                  .insert("d", JsonValue::array())
                  .insert("e", 0.5);
        QByteArray streamed("x");
        JsonWriter writer(streamed, indent);
        writer.value(tree);
        const QByteArray expected
            = indent ? JsonWriter::indented(tree).chopped(1) : JsonWriter::compact(tree);
        QCOMPARE(streamed, 'x' + expected);
        // The same writer goes on after the caller added to the output.
        streamed.append('\n');
        writer.null();
        QCOMPARE(streamed, 'x' + expected + "\nnull");
        if (indent)
            QVERIFY(expected.contains("{\n  \"a\": [\n    1,\n    {}\n  ],"));
        JsonBuilder built;
        built.value(tree);
        QCOMPARE(built.take(), tree);
    }
};

QTEST_APPLESS_MAIN(TestJsonWriter)
#include "tst_jsonwriter.moc"
