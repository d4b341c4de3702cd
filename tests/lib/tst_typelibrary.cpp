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
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("integer");
        QTest::newRow("largest Integer") << 32767.0 << true;
        QTest::newRow("smallest Integer") << -32768.0 << true;
        QTest::newRow("one above") << 32768.0 << false;
        QTest::newRow("far below") << -40000.0 << false;
        QTest::newRow("a fraction") << 2.5 << false;
    }
    void variantDefaultsBeyondTheIntegerRange()
    {
        QFETCH(double, value);
        const QVariant published
            = publishedArgument(QJsonValue(value), QMetaType::fromType<QVariant>());
        QTEST(published.typeId() == QMetaType::Short, "integer");
        QCOMPARE(published.toDouble(), value);
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
