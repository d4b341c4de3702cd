#include "host/grideditor.h"
#include "host/textbox.h"
#include "lib/clsqorgenlib.h"
#include "runtime/conversion.h"
#include "runtime/variant.h"

#include "tests/common/errornumber.h"
#include "tests/common/keysequence.h"
#include "tests/common/recordingmachine.h"

#include <QTest>

using namespace qor;

namespace {

const QString calculatorTitle = QStringLiteral("qorSoft Calculator");
const QString negativeRefused = QStringLiteral("Het resultaat kan niet worden ingevoegd, omdat het "
                                               "invulvak geen negatieve waarde aanvaardt...");

QString tooLong(int maxLength)
{
    return QStringLiteral("Het resultaat kan niet worden ingevoegd, omdat het invulvak maximaal %1 "
                          "tekens aanvaardt...")
        .arg(maxLength);
}

struct Outcome
{
    QList<int> results;
    int beeps = 0;
    QStringList prompts;
    QStringList notes;
};

Outcome outcomeOf(const RecordingPlatform &machine, const QList<int> &results)
{
    Outcome outcome;
    outcome.results = results;
    for (const ShownEvent &event : machine.shown()) {
        if (std::holds_alternative<BeepSounded>(event))
            ++outcome.beeps;
        else if (const auto *box = std::get_if<MessageBoxEShown>(&event)) {
            // Every refusal of the calculator's result has the same title and buttons.
            const bool calculatorBox = box->title == calculatorTitle && box->buttons == 48;
            outcome.prompts.append(calculatorBox ? box->prompt : QStringLiteral("another box"));
        } else if (const auto *note = std::get_if<NoteShown>(&event))
            outcome.notes.append(note->text);
    }
    return outcome;
}

// KeyGetal as a host calls it on a field: two decimals, negatives allowed.
int keyGetal(clsqorGenLib &lib, QObject *field, short &ka, bool flexgrid = false)
{
    QVariant decimals = 2;
    bool negNumber = true;
    return lib.KeyGetal(field, ka, decimals, negNumber, flexgrid).toInt();
}

} // namespace

// Key sequences typed into model fields through KeyGetal and KeyEuro, each
// key applied as a host applies the returned code.
class TestAmountKeys : public QObject
{
    Q_OBJECT

private slots:
    // One table for both handlers: KeyGetal rounds to its decimals and opens
    // the calculator on "*"; KeyEuro adds the VAT rates on "%".
    void amountKeys_data()
    {
        QTest::addColumn<QString>("handler");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("selStart");
        QTest::addColumn<int>("selLength");
        QTest::addColumn<int>("maxLength");
        QTest::addColumn<QVariant>("decimals");
        QTest::addColumn<bool>("negNumber");
        QTest::addColumn<double>("startRegister");
        QTest::addColumn<QVariantList>("answers");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("expectedText");
        QTest::addColumn<int>("expectedCaret");
        QTest::addColumn<QString>("results");
        QTest::addColumn<int>("beeps");
        QTest::addColumn<QString>("prompt");
        QTest::addColumn<int>("rate1");
        QTest::addColumn<int>("rate2");
        QTest::addColumn<QString>("note");
        QTest::addColumn<bool>("grid");
        const QVariant two = 2;
        const QVariant none = 0;
        const QVariant missing = missingVariant();
        const QVariantList noAnswers;
        // clang-format off
        QTest::newRow("digits and a comma") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << two << false << 0.0 << noAnswers << "12,34" << "12,34" << 5 << "49 50 44 51 52" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("point becomes the comma") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << two << false << 0.0 << noAnswers << "12.3" << "12,3" << 4 << "49 50 44 51" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("comma refused on a point system") << "KeyGetal" << "en_US" << "" << 0 << 0 << 0 << two << false << 0.0 << noAnswers << "12,3" << "123" << 3 << "49 50 0 51" << 1 << "" << 0 << 0 << "" << false;
        QTest::newRow("third decimal refused") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << two << false << 0.0 << noAnswers << "1,234" << "1,23" << 4 << "49 44 50 51 0" << 1 << "" << 0 << 0 << "" << false;
        QTest::newRow("full decimals refuse the integer part too") << "KeyGetal" << "nl_BE" << "12,34" << 0 << 0 << 0 << two << false << 0.0 << noAnswers << "5" << "12,34" << 0 << "0" << 1 << "" << 0 << 0 << "" << false;
        QTest::newRow("full decimals take backspace") << "KeyGetal" << "nl_BE" << "12,34" << 5 << 0 << 0 << two << false << 0.0 << noAnswers << "{BS}5" << "12,35" << 5 << "8 53" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("all selected lets a digit in") << "KeyGetal" << "nl_BE" << "12,34" << 0 << 5 << 0 << two << false << 0.0 << noAnswers << "5" << "5" << 1 << "53" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("part selected does not") << "KeyGetal" << "nl_BE" << "12,34" << 3 << 2 << 0 << two << false << 0.0 << noAnswers << "5" << "12,34" << 3 << "0" << 1 << "" << 0 << 0 << "" << false;
        QTest::newRow("separator first writes 0 and the separator") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << two << false << 0.0 << noAnswers << ".5" << "0,5" << 3 << "0 53" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("second separator refused") << "KeyGetal" << "nl_BE" << "1,2" << 3 << 0 << 0 << two << false << 0.0 << noAnswers << ",." << "1,2" << 3 << "0 0" << 2 << "" << 0 << 0 << "" << false;
        QTest::newRow("no decimals refuse enter and take backspace") << "KeyGetal" << "nl_BE" << "12" << 2 << 0 << 0 << none << false << 0.0 << noAnswers << "{Enter}{BS}" << "1" << 1 << "0 8" << 1 << "" << 0 << 0 << "" << false;
        QTest::newRow("no decimals refuse both separators") << "KeyGetal" << "nl_BE" << "12" << 2 << 0 << 0 << none << false << 0.0 << noAnswers << ",." << "12" << 2 << "0 0" << 2 << "" << 0 << 0 << "" << false;
        QTest::newRow("letters and quotes refused") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << two << false << 0.0 << noAnswers << "a'" << "" << 0 << "0 0" << 2 << "" << 0 << 0 << "" << false;
        QTest::newRow("codes outside the code page refused") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << two << false << 0.0 << noAnswers << "{-1}{0}{256}{32767}{-32768}" << "" << 0 << "0 0 0 0 0" << 5 << "" << 0 << 0 << "" << false;
        QTest::newRow("missing decimals take NbrDec 1") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << missing << false << 0.0 << noAnswers << "1,23" << "1,2" << 3 << "49 44 50 0" << 1 << "" << 0 << 0 << "" << false;
        QTest::newRow("minus toggles the sign wherever the caret") << "KeyGetal" << "nl_BE" << "12,50" << 1 << 0 << 0 << two << true << 0.0 << noAnswers << "-" << "-12,5" << 5 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("minus refused without negatives") << "KeyGetal" << "nl_BE" << "12,50" << 5 << 0 << 0 << two << false << 0.0 << noAnswers << "-" << "12,50" << 5 << "0" << 1 << "" << 0 << 0 << "" << false;
        QTest::newRow("minus over a selection of all") << "KeyGetal" << "nl_BE" << "12" << 0 << 2 << 0 << two << true << 0.0 << noAnswers << "-" << "-" << 1 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("minus on a word gives 0") << "KeyGetal" << "nl_BE" << "abc" << 3 << 0 << 0 << two << true << 0.0 << noAnswers << "-" << "0" << 1 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("minus drops grouping") << "KeyGetal" << "nl_BE" << "1.234,50" << 0 << 0 << 0 << two << true << 0.0 << noAnswers << "-" << "-1234,5" << 7 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("calculator result rounded to the decimals") << "KeyGetal" << "nl_BE" << "12" << 2 << 0 << 0 << two << false << 0.0 << QVariantList { 12.3456 } << "*" << "12,35" << 5 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("rounding takes halves away from zero") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << two << true << 0.0 << QVariantList { -0.125 } << "*" << "-0,13" << 5 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("no decimals round to whole") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << none << false << 0.0 << QVariantList { 2.5 } << "*" << "3" << 1 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("calculator left with escape inserts the start") << "KeyGetal" << "nl_BE" << "12,345" << 6 << 0 << 0 << two << false << 0.0 << QVariantList { QVariantMap { { "keys", "99{Esc}" } } } << "*" << "12,35" << 5 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("percent inserts the register as it is") << "KeyGetal" << "nl_BE" << "1" << 1 << 0 << 0 << two << false << 7.5 << noAnswers << "%" << "7,5" << 3 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("negative result refused") << "KeyGetal" << "nl_BE" << "1" << 1 << 0 << 0 << two << false << -5.0 << noAnswers << "%" << "1" << 1 << "0" << 0 << negativeRefused << 0 << 0 << "" << false;
        QTest::newRow("negative result taken") << "KeyGetal" << "nl_BE" << "1" << 1 << 0 << 0 << two << true << -5.0 << noAnswers << "%" << "-5" << 2 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("result longer than the field refused") << "KeyGetal" << "nl_BE" << "1" << 1 << 0 << 6 << two << false << 1234.56 << noAnswers << "%" << "1" << 1 << "0" << 0 << tooLong(6) << 0 << 0 << "" << false;
        QTest::newRow("result as long as the field taken") << "KeyGetal" << "nl_BE" << "1" << 1 << 0 << 7 << two << false << 1234.56 << noAnswers << "%" << "1234,56" << 7 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("huge result in the plain number form") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << two << false << 1e20 << noAnswers << "%" << "1E+20" << 5 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("huge decimals do not blow up") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << QVariant(2147483647) << false << 0.5 << noAnswers << "%1" << "0,51" << 4 << "0 49" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("grid cell editor") << "KeyGetal" << "nl_BE" << "" << 0 << 0 << 0 << two << false << 0.0 << noAnswers << "1.234" << "1,23" << 4 << "49 44 50 51 0" << 1 << "" << 0 << 0 << "" << true;
        QTest::newRow("grid caret follows the cell text") << "KeyGetal" << "nl_BE" << "1" << 1 << 0 << 0 << two << false << 42.0 << noAnswers << "%" << "42" << 0 << "0" << 0 << "" << 0 << 0 << "" << true;
        QTest::newRow("grid maximum length") << "KeyGetal" << "nl_BE" << "1" << 1 << 0 << 1 << two << false << 42.0 << noAnswers << "%" << "1" << 1 << "0" << 0 << tooLong(1) << 0 << 0 << "" << true;
        QTest::newRow("two decimals by default") << "KeyEuro" << "nl_BE" << "" << 0 << 0 << 0 << missing << false << 0.0 << noAnswers << "12.345" << "12,34" << 5 << "49 50 44 51 52 0" << 1 << "" << 0 << 0 << "" << false;
        QTest::newRow("decimals as text count as two") << "KeyEuro" << "nl_BE" << "" << 0 << 0 << 0 << QVariant("abc") << false << 0.0 << noAnswers << "1,234" << "1,23" << 4 << "49 44 50 51 0" << 1 << "" << 0 << 0 << "" << false;
        QTest::newRow("empty decimals count as two") << "KeyEuro" << "en_US" << "" << 0 << 0 << 0 << QVariant() << false << 0.0 << noAnswers << "1.234" << "1.23" << 4 << "49 46 50 51 0" << 1 << "" << 0 << 0 << "" << false;
        QTest::newRow("no decimals") << "KeyEuro" << "nl_BE" << "" << 0 << 0 << 0 << QVariant(0) << false << 0.0 << noAnswers << "1,2" << "12" << 2 << "49 0 50" << 1 << "" << 0 << 0 << "" << false;
        QTest::newRow("one rate applied at once") << "KeyEuro" << "nl_BE" << "" << 0 << 0 << 0 << missing << false << 0.0 << noAnswers << "100%" << "121" << 3 << "49 48 48 0" << 0 << "" << 2100 << 0 << " + 21 % BTW toevoegen " << false;
        QTest::newRow("second percent only beeps") << "KeyEuro" << "nl_BE" << "" << 0 << 0 << 0 << missing << false << 0.0 << noAnswers << "100%%" << "121" << 3 << "49 48 48 0 0" << 1 << "" << 2100 << 0 << " + 21 % BTW toevoegen " << false;
        QTest::newRow("rate rounded with grouping read back") << "KeyEuro" << "nl_BE" << "" << 0 << 0 << 0 << missing << false << 0.0 << noAnswers << "1234,5%" << "1493,75" << 7 << "49 50 51 52 44 53 0" << 0 << "" << 2100 << 0 << " + 21 % BTW toevoegen " << false;
        QTest::newRow("rate with decimals in the note") << "KeyEuro" << "nl_BE" << "" << 0 << 0 << 0 << missing << false << 0.0 << noAnswers << "10%" << "11,25" << 5 << "49 48 0" << 0 << "" << 1250 << 0 << " + 12,5 % BTW toevoegen " << false;
        QTest::newRow("only the second rate") << "KeyEuro" << "nl_BE" << "" << 0 << 0 << 0 << missing << false << 0.0 << noAnswers << "100%" << "106" << 3 << "49 48 48 0" << 0 << "" << 0 << 600 << " + 6 % BTW toevoegen " << false;
        QTest::newRow("no rate adds nothing") << "KeyEuro" << "nl_BE" << "" << 0 << 0 << 0 << missing << false << 0.0 << noAnswers << "100%" << "100" << 3 << "49 48 48 0" << 0 << "" << 0 << 0 << " + 0 % BTW toevoegen " << false;
        QTest::newRow("huge rate") << "KeyEuro" << "nl_BE" << "" << 0 << 0 << 0 << missing << false << 0.0 << noAnswers << "1%" << "214749,36" << 9 << "49 0" << 0 << "" << 2147483647 << 0 << " + 21474836,47 % BTW toevoegen " << false;
        QTest::newRow("both rates open the calculator") << "KeyEuro" << "nl_BE" << "" << 0 << 0 << 0 << missing << false << 0.0 << QVariantList { QVariantMap { { "keys", "{VAT2}{Insert}" } } } << "100%" << "106" << 3 << "49 48 48 0" << 0 << "" << 2100 << 600 << "" << false;
        QTest::newRow("star opens the calculator") << "KeyEuro" << "nl_BE" << "2" << 1 << 0 << 0 << missing << false << 0.0 << QVariantList { QVariantMap { { "keys", "x3,3333={Enter}" } } } << "*" << "6,67" << 4 << "0" << 0 << "" << 0 << 0 << "" << false;
        QTest::newRow("whole numbers keep no decimals") << "KeyEuro" << "en_US" << "5" << 1 << 0 << 0 << missing << false << 0.0 << QVariantList { 7.0 } << "*" << "7" << 1 << "0" << 0 << "" << 0 << 0 << "" << false;
        // clang-format on
    }
    void amountKeys()
    {
        QFETCH(QString, handler);
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QFETCH(QVariant, decimals);
        QFETCH(bool, negNumber);
        QFETCH(QVariantList, answers);
        QFETCH(QString, keys);
        QFETCH(QString, note);
        QFETCH(bool, grid);
        auto machine = test::installRecordingPlatform(locale);
        machine->setAnswers(answers);
        clsqorGenLib lib;
        lib.setProperty("NbrDec", 1);
        QFETCH(int, rate1);
        QFETCH(int, rate2);
        lib.setProperty("BtwTar1", rate1);
        lib.setProperty("BtwTar2", rate2);
        QFETCH(double, startRegister);
        modGenLib().calculatorRegister = startRegister;
        TextBox textBox;
        GridEditor editor;
        QObject *field = grid ? static_cast<QObject *>(&editor) : &textBox;
        const char *textName = grid ? "EditText" : "Text";
        const char *startName = grid ? "EditSelStart" : "SelStart";
        const char *lengthName = grid ? "EditSelLength" : "SelLength";
        const RegionalSettings rs;
        qor::setProperty(field, textName, text, rs);
        QFETCH(int, selStart);
        QFETCH(int, selLength);
        QFETCH(int, maxLength);
        qor::setProperty(field, startName, selStart, rs);
        qor::setProperty(field, lengthName, selLength, rs);
        qor::setProperty(field, grid ? "editMaxLength" : "MaxLength", maxLength, rs);
        const bool euro = handler == QLatin1String("KeyEuro");
        QList<int> results;
        for (int code : test::keyCodes(keys)) {
            short ka = short(code);
            QVariant given = decimals;
            bool flexgrid = grid;
            const int result = euro ? lib.KeyEuro(field, ka, given, negNumber).toInt()
                                    : lib.KeyGetal(field, ka, given, negNumber, flexgrid).toInt();
            results.append(result);
            // A decimals argument the handler cannot use is written back.
            if (euro && (!isNumeric(decimals, rs) || isEmpty(decimals)))
                QCOMPARE(given, QVariant::fromValue<short>(2));
            if (!euro && isMissing(decimals))
                QCOMPARE(given, QVariant(1));
            test::typeIntoModel(field, result, grid);
        }
        const Outcome outcome = outcomeOf(*machine, results);
        QTEST(getProperty(field, textName).toString(), "expectedText");
        QTEST(getProperty(field, startName).toInt(), "expectedCaret");
        if (euro)
            QCOMPARE(getProperty(field, lengthName).toInt(), 0);
        QTEST(test::codesText(outcome.results), "results");
        QTEST(outcome.beeps, "beeps");
        QTEST(outcome.prompts.join(QLatin1Char('|')), "prompt");
        QCOMPARE(outcome.notes.join(QLatin1Char('|')), note);
        if (!note.isEmpty())
            QVERIFY(!modGenLib().calculatorFlag);
    }

    void keyGetalWritesKeyCodes_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("result");
        QTest::addColumn<int>("ka");
        QTest::addColumn<bool>("digitTyped"); // the calculator's flag afterwards
        // clang-format off
        QTest::newRow("point rewritten to the comma") << "nl_BE" << "1" << 46 << 44 << 44 << false;
        QTest::newRow("refused digit path clears the key") << "nl_BE" << "1,23" << 52 << 0 << 0 << false;
        QTest::newRow("minus leaves the key") << "nl_BE" << "1" << 45 << 0 << 45 << false;
        QTest::newRow("a digit sets the flag") << "nl_BE" << "" << 55 << 55 << 55 << true;
        // clang-format on
    }
    void keyGetalWritesKeyCodes()
    {
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QFETCH(int, key);
        test::installRecordingPlatform(locale);
        clsqorGenLib lib;
        TextBox box;
        box.setText(text);
        box.setSelStart(int(text.size()));
        short ka = short(key);
        QTEST(keyGetal(lib, &box, ka), "result");
        QTEST(int(ka), "ka");
        QTEST(modGenLib().calculatorFlag, "digitTyped");
    }

    void overflowingVatIsAnError()
    {
        test::installRecordingPlatform(QStringLiteral("nl_BE"));
        clsqorGenLib lib;
        lib.setProperty("BtwTar1", 2147483647);
        TextBox box;
        box.setText(QStringLiteral("1E+305"));
        modGenLib().calculatorFlag = true;
        short ka = '%';
        QVariant decimals = 2;
        bool negNumber = false;
        QCOMPARE(test::errorNumber([&] { lib.KeyEuro(&box, ka, decimals, negNumber); }), 6);
        QCOMPARE(box.text(), QStringLiteral("1E+305"));
    }

    void aControlWithoutTheNamesRaises438()
    {
        test::installRecordingPlatform(QStringLiteral("nl_BE"));
        clsqorGenLib lib;
        QObject plain;
        short ka = '1';
        QCOMPARE(test::errorNumber([&] { keyGetal(lib, &plain, ka); }), 438);
        QCOMPARE(test::errorNumber([&] { keyGetal(lib, nullptr, ka); }), 91);
        TextBox box;
        ka = '%';
        QCOMPARE(test::errorNumber([&] { keyGetal(lib, &box, ka, true); }), 438);
    }

    void aMegabyteFieldStaysWhole()
    {
        test::installRecordingPlatform(QStringLiteral("nl_BE"));
        clsqorGenLib lib;
        TextBox box;
        const QString huge = QStringLiteral("1,") + QString(1 << 20, QLatin1Char('9'));
        box.setText(huge);
        short ka = '5';
        // Only exactly full decimals refuse a digit: a longer text takes one more.
        QCOMPARE(keyGetal(lib, &box, ka), 53);
        QCOMPARE(box.text(), huge);
        ka = '-';
        keyGetal(lib, &box, ka);
        QCOMPARE(box.text(), QStringLiteral("-2"));
    }
};

QTEST_GUILESS_MAIN(TestAmountKeys)
#include "tst_amountkeys.moc"
