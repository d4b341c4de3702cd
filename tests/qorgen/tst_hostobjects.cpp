#include "host/listbox.h"
#include "host/textbox.h"
#include "platform/recordingplatform.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include "tests/common/errornumber.h"

#include <QTest>

#include <memory>

using namespace qor;

namespace {

QStringList texts(const QVariantList &list)
{
    QStringList out;
    for (const QVariant &v : list)
        out.append(v.toString());
    return out;
}

QStringList callNames(const HostObject &object)
{
    QStringList names;
    for (const QVariant &call : object.calls())
        names.append(call.toMap().value(QStringLiteral("name")).toString());
    return names;
}

} // namespace

class TestHostObjects : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Platform::install(std::make_shared<RecordingPlatform>()); }

    // Properties by name; the order they are written in is the codec test's business.
    // Names match with the case of ASCII letters ignored, other letters as they are.
    void namesMatchIgnoringAsciiCase_data()
    {
        QTest::addColumn<QStringList>("assigned");
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("resolved");
        QTest::addColumn<QStringList>("undeclared");
        // clang-format off
        QTest::newRow("declared in another case") << QStringList { "SELSTART" } << "selstart" << "SelStart" << QStringList();
        QTest::newRow("accented letters match only themselves") << QStringList { QStringLiteral("\u00C9tat") } << QStringLiteral("\u00E9tat") << "" << QStringList { QStringLiteral("\u00C9tat") };
        QTest::newRow("long s is not s") << QStringList { "Sel", QStringLiteral("\u017Fel") } << "sel" << "Sel" << QStringList { "Sel", QStringLiteral("\u017Fel") };
        QTest::newRow("objectName is not the control's") << QStringList { "objectName" } << "objectName" << "" << QStringList();
        // clang-format on
    }
    void namesMatchIgnoringAsciiCase()
    {
        QFETCH(QStringList, assigned);
        QFETCH(QString, asked);
        TextBox box;
        for (const QString &name : assigned)
            box.assign(name, 1);
        QTEST(box.resolveName(asked), "resolved");
        QTEST(box.bagNames(), "undeclared");
    }

    void assignConvertsToTheDeclaredType_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("error");
        QTest::addColumn<QVariant>("stored");
        // clang-format off
        QTest::newRow("number to String") << "Text" << QVariant(integerVariant(5)) << 0 << QVariant("5");
        QTest::newRow("negative length") << "MaxLength" << QVariant(-1) << 380 << QVariant(0);
        QTest::newRow("undeclared keeps its value") << "Tag" << QVariant(2.5) << 0 << QVariant(2.5);
        // clang-format on
    }
    void assignConvertsToTheDeclaredType()
    {
        QFETCH(QString, name);
        QFETCH(QVariant, value);
        TextBox box;
        QTEST(test::errorNumber([&] { box.assign(name, value); }), "error");
        QTEST(box.value(name), "stored");
    }

    // The edit control's caret and selection through the steps "text abc", "start 1" and
    // "length 2", "; "-separated, as the classic control keeps them.
    void selection_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<int>("error"); // of the last step
        QTest::addColumn<int>("selStart");
        QTest::addColumn<int>("selLength");
        // clang-format off
        QTest::newRow("inside") << "text abcdef; start 1; length 2" << 0 << 1 << 2;
        QTest::newRow("caret past the end stops at the end") << "text abc; start 9; length 0" << 0 << 3 << 0;
        QTest::newRow("selection past the end is cut") << "text abc; start 1; length 9" << 0 << 1 << 2;
        QTest::newRow("a new caret drops the selection") << "text abcdef; start 2; length 3; start 1" << 0 << 1 << 0;
        QTest::newRow("a new text drops the selection") << "text abcdef; start 2; length 3; text xy" << 0 << 0 << 0;
        QTest::newRow("a caret before the text is refused") << "text abc; start -1" << 380 << 0 << 0;
        // clang-format on
    }
    void selection()
    {
        QFETCH(QString, steps);
        TextBox box;
        int error = 0;
        for (const QString &step : steps.split(QStringLiteral("; "))) {
            const QString word = step.section(QLatin1Char(' '), 0, 0);
            const QString rest = step.section(QLatin1Char(' '), 1);
            error = test::errorNumber([&] {
                if (word == QLatin1String("text"))
                    box.setText(rest);
                else if (word == QLatin1String("start"))
                    box.setSelStart(rest.toInt());
                else
                    box.setSelLength(rest.toInt());
            });
        }
        QTEST(error, "error");
        QTEST(box.selStart(), "selStart");
        QTEST(box.selLength(), "selLength");
    }

    void setFocusIsRecordedAndNeedsAnEnabledControl()
    {
        TextBox box;
        box.SetFocus();
        box.assign(QStringLiteral("Enabled"), false);
        QCOMPARE(test::errorNumber([&] { box.SetFocus(); }), 5);
        QCOMPARE(callNames(box), QStringList({ "SetFocus", "SetFocus" }));
    }

    // A list through the steps a host takes, "; "-separated: "add x", "add x at 1",
    // "remove 1", "select 1", "data 1 2"; the entries start with item data
    // 1, 2, ... Every operation is recorded, also one that is refused.
    void listOperations_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<int>("error"); // of the last step
        QTest::addColumn<QStringList>("list");
        QTest::addColumn<QVariantList>("itemData");
        QTest::addColumn<int>("listIndex");
        QTest::addColumn<int>("newIndex");
        const QStringList ab { "a", "b" };
        const QStringList abc { "a", "b", "c" };
        // clang-format off
        QTest::newRow("insert at the selection moves it") << ab << "select 1; add x at 1" << 0 << QStringList({ "a", "x", "b" }) << QVariantList { 1, 0, 2 } << 2 << 1;
        QTest::newRow("insert at the end") << QStringList({ "a" }) << "add z at 1" << 0 << QStringList({ "a", "z" }) << QVariantList { 1, 0 } << -1 << 1;
        QTest::newRow("insert beyond the end") << QStringList({ "a" }) << "add x at 2" << 5 << QStringList({ "a" }) << QVariantList { 1 } << -1 << -1;
        QTest::newRow("remove beyond the end") << QStringList({ "a" }) << "remove 1" << 5 << QStringList({ "a" }) << QVariantList { 1 } << -1 << -1;
        QTest::newRow("select below -1") << QStringList({ "a" }) << "select -2" << 380 << QStringList({ "a" }) << QVariantList { 1 } << -1 << -1;
        QTest::newRow("remove before the selection moves it") << abc << "select 2; add y; remove 0" << 0 << QStringList({ "b", "c", "y" }) << QVariantList { 2, 3, 0 } << 1 << -1;
        QTest::newRow("remove the selection") << abc << "select 2; remove 0; remove 1" << 0 << QStringList({ "b" }) << QVariantList { 2 } << -1 << -1;
        QTest::newRow("fewer item data than entries") << abc << "data 7" << 0 << abc << QVariantList { 7, 0, 0 } << -1 << -1;
        QTest::newRow("more item data than entries") << abc << "data 1 2 3 4" << 0 << abc << QVariantList { 1, 2, 3 } << -1 << -1;
        // clang-format on
    }
    void listOperations()
    {
        QFETCH(QStringList, entries);
        QFETCH(QString, steps);
        ListBox list;
        list.setList(QVariantList(entries.begin(), entries.end()));
        QVariantList data;
        for (int i = 1; i <= entries.size(); ++i)
            data.append(i);
        list.setItemData(data);
        QStringList operations;
        int error = 0;
        for (const QString &step : steps.split(QStringLiteral("; "))) {
            const QStringList word = step.split(QLatin1Char(' '));
            const QVariantList numbers(word.begin() + 1, word.end());
            error = test::errorNumber([&] {
                if (word[0] == QLatin1String("add") && word.size() == 4)
                    list.AddItem(word[1], word[3].toInt());
                else if (word[0] == QLatin1String("add"))
                    list.AddItem(word[1]);
                else if (word[0] == QLatin1String("remove"))
                    list.RemoveItem(word[1].toInt());
                else if (word[0] == QLatin1String("select"))
                    list.setListIndex(word[1].toInt());
                else
                    list.setItemData(numbers);
            });
            if (word[0] == QLatin1String("add") || word[0] == QLatin1String("remove"))
                operations.append(word[0] == QLatin1String("add") ? "AddItem" : "RemoveItem");
        }
        QTEST(error, "error");
        QTEST(texts(list.list()), "list");
        QTEST(list.itemData(), "itemData");
        QCOMPARE(list.listCount(), list.list().size());
        QTEST(list.listIndex(), "listIndex");
        QTEST(list.value("NewIndex").toInt(), "newIndex");
        QCOMPARE(callNames(list), operations);
    }
};

QTEST_GUILESS_MAIN(TestHostObjects)
#include "tst_hostobjects.moc"
