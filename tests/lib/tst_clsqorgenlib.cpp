#include "lib/clsqorgenlib.h"
#include "lib/typelibrary.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QDateTime>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using namespace qor;

class TestClsqorGenLib : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;
    QTemporaryDir systemDir;

    static QList<QPair<QString, QVariant>> oddValues()
    {
        static QObject anObject;
        return {
            { "empty", emptyVariant() },
            { "null", nullVariant() },
            { "integer", QVariant::fromValue<short>(-7) },
            { "long max", QVariant::fromValue<int>(2147483647) },
            { "double huge", 1e300 },
            { "double nan", std::numeric_limits<double>::quiet_NaN() },
            { "negative", -0.5 },
            { "boolean", true },
            { "empty text", QString() },
            { "blanks", QStringLiteral("   ") },
            { "megabyte of digits", QString(1 << 20, QLatin1Char('9')) },
            { "non-latin", QStringLiteral("\u0416\u4E2D\u0661\uFF11\U0001F600") },
            { "control characters", QStringLiteral("\r\n\t") + QChar(0) + QChar(0x1b) },
            { "date", QDateTime(QDate(2004, 5, 20), QTime(8, 30)) },
            { "array", QVariantList { 1, QStringLiteral("a"), nullVariant() } },
            { "object", QVariant::fromValue<QObject *>(&anObject) },
            { "nothing", QVariant::fromValue<QObject *>(nullptr) },
        };
    }

private slots:
    void init()
    {
        machine = test::installRecordingPlatform(QStringLiteral("nl_BE"));
        machine->setSystemDirectory(systemDir.path());
        machine->setNow(QDateTime(QDate(2026, 11, 22), QTime(10, 0)));
    }

    // The field extension stays Dutch whatever the language.
    void fieldExtensionStaysDutch()
    {
        clsqorGenLib lib;
        lib.setProperty("Offset", 10000);
        QCOMPARE(lib.property("FieldExt").toString(), QStringLiteral("NL"));
    }

    void constructionClearsTheCalculatorState()
    {
        modGenLib().calculatorFlag = true;
        modGenLib().calculatorMode = 3;
        clsqorGenLib lib;
        QCOMPARE(modGenLib().calculatorFlag, false);
        QCOMPARE(modGenLib().calculatorMode, 0);
    }

    void moduleStateIsOnePerThread()
    {
        modGenLib().languageOffset = 20000;
        int seenByOtherThread = -1;
        std::thread other([&] { seenByOtherThread = modGenLib().languageOffset; });
        other.join();
        QCOMPARE(seenByOtherThread, 0);
        QCOMPARE(modGenLib().languageOffset, 20000);
    }

    // Late binding: Invoke by name, in any case, with the arguments converted to the
    // declared types and the optional ones left out taking their defaults; the result
    // with its subtype, or the run-time error (the "result" column invalid). An
    // enumeration argument is a Long: any 32-bit value is taken, and a value the
    // enumeration does not name adds no symbol.
    void invokeByName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVariantList>("args");
        QTest::addColumn<QVariant>("result");
        QTest::addColumn<int>("error");
        // clang-format off
        QTest::newRow("amount text in the locale") << "SetEuro" << QVariantList { "1234,5", 1 } << QVariant("1.234,50 EUR") << 0;
        QTest::newRow("optional arguments left out") << "FilterText" << QVariantList { "O'Neil 7" } << QVariant(QStringLiteral("O\u00B4Neil")) << 0;
        QTest::newRow("missing optional argument") << "FilterText" << QVariantList { "O'Neil 7", missingVariant(), "7" } << QVariant(QStringLiteral("O\u00B4Neil7")) << 0;
        QTest::newRow("Variant default is a Double 0") << "CGetal" << QVariantList {} << QVariant(0.0) << 0;
        QTest::newRow("symbol: largest Long") << "SetEuro" << QVariantList { 2, QVariant(2147483647) } << QVariant("2,00") << 0;
        QTest::newRow("required argument missing") << "SCase" << QVariantList { missingVariant() } << QVariant() << 449;
        QTest::newRow("number where an object is declared") << "SelEdit" << QVariantList { 5 } << QVariant() << 13;
        QTest::newRow("no object") << "SelEdit" << QVariantList { QVariant::fromValue<QObject *>(nullptr) } << QVariant() << 91;
        QTest::newRow("one argument too many") << "FilterNumeric" << QVariantList { "1", "2" } << QVariant() << 450;
        QTest::newRow("property with two values") << "Offset" << QVariantList { 1, 2 } << QVariant() << 450;
        QTest::newRow("key code beyond a byte") << "SendAKey" << QVariantList { 300 } << QVariant() << 5;
        // clang-format on
    }
    void invokeByName()
    {
        static_assert(std::is_same_v<std::underlying_type_t<qorGenLib::OstSymbolType>, qint32>);
        static_assert(std::is_same_v<std::underlying_type_t<qorGenLib::OstColors>, qint32>);
        QFETCH(QString, name);
        QFETCH(QVariantList, args);
        QFETCH(QVariant, result);
        clsqorGenLib lib;
        QVariant actual;
        QTEST(test::errorNumber([&] { actual = lib.Invoke(name, args); }), "error");
        QCOMPARE(varTypeName(actual), varTypeName(result));
        QCOMPARE(actual, result);
    }

    // By-reference arguments come back in the caller's list, converted ones in
    // the declared type; by-value ones stay as they were. A copy of the list
    // taken before the call never changes.
    void invokeWritesBackByReference_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVariantList>("args");
        QTest::addColumn<QVariantList>("after");
        // clang-format off
        QTest::newRow("String by reference") << "SCase" << QVariantList { "JAN PEETERS" } << QVariantList { "jan peeters" };
        QTest::newRow("String by reference from a Double") << "SCase" << QVariantList { 12.5 } << QVariantList { "12,5" };
        QTest::newRow("Variant by reference") << "FilterNumeric" << QVariantList { 12.5 } << QVariantList { "12,5" };
        QTest::newRow("by value, converted, left alone") << "FilterText" << QVariantList { 12, false } << QVariantList { 12, false };
        // clang-format on
    }
    void invokeWritesBackByReference()
    {
        QFETCH(QString, name);
        QFETCH(QVariantList, args);
        QFETCH(QVariantList, after);
        const QVariantList before(args.cbegin(), args.cend()); // a list of its own
        const QVariantList shared = args;
        clsqorGenLib lib;
        lib.Invoke(name, args);
        QCOMPARE(args, after);
        for (int i = 0; i < args.size(); ++i)
            QCOMPARE(args.at(i).metaType(), after.at(i).metaType());
        QCOMPARE(shared, before);
    }

    // A property assigned by name takes the value converted to its type.
    void propertyAssignmentConverts_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("stored");
        // clang-format off
        QTest::newRow("number text into a Long") << "BtwTar1" << QVariant(QStringLiteral("2100")) << QVariant(2100);
        QTest::newRow("number into a String, in the locale") << "msg" << QVariant(12.5) << QVariant(QStringLiteral("12,5"));
        // clang-format on
    }
    void propertyAssignmentConverts()
    {
        QFETCH(QString, property);
        QFETCH(QVariant, value);
        clsqorGenLib lib;
        lib.Invoke(property, { value });
        QTEST(lib.Invoke(property, {}), "stored");
    }

    // Every published method, called by name with every kind of value in every
    // argument, returns or raises a run-time error: it never crashes or hangs.
    void everyMethodSurvivesEveryValue_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<int>("parameter");
        QTest::addColumn<QVariant>("value");
        for (const MethodInfo &method : clsqorGenLib::typeLibrary().methods()) {
            for (int p = 0; p < method.parameters.size(); ++p) {
                for (const auto &[name, value] : oddValues()) {
                    const QString row = method.name + QLatin1Char('.') + method.parameters[p].name
                        + QLatin1Char(' ') + name;
                    // clang-format off
                    QTest::newRow(qPrintable(row)) << method.name << p << value;
                    // clang-format on
                }
            }
        }
    }
    void everyMethodSurvivesEveryValue()
    {
        QFETCH(QString, method);
        QFETCH(int, parameter);
        QFETCH(QVariant, value);
        const MethodInfo *info = clsqorGenLib::typeLibrary().findMethod(method);
        QVERIFY(info);
        // The other required arguments get a plain, valid value of their type.
        QVariantList args;
        for (int p = 0; p <= parameter; ++p)
            args << (p == parameter ? value : QVariant(QStringLiteral("1")));
        clsqorGenLib lib;
        try {
            lib.Invoke(method, args);
        } catch (const RuntimeError &error) {
            QVERIFY(error.number() > 0);
            QVERIFY(!error.description().isEmpty());
        }
        QCOMPARE(args.size(), parameter + 1);
    }

    // A property takes what converts to its type and refuses the rest unchanged.
    void everyPropertySurvivesEveryValue()
    {
        for (const PropertyInfo &property : clsqorGenLib::typeLibrary().properties()) {
            for (const auto &[name, value] : oddValues()) {
                clsqorGenLib lib;
                const QVariant before = lib.Invoke(property.name);
                try {
                    lib.Invoke(property.name, { value });
                } catch (const RuntimeError &error) {
                    QVERIFY(error.number() > 0);
                    QCOMPARE(lib.Invoke(property.name), before);
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestClsqorGenLib)
#include "tst_clsqorgenlib.moc"
