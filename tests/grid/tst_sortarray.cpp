#include "lib/clsqorgenlib.h"
#include "literalsortarray.h"
#include "platform/platform.h"
#include "runtime/variant.h"
#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace qor;
using namespace qor::test;

namespace {

// Elements written as text: "_" the empty text, "E" Empty, "N" Null,
// "i:5" an Integer, "d:-1.5" a Double, "b:1" a Boolean, "t:2004-05-20" a date,
// "[]" a nested array; anything else is the text itself.
QVariant element(const QString &code)
{
    if (code == QLatin1String("_"))
        return QString();
    if (code == QLatin1String("E"))
        return emptyVariant();
    if (code == QLatin1String("N"))
        return nullVariant();
    if (code == QLatin1String("[]"))
        return QVariantList { 1 };
    if (code.startsWith(QLatin1String("i:")))
        return integerVariant(qint16(code.mid(2).toInt()));
    if (code.startsWith(QLatin1String("d:")))
        return code.mid(2).toDouble();
    if (code.startsWith(QLatin1String("b:")))
        return code.mid(2) == QLatin1String("1");
    if (code.startsWith(QLatin1String("t:")))
        return QDateTime(QDate::fromString(code.mid(2), Qt::ISODate), QTime(0, 0), Qt::UTC);
    return code;
}

QVariant array(const QString &codes)
{
    QVariantList list;
    for (const QString &code : codes.split(QLatin1Char(','), Qt::SkipEmptyParts))
        list.append(element(code));
    return list;
}

// The array back in the notation above ("E" for Empty).
QString described(const QVariant &v)
{
    if (!isArray(v))
        return varTypeName(v);
    QStringList parts;
    for (const QVariant &e : v.toList()) {
        switch (varType(e)) {
        case VarType::Empty: parts.append(QStringLiteral("E")); break;
        case VarType::Null: parts.append(QStringLiteral("N")); break;
        case VarType::String:
            parts.append(e.toString().isEmpty() ? QStringLiteral("_") : e.toString());
            break;
        case VarType::Integer: parts.append(QStringLiteral("i:") + e.toString()); break;
        case VarType::Double: parts.append(QStringLiteral("d:") + e.toString()); break;
        case VarType::Boolean: parts.append(QStringLiteral("b:") + (e.toBool() ? "1" : "0")); break;
        case VarType::Date:
            parts.append(QStringLiteral("t:") + e.toDateTime().date().toString(Qt::ISODate));
            break;
        case VarType::Array: parts.append(QStringLiteral("[]")); break;
        default: parts.append(varTypeName(e) + QLatin1Char(':') + e.toString()); break;
        }
    }
    return parts.join(QLatin1Char(','));
}

QVariant randomElement(QRandomGenerator &random)
{
    static const QStringList words { "a", "A", "b", "B", "ab", "Ab", "abc", "10", "9", "100", "-5",
        "x-3", "1,5", "é", "É", "z", " a", "0" };
    switch (random.bounded(12)) {
    case 0: return QString();
    case 1: return emptyVariant();
    case 2: return integerVariant(qint16(random.bounded(-20, 20)));
    case 3: return double(random.bounded(-400, 400)) / 4;
    case 4: return random.bounded(2) == 1;
    case 5: return QDateTime(QDate(2000, 1, 1).addDays(random.bounded(400)), QTime(0, 0), Qt::UTC);
    default: return words.at(random.bounded(words.size()));
    }
}

} // namespace

class TestSortArray : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_machine = installRecordingPlatform(QStringLiteral("nl_BE")); }

    void sorts_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<int>("order");
        QTest::addColumn<QString>("output");

        QTest::newRow("alphabetic ignores case") << "b,A,c" << 3 << "A,b,c";
        QTest::newRow("alphabetic reversed") << "b,A,c" << 4 << "c,b,A";
        QTest::newRow("numeric reversed") << "10,9,100" << 2 << "100,10,9";
        QTest::newRow("alphabetic on numbers as text") << "10,9,100" << 3 << "10,100,9";
        QTest::newRow("length") << "10,9,100" << 5 << "9,10,100";
        QTest::newRow("length reversed is stable") << "bb,a,cc" << 6 << "bb,cc,a";
        QTest::newRow("numeric reads the digits only") << "x-3,2a,1.5" << 1 << "2a,x-3,1.5";
        QTest::newRow("empty text dropped") << "x,_,y" << 3 << "x,y,E";
        QTest::newRow("leading empties skipped") << "_,E,_,b,a" << 3 << "a,b,E,E,E";
        // clang-format off
        QTest::newRow("negative Integer reads as its digits") << "i:5,_,i:-3,i:2" << 1 << "i:2,i:-3,i:5,E";
        QTest::newRow("Null is kept behind the last") << "b,N,a,c" << 3 << "a,b,N,c";
        QTest::newRow("leading Null is lost") << "N,b,a" << 3 << "a,b,E";
        QTest::newRow("Null never counts in length") << "bbb,N,a" << 5 << "a,bbb,N";
        QTest::newRow("numbers as text in alphabetic") << "i:10,i:9,abc" << 3 << "i:10,i:9,abc";
        QTest::newRow("Booleans by their text") << "b:1,b:0,S" << 3 << "b:0,S,b:1";
        QTest::newRow("dates by their text") << "t:2004-05-20,t:2003-12-31" << 3 << "t:2004-05-20,t:2003-12-31";
        QTest::newRow("unknown order keeps the order") << "b,_,a,N,c" << 7 << "b,a,N,c,E";
        QTest::newRow("upper case after lower by code") << "é,z,É" << 3 << "z,é,É";
        // clang-format on
    }

    // One array sorted in place, in each order: where empties, Nulls and other subtypes end up.
    void sorts()
    {
        QFETCH(QString, input);
        QFETCH(int, order);
        clsqorGenLib lib;
        QVariant values = array(input);
        lib.SortArray(values, qorGenLib::OstSortOrder(order));
        QTEST(described(values), "output");
        QVERIFY(m_machine->shown().isEmpty());
    }

    void failures_data()
    {
        QTest::addColumn<QVariant>("input");
        QTest::addColumn<int>("order");
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("after");

        // clang-format off
        QTest::newRow("no elements") << QVariant(QVariantList {}) << 3 << int(RuntimeError::SubscriptOutOfRange) << "";
        QTest::newRow("not an array") << QVariant("abc") << 3 << int(RuntimeError::TypeMismatch) << "String";
        QTest::newRow("nested array first") << array("[],a") << 3 << int(RuntimeError::TypeMismatch) << "[],E";
        QTest::newRow("nested array later") << array("b,a,[],c") << 3 << int(RuntimeError::TypeMismatch) << "a,b,E,E";
        QTest::newRow("Null in a numeric order") << array("3,1,N,2") << 1 << int(RuntimeError::InvalidUseOfNull) << "1,3,E,E";
        QTest::newRow("leading Null in a numeric order") << array("N,3,1") << 1 << 0 << "1,3,E";
        // clang-format on
    }

    void failures()
    {
        QFETCH(QVariant, input);
        QFETCH(int, order);
        clsqorGenLib lib;
        QVariant values = input;
        QTEST(errorNumber([&] { lib.SortArray(values, qorGenLib::OstSortOrder(order)); }), "error");
        QTEST(described(values), "after");
    }

    void companionOfAnotherSize()
    {
        clsqorGenLib lib;
        QVariant values = array("b,a,c");
        QVariant ref = array("1,2,3");
        lib.SortArray(values, qorGenLib::soAlphabetic, ref);
        QCOMPARE(described(ref), QStringLiteral("2,1,3"));
        values = array("b,a,c");
        ref = array("1,2");
        lib.SortArray(values, qorGenLib::soAlphabetic, ref);
        QCOMPARE(described(values), QStringLiteral("E,E,E"));
        QCOMPARE(described(ref), QStringLiteral("1,2"));
        QCOMPARE(onlyMessage(*m_machine),
            messageBox("UBound(RefArray) must be equal to UBound(Array) when calling SortOrder "
                       "procedure !",
                16, "OstGenLib"));
        QVariant notArray = QStringLiteral("x");
        values = array("b,a");
        QCOMPARE(errorNumber([&] { lib.SortArray(values, qorGenLib::soAlphabetic, notArray); }),
            int(RuntimeError::TypeMismatch));
        QCOMPARE(described(values), QStringLiteral("E,E"));
    }

    void sameResultAsTheInsertionSort_data()
    {
        QTest::addColumn<int>("order");
        for (int order = 0; order <= 7; ++order)
            QTest::addRow("order %d", order) << order;
    }

    void sameResultAsTheInsertionSort()
    {
        QFETCH(int, order);
        QRandomGenerator random(quint32(4711 + order));
        const RegionalSettings rs = platform().regionalSettings();
        for (int round = 0; round < 1500; ++round) {
            QVariantList input;
            const int size = random.bounded(1, 40);
            const bool withNull = random.bounded(4) == 0;
            const bool withArray = random.bounded(40) == 0;
            for (int i = 0; i < size; ++i) {
                input.append(randomElement(random));
                if (withNull && random.bounded(8) == 0)
                    input[i] = nullVariant();
                if (withArray && random.bounded(10) == 0)
                    input[i] = QVariantList { 1 };
            }
            QVariantList positions;
            for (int i = 0; i < size; ++i)
                positions.append(i);
            QVariant expected = input, expectedRef = positions;
            QVariant actual = input, actualRef = positions;
            const int expectedError
                = errorNumber([&] { literalSortArray(expected, order, &expectedRef, rs); });
            const int actualError = errorNumber([&] { sortArray(actual, order, &actualRef, 0); });
            const QString context = described(input);
            QVERIFY2(expectedError == actualError, qPrintable(context));
            QVERIFY2(described(actual) == described(expected),
                qPrintable(context + " -> " + described(actual) + " / " + described(expected)));
            QVERIFY2(described(actualRef) == described(expectedRef), qPrintable(context));
        }
    }

private:
    std::shared_ptr<RecordingPlatform> m_machine;
};

QTEST_GUILESS_MAIN(TestSortArray)
#include "tst_sortarray.moc"
