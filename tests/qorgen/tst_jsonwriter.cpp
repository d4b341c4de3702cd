#include "tools/qorgen/jsonbuilder.h"
#include "tools/qorgen/jsonwriter.h"

#include <QTest>

#include <cmath>

using namespace qor;

Q_DECLARE_METATYPE(qor::JsonValue)

// The writer puts texts straight into the output a block of characters at a
// time: what matters is what happens at the block's edges, with characters of
// one to four UTF-8 bytes, and that a caller only ever sees whole values.
// Numbers take their shortest form.
class TestJsonWriter : public QObject
{
    Q_OBJECT

private slots:
    void writes_data()
    {
        QTest::addColumn<JsonValue>("value");
        QTest::addColumn<QByteArray>("json");
        const QString emoji = QString::fromUtf8("\xf0\x9f\x98\x80");
        const QByteArray emojiUtf8("\xf0\x9f\x98\x80");
        const QChar high(0xD83D);
        const QChar low(0xDE00);
        constexpr int block = 4096;
        // clang-format off
        QTest::newRow("escapes and controls") << JsonValue(QStringLiteral("\"\\\b\f\n\r\t\x01\x1f\x7f")) << QByteArray(R"("\"\\\b\f\n\r\t\u0001\u001f)" "\x7f\"");
        QTest::newRow("two, three and four bytes") << JsonValue(QStringLiteral("\u00e9\u20ac") + emoji) << ("\"\xc3\xa9\xe2\x82\xac" + emojiUtf8 + '"');
        QTest::newRow("lone high surrogate last") << JsonValue(QString(high)) << QByteArray("\"?\"");
        QTest::newRow("lone low surrogate") << JsonValue(QString(low) + 'a') << QByteArray("\"?a\"");
        QTest::newRow("two high surrogates then low") << JsonValue(QString(high) + high + low) << ("\"?" + emojiUtf8 + '"');
        QTest::newRow("pair across the block's edge") << JsonValue(QString(block - 1, 'a') + emoji + 'b') << ('"' + QByteArray(block - 1, 'a') + emojiUtf8 + "b\"");
        QTest::newRow("lone high surrogate ending a block") << JsonValue(QString(block - 1, 'a') + high + 'b') << ('"' + QByteArray(block - 1, 'a') + "?b\"");
        QTest::newRow("controls filling three blocks") << JsonValue(QString(3 * block, QChar(1))) << ('"' + QByteArray("\\u0001").repeated(3 * block) + '"');
        QTest::newRow("accents over two blocks") << JsonValue(QString(block + 7, QChar(0xe9))) << ('"' + QByteArray("\xc3\xa9").repeated(block + 7) + '"');
        QTest::newRow("shortest double") << JsonValue(0.1) << QByteArray("0.1");
        QTest::newRow("large double") << JsonValue(1e20) << QByteArray("1e+20");
        QTest::newRow("shortest single") << JsonValue::single(0.1f) << QByteArray("0.1");
        QTest::newRow("whole single") << JsonValue::single(3.0f) << QByteArray("3.0");
        QTest::newRow("not a number") << JsonValue(std::nan("")) << QByteArray("null");
        QTest::newRow("members in order") << JsonValue::object().insert("z", 1).insert( "a", JsonValue::array().append(true).append(nullptr)) << QByteArray(R"({"z":1,"a":[true,null]})");
        QTest::newRow("empty containers") << JsonValue::array().append(JsonValue::object()).append(JsonValue::array()) << QByteArray("[{},[]]");
        // clang-format on
    }
    void writes()
    {
        QFETCH(JsonValue, value);
        QFETCH(QByteArray, json);
        QByteArray out("[");
        JsonWriter(out).value(value);
        QCOMPARE(out, '[' + json);
    }

    // Indented, into what the caller already holds, and on after the caller
    // added to it; the builder makes the tree that was written to it.
    void streamsWhatATreeWrites()
    {
        const JsonValue tree
            = JsonValue::object()
                  .insert("a", JsonValue::array().append(1).append(JsonValue::object()))
                  .insert("b", JsonValue::object().insert("c", JsonValue::single(2.0f)))
                  .insert("d", JsonValue::array())
                  .insert("e", 0.5);
        QByteArray streamed("x");
        JsonWriter writer(streamed, true);
        writer.value(tree);
        streamed.append('\n');
        writer.null();
        QCOMPARE(streamed,
            "x{\n  \"a\": [\n    1,\n    {}\n  ],\n  \"b\": {\n    \"c\": 2.0\n  },\n"
            "  \"d\": [],\n  \"e\": 0.5\n}\nnull");
        JsonBuilder built;
        built.value(tree);
        QCOMPARE(built.take(), tree);
    }
};

QTEST_APPLESS_MAIN(TestJsonWriter)
#include "tst_jsonwriter.moc"
