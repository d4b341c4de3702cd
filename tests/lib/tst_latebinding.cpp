#include "lib/clsqorgenlib.h"
#include "lib/modgenlib.h"
#include "platform/recordingplatform.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include "tests/common/errornumber.h"

#include <QTest>

using namespace qor;

class TestLateBinding : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;

    static int errorOf(clsqorGenLib &lib, const QString &name, QVariantList args)
    {
        return test::errorNumber([&] { lib.Invoke(name, args); });
    }

private slots:
    void init()
    {
        ModGenLib::reset();
        machine = std::make_shared<RecordingPlatform>();
        machine->setLocale(QStringLiteral("nl_BE"));
        Platform::install(machine);
    }

    void namesIgnoreCase()
    {
        clsqorGenLib lib;
        QCOMPARE(lib.Invoke("llgenlib", { 1028 }).toString(), QStringLiteral("Ja"));
        QCOMPARE(lib.Invoke("LLGENLIB", { 21028 }).toString(), QStringLiteral("Yes"));
    }

    void byReferenceArgumentsAreWrittenBack()
    {
        clsqorGenLib lib;
        QVariantList args { QStringLiteral("VAN DEN BERG") };
        QCOMPARE(lib.Invoke("SCase", args).toString(), QStringLiteral("Van Den Berg"));
        QCOMPARE(args.at(0).toString(), QStringLiteral("van den berg"));

        QVariantList numeric { 3.5 };
        QCOMPARE(lib.Invoke("FilterNumeric", numeric).toString(), QStringLiteral("35"));
        QCOMPARE(numeric.at(0).metaType().id(), int(QMetaType::QString));
        QCOMPARE(numeric.at(0).toString(), QStringLiteral("3,5"));
    }

    void valueArgumentsAreLeftAlone()
    {
        clsqorGenLib lib;
        QVariantList args { QStringLiteral("Caf\u00E9 2000"), true };
        QCOMPARE(lib.Invoke("FilterText", args).toString(), QStringLiteral("Cafe"));
        QCOMPARE(args.at(0).toString(), QStringLiteral("Caf\u00E9 2000"));
        QCOMPARE(args.size(), 2);
    }

    void optionalArgumentsTakeTheirDefaults()
    {
        clsqorGenLib lib;
        QCOMPARE(lib.Invoke("FilterText", { QStringLiteral("O'Neil 7") }).toString(),
            QStringLiteral("O\u00B4Neil"));
        QCOMPARE(lib.Invoke("FilterText",
                        { QStringLiteral("O'Neil 7"), missingVariant(), QStringLiteral("7") })
                     .toString(),
            QStringLiteral("O\u00B4Neil7"));
        const QVariant zero = lib.Invoke("CGetal", {});
        QCOMPARE(varTypeName(zero), QStringLiteral("Double"));
        QCOMPARE(zero.toDouble(), 0.0);
    }

    void argumentsConvertToTheDeclaredType()
    {
        clsqorGenLib lib;
        QCOMPARE(
            lib.Invoke("LLGenLib", { QStringLiteral("11028") }).toString(), QStringLiteral("Oui"));
        QCOMPARE(lib.Invoke("LLGenLib", { 1028.4 }).toString(), QStringLiteral("Ja"));
        QCOMPARE(lib.Invoke("SetEuro", { QStringLiteral("1234,5"), 1 }).toString(),
            QStringLiteral("1.234,50 EUR"));
    }

    void propertiesReadAndAssign()
    {
        clsqorGenLib lib;
        QCOMPARE(lib.Invoke("offset").toInt(), 0);
        lib.Invoke("Offset", { 20000 });
        QCOMPARE(lib.property("Offset").toInt(), 20000);
        lib.Invoke("BtwTar1", { QStringLiteral("2100") });
        QCOMPARE(lib.Invoke("btwtar1").toInt(), 2100);
        lib.Invoke("FlowCTL", { nullVariant() });
        QVERIFY(isNull(lib.Invoke("FlowCTL")));
    }

    void errorsReachTheCaller_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVariantList>("args");
        QTest::addColumn<int>("number");
        // clang-format off
        QTest::newRow("unknown name") << "NoSuchMethod" << QVariantList {} << 438;
        QTest::newRow("too many arguments") << "LLGenLib" << QVariantList { 1, 2 } << 450;
        QTest::newRow("required argument left out") << "LLGenLib" << QVariantList {} << 449;
        QTest::newRow("required argument missing") << "SCase" << QVariantList { missingVariant() } << 449;
        QTest::newRow("text where a number is declared") << "LLGenLib" << QVariantList { "abc" } << 13;
        QTest::newRow("long overflow") << "LLGenLib" << QVariantList { 3e9 } << 6;
        QTest::newRow("null where a number is declared") << "LLGenLib" << QVariantList { nullVariant() } << 94;
        QTest::newRow("number where an object is declared") << "SelEdit" << QVariantList { 5 } << 13;
        QTest::newRow("no object") << "SelEdit" << QVariantList { QVariant::fromValue<QObject *>(nullptr) } << 91;
        QTest::newRow("property with two values") << "Offset" << QVariantList { 1, 2 } << 450;
        QTest::newRow("key code beyond a byte") << "SendAKey" << QVariantList { 300 } << 5;
        QTest::newRow("integer overflow") << "SendAKey" << QVariantList { 40000 } << 6;
        QTest::newRow("null text to filter") << "FilterNumeric" << QVariantList { nullVariant() } << 94;
        // clang-format on
    }
    void errorsReachTheCaller()
    {
        QFETCH(QString, name);
        QFETCH(QVariantList, args);
        clsqorGenLib lib;
        QTEST(errorOf(lib, name, args), "number");
    }
};

QTEST_GUILESS_MAIN(TestLateBinding)
#include "tst_latebinding.moc"
