#include "host/hostfactory.h"
#include "host/hostobject.h"
#include "host/textbox.h"
#include "platform/recordingplatform.h"
#include "runtime/variant.h"
#include "tools/qorgen/jsonreader.h"
#include "tools/qorgen/jsonwriter.h"
#include "tools/qorgen/requesterror.h"
#include "tools/qorgen/valuecodec.h"

#include "tests/common/errornumber.h"

#include <QTest>

using namespace qor;

namespace {

JsonValue read(const QByteArray &text)
{
    return JsonReader::parse(text);
}
QByteArray write(const JsonValue &value)
{
    return JsonWriter::compact(value);
}

QVariant decode(const QByteArray &text, QObject *owner = nullptr)
{
    return ValueCodec::decode(read(text), owner, QStringLiteral("value"));
}

QByteArray encoded(const QVariant &value)
{
    return write(ValueCodec::encode(value));
}

QByteArray nested(int depth)
{
    return QByteArray(depth, '[') + QByteArray(depth, ']');
}

} // namespace

class TestJsonCodec : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Platform::install(std::make_shared<RecordingPlatform>()); }

    // Reading JSON text.
    void readerReadsValues()
    {
        // Numbers with an exponent or beyond 64 bits are Doubles.
        QCOMPARE(read("-0.5e2"), JsonValue(-50.0));
        QCOMPARE(read("100000000000000000000"), JsonValue(1e20));
        // Members in their order; escapes, a surrogate pair and raw UTF-8 read as text.
        QCOMPARE(read(R"({"z": "a\u00e9\ud83d\ude00\r\n", "a": [true, null], "m": {}})"),
            JsonValue::object()
                .insert("z", QStringLiteral("a\u00e9") + QString::fromUcs4(U"\U0001F600") + "\r\n")
                .insert("a", JsonValue::array().append(true).append(nullptr))
                .insert("m", JsonValue::object()));
        QCOMPARE(read("\"caf\xc3\xa9\""), JsonValue(QStringLiteral("caf\u00e9")));
    }

    void readerRejects_data()
    {
        QTest::addColumn<QByteArray>("text");
        // clang-format off
        QTest::newRow("nothing") << QByteArray("   ");
        QTest::newRow("misspelt word") << QByteArray("nul");
        QTest::newRow("trailing comma") << QByteArray("[1,]");
        QTest::newRow("text after value") << QByteArray("[1] x");
        QTest::newRow("leading zero") << QByteArray("01");
        QTest::newRow("bare fraction") << QByteArray("1.");
        QTest::newRow("number too big") << QByteArray("1e400");
        QTest::newRow("key twice") << QByteArray(R"({"a": 1, "a": 2})");
        QTest::newRow("unknown escape") << QByteArray(R"("\x")");
        QTest::newRow("raw control character") << QByteArray("\"a\tb\"");
        QTest::newRow("half a surrogate pair") << QByteArray(R"("\ud800")");
        QTest::newRow("lone low surrogate") << QByteArray(R"("\udc00")");
        QTest::newRow("unclosed string") << QByteArray("\"abc");
        QTest::newRow("bad UTF-8") << QByteArray("\"\xff\xfe\"");
        QTest::newRow("nested 65 deep") << nested(65);
        // clang-format on
    }
    void readerRejects()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(test::errorNumber([&] { read(text); }), 5);
        QVERIFY(!JsonReader::tryParse(text));
    }

    void readerLimits()
    {
        QVERIFY(JsonReader::tryParse(nested(64)));
        // The array and its eleven elements are twelve values.
        const QByteArray many = "[" + QByteArray("0,").repeated(10) + "0]";
        QVERIFY(JsonReader::tryParse(many, { 64, 12 }));
        QVERIFY(!JsonReader::tryParse(many, { 64, 11 }));
    }

    // Objects of any size are read, checked for repeated names, taken by a host
    // control and written back in time that grows with their size alone (the
    // test's time limit is the check).
    void largeObjectsTakeTimeInProportion()
    {
        const int members = 200000;
        QByteArray object(R"({"$object": "TextBox", "Text": "ab")");
        for (int i = 1; i < members; ++i)
            object += ", \"m" + QByteArray::number(i) + "\": " + QByteArray::number(i);
        QObject owner;
        const QByteArray written = encoded(decode(object + '}', &owner));
        QVERIFY(written.contains(R"("m1":1,)") && written.contains(R"("m199999":199999,)"));
        QVERIFY(!JsonReader::tryParse(object + ", \"m7\": 1}"));
    }

    // Library values from JSON and back as they were, with their Variant subtype; whole
    // numbers take the smallest subtype that holds them, host objects belong to their owner.
    void valuesBothWays_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("subtype");
        QTest::addColumn<QByteArray>("written"); // empty: as read
        // clang-format off
        QTest::newRow("Integer") << QByteArray("-32768") << "Integer" << QByteArray();
        QTest::newRow("Long") << QByteArray("40000") << "Long" << QByteArray();
        QTest::newRow("beyond a Long") << QByteArray("3000000000") << "Double" << QByteArray("3e+09");
        QTest::newRow("Double with a whole value") << QByteArray("12.0") << "Double" << QByteArray();
        QTest::newRow("String") << QByteArray("\"caf\xc3\xa9\\r\\r\"") << "String" << QByteArray();
        QTest::newRow("Boolean") << QByteArray("true") << "Boolean" << QByteArray();
        QTest::newRow("Null") << QByteArray("null") << "Null" << QByteArray();
        QTest::newRow("Empty") << QByteArray(R"({"$empty":true})") << "Empty" << QByteArray();
        QTest::newRow("Date and time") << QByteArray(R"({"$date":"2004-05-20T08:30:00"})") << "Date" << QByteArray();
        QTest::newRow("Date") << QByteArray(R"({"$date":"2004-05-20"})") << "Date" << QByteArray();
        QTest::newRow("date and time to the minute") << QByteArray(R"({"$date":"2004-05-20T08:30"})") << "Date" << QByteArray(R"({"$date":"2004-05-20T08:30:00"})");
        QTest::newRow("time alone, on the zero date") << QByteArray(R"({"$date":"08:30"})") << "Date" << QByteArray(R"({"$date":"1899-12-30T08:30:00"})");
        QTest::newRow("Array") << QByteArray(R"([1,"a",null,{"$empty":true},[2.5]])") << "Array" << QByteArray();
        QTest::newRow("host object: declared properties set in order, calls not taken") << QByteArray(R"({"$object": "textbox", "selLength": 2, "SelStart": 1, "text": "abcd", "Tag": "mine", "$calls": [{"name": "SetFocus", "args": []}]})") << "Object" << QByteArray(R"({"$object":"TextBox","Text":"abcd","SelStart":1,"SelLength":2,"MaxLength":0,"Enabled":true,"Left":0.0,"Top":0.0,"Width":0.0,"Height":0.0,"Tag":"mine","$calls":[]})");
        QTest::newRow("host object: a list reads back") << QByteArray(R"({"$object":"ListBox","List":["a","b"],"ItemData":[5,6],"ListIndex":1,"ListCount":2,"NewIndex":-1,"$calls":[]})") << "Object" << QByteArray();
        // clang-format on
    }
    void valuesBothWays()
    {
        QFETCH(QByteArray, text);
        QObject owner;
        const QVariant value = decode(text, &owner);
        if (QObject *object = value.value<QObject *>())
            QCOMPARE(object->parent(), &owner);
        QTEST(varTypeName(value), "subtype");
        QTEST(ValueCodec::typeOf(value).toString(), "subtype");
        QFETCH(QByteArray, written);
        QCOMPARE(encoded(value), written.isEmpty() ? text : written);
    }

    void decodeRejects_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("place"); // where the description says the fault is
        // clang-format off
        QTest::newRow("plain object") << QByteArray(R"({"a": 1})") << "value";
        QTest::newRow("unknown marker") << QByteArray(R"({"$foo": 1})") << "value";
        QTest::newRow("empty that is false") << QByteArray(R"({"$empty": false})") << "value";
        QTest::newRow("date that does not exist") << QByteArray(R"({"$date": "2004-02-30"})") << "value";
        QTest::newRow("date at hour 24") << QByteArray(R"({"$date": "2004-05-20T24:00"})") << "value";
        QTest::newRow("date with a space for the T") << QByteArray(R"({"$date": "2004-05-20 08:30"})") << "value";
        QTest::newRow("date before the year 100") << QByteArray(R"({"$date": "0099-01-01"})") << "value";
        QTest::newRow("date with company") << QByteArray(R"({"$date": "2004-05-20", "x": 1})") << "value";
        QTest::newRow("missing outside an argument") << QByteArray(R"({"$missing": true})") << "value";
        QTest::newRow("unknown class") << QByteArray(R"({"$object": "Nope"})") << "value";
        QTest::newRow("property that does not convert") << QByteArray(R"({"$object": "TextBox", "SelStart": "x"})") << "value.SelStart";
        QTest::newRow("plain object in a property") << QByteArray(R"({"$object": "TextBox", "Tag": {"a": 1}})") << "value.Tag";
        QTest::newRow("property of an object in an array") << QByteArray(R"([1, {"$object": "TextBox", "SelStart": "x"}])") << "value[1].SelStart";
        // clang-format on
    }
    void decodeRejects()
    {
        QObject owner;
        QFETCH(QByteArray, text);
        QFETCH(QString, place);
        try {
            decode(text, &owner);
            QFAIL("no error");
        } catch (const RequestError &error) {
            QCOMPARE(error.number(), 13);
            QVERIFY2(error.description().startsWith(place), qPrintable(error.description()));
        }
    }

    // Library values as JSON.
    // Values that only the library makes: the rest is checked end to end through the program.
    void libraryValuesAsJson()
    {
        QCOMPARE(encoded(QVariant::fromValue(0.1f)), QByteArray("0.1"));
        QCOMPARE(
            ValueCodec::typeOf(QVariant::fromValue(0.1f)).toString(), QStringLiteral("Single"));
        const QVariant nothing = QVariant::fromValue<QObject *>(nullptr);
        QCOMPARE(encoded(nothing), QByteArray("null"));
        QCOMPARE(ValueCodec::typeOf(nothing).toString(), QStringLiteral("Object"));
    }

    // Host objects.
    void hostObjectEncodesItsCallsLast()
    {
        TextBox box;
        box.assign(QStringLiteral("Tag"), integerVariant(3));
        box.SetFocus();
        QVERIFY(encoded(QVariant::fromValue<QObject *>(&box))
                    .endsWith(R"("Tag":3,"$calls":[{"name":"SetFocus","args":[]}]})"));
    }

    void nestedPlainObjectsTakeTheirPlaceClass()
    {
        QObject owner;
        const QVariant grid
            = decode(R"({"$object": "Grid", "Columns": [{"Caption": "Nr"}, {"$object": "Column"}],
                                        "Style": {"BackColor": 255}})",
                &owner);
        auto *object = qobject_cast<HostObject *>(grid.value<QObject *>());
        const QVariantList columns = object->value("Columns").toList();
        QCOMPARE(columns.size(), 2);
        auto *first = qobject_cast<HostObject *>(columns.at(0).value<QObject *>());
        QCOMPARE(first->className(), QStringLiteral("Column"));
        QCOMPARE(first->value("Caption").toString(), QStringLiteral("Nr"));
        QCOMPARE(first->parent(), object);
        auto *style = qobject_cast<HostObject *>(object->value("Style").value<QObject *>());
        QCOMPARE(style->value("BackColor").toInt(), 255);
    }

    void encodingEndsAtACycle()
    {
        HostObject *form = HostFactory::create(QStringLiteral("Form"));
        form->assign(
            QStringLiteral("Controls"), QVariantList { QVariant::fromValue<QObject *>(form) });
        const JsonValue json = ValueCodec::encode(QVariant::fromValue<QObject *>(form));
        const JsonValue &inner = json.member(u"Controls")->toArray().at(0);
        QCOMPARE(inner.member(u"$object")->toString(), QStringLiteral("Form"));
        QCOMPARE(inner.size(), 1);
        delete form;
    }
};

QTEST_GUILESS_MAIN(TestJsonCodec)
#include "tst_jsoncodec.moc"
