#include "runtime/callbyname.h"
#include "runtime/propertybag.h"

#include "tests/common/errornumber.h"

#include <QTest>

using qor::test::errorNumber;

// A control with a declared property, and operations of several shapes.
class SampleControl : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int ListIndex MEMBER listIndex)
    Q_PROPERTY(QString Caption READ caption)

public:
    int listIndex = -1;
    QVariantList calls;

    QString caption() const { return QStringLiteral("c"); }
    Q_INVOKABLE void Clear() { calls << QStringLiteral("Clear"); }
    Q_INVOKABLE void AddItem(const QString &item, const QVariant &index) { calls << item << index; }
    Q_INVOKABLE QVariant Echo(const QVariant &value) { return value; }
    Q_INVOKABLE int Twice(int value) { return 2 * value; }
};

// A control that keeps its undeclared properties in a bag.
class BagControl : public SampleControl, public qor::PropertyBag
{
    Q_OBJECT
};

class TestCallByName : public QObject
{
    Q_OBJECT

private slots:
    void propertiesByNameRegardlessOfCase()
    {
        SampleControl control;
        control.setProperty("Text", QStringLiteral("abc"));
        QCOMPARE(qor::getProperty(&control, "text").toString(), QStringLiteral("abc"));
        qor::setProperty(&control, "LISTINDEX", QStringLiteral("3"), {});
        QCOMPARE(control.listIndex, 3);
        QVERIFY(qor::hasProperty(&control, "caption"));
        QVERIFY(!qor::hasProperty(&control, "SelStart"));
        QVERIFY(!qor::hasProperty(nullptr, "Text"));
    }

    void errors_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<int>("number");
        // clang-format off
        QTest::newRow("read a missing property") << 0 << 438;
        QTest::newRow("write a missing property") << 1 << 438;
        QTest::newRow("no object") << 2 << 91;
        QTest::newRow("text into a number") << 3 << 13;
        QTest::newRow("read-only property") << 4 << 383;
        QTest::newRow("unknown operation") << 5 << 438;
        QTest::newRow("operation with too many arguments") << 6 << 450;
        QTest::newRow("operation argument that is no number") << 7 << 13;
        // clang-format on
    }
    void errors()
    {
        QFETCH(int, which);
        SampleControl control;
        const std::function<void()> actions[] = {
            [&] { qor::getProperty(&control, "SelStart"); },
            [&] { qor::setProperty(&control, "SelStart", 1, {}); },
            [&] { qor::getProperty(nullptr, "Text"); },
            [&] { qor::setProperty(&control, "ListIndex", QStringLiteral("abc"), {}); },
            [&] { qor::setProperty(&control, "Caption", QStringLiteral("x"), {}); },
            [&] { qor::callOperation(&control, "Refresh"); },
            [&] {
                qor::callOperation(&control, "Clear", { 1, 2, 3, 4, 5 });
            },
            [&] { qor::callOperation(&control, "Twice", { QStringLiteral("abc") }); },
        };
        QTEST(errorNumber(actions[which]), "number");
    }

    void operationsByName()
    {
        SampleControl control;
        qor::callOperation(&control, "clear");
        qor::callOperation(&control, "AddItem", { QStringLiteral("Contant"), QVariant() });
        QCOMPARE(control.calls,
            (QVariantList { QStringLiteral("Clear"), QStringLiteral("Contant"), QVariant() }));
        QCOMPARE(qor::callOperation(&control, "Echo", { 2.5 }), QVariant(2.5));
        // Arguments convert as assignments do: text read as a number, half to even.
        QCOMPARE(qor::callOperation(&control, "Twice", { QStringLiteral("21") }).toInt(), 42);
        QCOMPARE(qor::callOperation(&control, "Twice", { 2.5 }).toInt(), 4);
    }

    // An object's bag holds the names it was given, found regardless of case.
    void bagPropertiesByName()
    {
        BagControl control;
        control.bagAssign(QStringLiteral("Tag"), 7);
        QCOMPARE(qor::getProperty(&control, "TAG").toInt(), 7);
        qor::setProperty(&control, "tag", QStringLiteral("x"), {});
        QCOMPARE(control.bagNames(), QStringList { QStringLiteral("Tag") });
        QCOMPARE(*control.bagValue(QStringLiteral("tAg")), QVariant(QStringLiteral("x")));
        QCOMPARE(qor::propertyNameOf(&control, "tag"), QByteArray("Tag"));
        // Declared properties come first and keep their type.
        qor::setProperty(&control, "listindex", QStringLiteral("4"), {});
        QCOMPARE(control.listIndex, 4);
        QVERIFY(!control.bagValue(QStringLiteral("ListIndex")));
        QCOMPARE(errorNumber([&] { qor::getProperty(&control, "Missing"); }), 438);
    }
};

QTEST_GUILESS_MAIN(TestCallByName)
#include "tst_callbyname.moc"
