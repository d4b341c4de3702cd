#include "lib/clsqorgenlib.h"
#include "lib/typelibrary.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include "tests/common/recordingmachine.h"

#include <QDateTime>
#include <QTemporaryDir>
#include <QTest>

using namespace qor;

// Every published method, called by name with every kind of value in every
// argument, returns or raises a run-time error: it never crashes or hangs.
class TestRobustness : public QObject
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

QTEST_GUILESS_MAIN(TestRobustness)
#include "tst_robustness.moc"
