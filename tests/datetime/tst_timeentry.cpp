#include "datetimetest.h"

#include "datetime/timeentry.h"
#include "tests/common/errornumber.h"

#include <QTest>

using namespace qor;
using test::installDateMachine;

namespace {

const QString cr2 = QString(2, QChar(13));
const QString dutchTimeMessage
    = QStringLiteral("Ongeldig Uur...  Gebruik één van volgende schrijfwijzes :") + cr2
    + QStringLiteral("Bvb :    830   0830   8:30   08:30");

} // namespace

class TestTimeEntry : public QObject
{
    Q_OBJECT

private slots:
    // The same typing under nl_BE (the clock writes 08:30:00) and en_US
    // (8:30:00 AM: the separator is found at the 2nd place).
    void controleerUur_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<bool>("moreThan24");
        QTest::addColumn<QString>("twoDigitHours"); // result with ReturnHHMM True
        QTest::addColumn<QString>("oneDigitHours"); // with ReturnHHMM False
        QTest::addColumn<QString>("after"); // Uur with ReturnHHMM True
        QTest::addColumn<int>("error"); // raised by both calls
        // clang-format off
        QTest::newRow("three digits") << "830" << false << "08:30" << "8:30" << "08:30" << 0;
        QTest::newRow("letter h") << "8h30" << false << "08:30" << "8:30" << "08:30" << 0;
        QTest::newRow("blank inside, trimmed outside") << "  8 30  " << false << "08:30" << "8:30" << "08:30" << 0;
        QTest::newRow("one digit is minutes") << "8" << false << "00:08" << "0:08" << "00:08" << 0;
        QTest::newRow("last minute of the day") << "2359" << false << "23:59" << "23:59" << "23:59" << 0;
        QTest::newRow("24 hours refused") << "2400" << false << "" << "" << "24:00" << 0;
        QTest::newRow("24 hours allowed") << "2400" << true << "24:00" << "24:00" << "24:00" << 0;
        QTest::newRow("five digits allowed") << "12345" << true << "123:45" << "123:45" << "123:45" << 0;
        QTest::newRow("minutes 60") << "860" << false << "" << "" << "08:60" << 0;
        QTest::newRow("minutes 59") << "859" << false << "08:59" << "8:59" << "08:59" << 0;
        QTest::newRow("one digit behind the separator") << "8:5" << false << "" << "" << "8:5" << 0;
        QTest::newRow("seconds") << "8:30:00" << false << "" << "" << "8:30:00" << 0;
        QTest::newRow("doubled separator") << "1::30" << false << "" << "" << "1::30" << 0;
        QTest::newRow("separator at the end") << "8:3:" << false << "" << "" << "08:3:" << 0;
        QTest::newRow("separator alone") << ":" << false << "" << "" << ":" << 0;
        QTest::newRow("letters pass the place test, not the count") << "abc" << false << "" << "" << "00:::" << 0;
        QTest::newRow("negative is no sign") << "-830" << false << "" << "" << ":830" << 0;
        QTest::newRow("blanks") << "    " << false << "" << "" << "" << 0;
        QTest::newRow("a Long of hours still fits") << "214748364700" << true << "2147483647:00" << "2147483647:00" << "2147483647:00" << 0;
        QTest::newRow("hours beyond a Long overflow") << "214748364800" << true << "" << "" << "" << 6;
        QTest::newRow("a megabyte of letters ends at once") << QString(1 << 20, 'x') << false << "" << "" << QString(1 << 20, ':') << 0;
        // clang-format on
    }
    void controleerUur()
    {
        QFETCH(QString, input);
        QFETCH(bool, moreThan24);
        QFETCH(QString, twoDigitHours);
        QFETCH(int, error);
        for (const QString &locale : { QStringLiteral("nl_BE"), QStringLiteral("en_US") }) {
            const auto machine = installDateMachine(locale);
            clsqorGenLib lib;
            QVariantList args { input, true, moreThan24 };
            QVariant result;
            QCOMPARE(test::errorNumber(
                         [&] { result = lib.Invoke(QStringLiteral("ControleerUur"), args); }),
                error);
            if (error != 0)
                continue;
            QCOMPARE(result.toString(), twoDigitHours);
            QTEST(args.first().toString(), "after");
            const bool blank = input.trimmed().isEmpty();
            QCOMPARE(test::onlyMessage(*machine),
                twoDigitHours.isEmpty() && !blank
                    ? test::messageBox(dutchTimeMessage, 48, QStringLiteral("Fout !"))
                    : QVariantMap());

            QString uur = input;
            QTEST(lib.ControleerUur(uur, true, moreThan24, false), "oneDigitHours");
        }
    }

    void separatorOfTheSystemTime_data()
    {
        QTest::addColumn<QString>("timeText");
        QTest::addColumn<QString>("separator");
        // clang-format off
        QTest::newRow("points") << "08.30.00" << ".";
        QTest::newRow("no separator") << "083000" << "";
        QTest::newRow("too short") << "8" << "";
        // clang-format on
    }
    void separatorOfTheSystemTime()
    {
        QFETCH(QString, timeText);
        QTEST(timeSeparatorOf(timeText), "separator");
    }

    // With no separator it counts as found at the first place: only three
    // characters pass the positional test.
    void withoutSeparator_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("result");
        QTest::addColumn<bool>("refused");
        // clang-format off
        QTest::newRow("three digits") << "830" << "00830" << false;
        QTest::newRow("four digits") << "0830" << "" << true;
        QTest::newRow("a dropped point leaves the digits") << "8.30" << "00830" << false;
        QTest::newRow("a dropped letter passes over the next character") << "h.30" << "00.30" << false;
        QTest::newRow("letters vanish") << "hh" << "" << true;
        // clang-format on
    }
    void withoutSeparator()
    {
        QFETCH(QString, input);
        bool refused = false;
        QString uur = input;
        QTEST(readTimeEntry(uur, QString(), {}, refused), "result");
        QTEST(refused, "refused");
    }

    void getTime_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("result");
        // clang-format off
        QTest::newRow("seconds dropped") << "17:05:59" << "#17:05#";
        QTest::newRow("a literal stays") << "#08:30#" << "#08:30#";
        QTest::newRow("a lone hash is its own literal") << "#" << "#";
        QTest::newRow("empty") << "" << "";
        // clang-format on
    }
    void getTime()
    {
        QFETCH(QString, input);
        QFETCH(QString, result);
        const auto machine = installDateMachine(QStringLiteral("nl_BE"));
        clsqorGenLib lib;
        QVariantList args { input };
        QCOMPARE(lib.Invoke(QStringLiteral("GetTime"), args).toString(), result);
        QCOMPARE(test::onlyMessage(*machine),
            result.isEmpty() ? test::messageBox(
                QStringLiteral("Invalid time ") + input + QStringLiteral(" for GetTime ..."), 16,
                QStringLiteral("qorSoft General Library"))
                             : QVariantMap());
    }
};

QTEST_GUILESS_MAIN(TestTimeEntry)
#include "tst_timeentry.moc"
