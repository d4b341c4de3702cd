#include "lib/clsqorgenlib.h"
#include "lib/typelibrary.h"

#include <QTest>

using namespace qor;

namespace {

const TypeLibrary &library()
{
    return clsqorGenLib::typeLibrary();
}

QStringList memberNames(const QString &enumName)
{
    QStringList names;
    if (const EnumInfo *info = library().findEnumeration(enumName)) {
        for (const auto &member : info->members)
            names << member.name;
    }
    return names;
}

// Published defaults at and beyond the Integer subtype's range.
class WideDefaults : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("Take",
        "{\"top\": 32767, \"bottom\": -32768, \"above\": 32768, \"below\": -40000, "
        "\"half\": 2.5}")

public:
    Q_INVOKABLE void Take(
        QVariant top, QVariant bottom, QVariant above, QVariant below, QVariant half)
    { }
};

} // namespace

class TestTypeLibrary : public QObject
{
    Q_OBJECT

private slots:
    void enumerationsInDeclarationOrder_data()
    {
        QTest::addColumn<QString>("enumName");
        QTest::addColumn<QStringList>("members");
        // clang-format off
        QTest::newRow("symbol with the euro sign") << "OstSymbolType" << QStringList { "vbSymbolNone", "vbSymbolEUR", QStringLiteral("vbSymbol\u20AC") };
        QTest::newRow("duplicate value zero") << "OstSpecificIcon" << QStringList { "spiDefault", "spiDis", "spiGrey", "spiMove", "spiDisMini", "spiGreyMini", "spiMoveMini" };
        QTest::newRow("negative first") << "NotFoundIndexType" << QStringList { "SetListIndexMinusOne", "SetListIndexLineZero", "SetListIndexUnchanged" };
        // clang-format on
    }
    void enumerationsInDeclarationOrder()
    {
        QFETCH(QString, enumName);
        QTEST(memberNames(enumName), "members");
    }

    // The icons are numbered 1..254 without 217.
    void iconsLeaveOutNumber217()
    {
        QSet<int> icons;
        for (const auto &member : library().findEnumeration("IconList")->members) {
            QVERIFY(member.name.startsWith(QLatin1String("icc")));
            icons.insert(member.value);
        }
        QCOMPARE(icons.size(), 253);
        QVERIFY(!icons.contains(217));
        QVERIFY(icons.contains(1) && icons.contains(254));
    }

    // A whole default within -32768..32767 becomes an Integer; any other stays as published.
    void variantDefaultsBeyondTheIntegerRange_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("integer");
        QTest::addColumn<double>("value");
        QTest::newRow("largest Integer") << 0 << true << 32767.0;
        QTest::newRow("smallest Integer") << 1 << true << -32768.0;
        QTest::newRow("one above") << 2 << false << 32768.0;
        QTest::newRow("far below") << 3 << false << -40000.0;
        QTest::newRow("a fraction") << 4 << false << 2.5;
    }
    void variantDefaultsBeyondTheIntegerRange()
    {
        QFETCH(int, index);
        QFETCH(bool, integer);
        const TypeLibrary wide(&WideDefaults::staticMetaObject, {}, {});
        const MethodInfo *info = wide.findMethod(QStringLiteral("Take"));
        QVERIFY(info);
        const QVariant value = info->parameters.at(index).defaultValue;
        QCOMPARE(value.typeId() == QMetaType::Short, integer);
        QTEST(value.toDouble(), "value");
    }

    // Every method is published once and found whatever the case of its name; that its C++
    // defaults are the published ones is the published-defaults test's business.
    void everyMethodIsPublishedOnceAndFoundInAnyCase()
    {
        for (const MethodInfo &method : library().methods())
            QCOMPARE(library().findMethod(method.name.toUpper()), &method);
        QVERIFY(library().findProperty("OFFSET"));
        QVERIFY(!library().findMethod("Invoke"));
        QVERIFY(!library().findMethod("deleteLater"));
    }

    // A member named again straight after is remembered, but only for the very
    // same name in the very same library.
    void findMemberRemembersOnlyTheSameNameInTheSameLibrary()
    {
        for (const char *name : { "SCase", "scase", "SCase", "Offset", "NbrDec", "NbrDec",
                 "Nothing", "Nothing", "SCase" }) {
            const TypeLibrary::Member member = library().findMember(name);
            QCOMPARE(member.method, library().findMethod(name));
            QCOMPARE(member.property, member.method ? nullptr : library().findProperty(name));
        }
        const TypeLibrary other(&clsqorGenLib::staticMetaObject, {}, {});
        QCOMPARE(other.findMember("SCase").method, other.findMethod("SCase"));
        QVERIFY(other.findMethod("SCase") != library().findMethod("SCase"));
    }
};

QTEST_GUILESS_MAIN(TestTypeLibrary)
#include "tst_typelibrary.moc"
