#include "datetimetest.h"

#include "datetime/dateentry.h"

#include <QTest>

using namespace qor;
using test::installDateMachine;

namespace {

const QString cr2 = QString(2, QChar(13));

QString dutchNotationMessage(const QString &six, const QString &pattern, const QString &four)
{
    return QStringLiteral("Datum Ongeldig.  Gebruik één van volgende schrijfwijzes :") + cr2 + six
        + QStringLiteral("  of  ") + pattern + QStringLiteral("  of  ") + four;
}

} // namespace

class TestDateEntry : public QObject
{
    Q_OBJECT

private slots:
    // The same typing under day-first (nl_BE) and month-first (en_US) settings, with the
    // clock at 15 March 2024 and the usual or another window; the message of a refused
    // date comes in the object's language and the notation of the system.
    void controleerDatum_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QVariant>("allowFuture"); // invalid: not passed
        QTest::addColumn<QString>("result");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("prompt"); // of the message shown, "" when none is
        QTest::addColumn<QString>("title");
        QTest::addColumn<int>("window"); // the last year two digits stand for; 0: the usual
        QTest::addColumn<int>("offset"); // the language
        const QString nl = QStringLiteral("nl_BE");
        const QString us = QStringLiteral("en_US");
        const QVariant missing;
        const QString nlNotation = dutchNotationMessage("DDMMJJ", "DD/MM/JJ", "DD/MM/JJJJ");
        const QString inFuture = QStringLiteral("Datum in toekomst niet toegestaan.");
        const QString fout = QStringLiteral("Fout !");
        // clang-format off
        QTest::newRow("blanks are emptied without a word") << nl << "     " << missing << "" << "" << "" << "" << 0 << 0;
        QTest::newRow("tab is no blank and no date") << nl << "\t" << missing << "" << "\t" << nlNotation << fout << 0 << 0;
        QTest::newRow("six digits month first") << us << "123199" << missing << "12/31/1999" << "12/31/1999" << "" << "" << 0 << 0;
        QTest::newRow("30 is the pivot") << nl << "010130" << missing << "1/01/1930" << "1/01/1930" << "" << "" << 0 << 0;
        QTest::newRow("29 lies after today") << nl << "010129" << missing << "" << "1/01/2029" << inFuture << fout << 0 << 0;
        QTest::newRow("29 allowed in the future") << nl << "010129" << QVariant(true) << "1/01/2029" << "1/01/2029" << "" << "" << 0 << 0;
        QTest::newRow("2000 is a leap year") << nl << "290200" << missing << "29/02/2000" << "29/02/2000" << "" << "" << 0 << 0;
        QTest::newRow("2003 is not a leap year") << nl << "290203" << missing << "" << "290203" << nlNotation << fout << 0 << 0;
        QTest::newRow("April has 30 days") << nl << "310400" << missing << "" << "310400" << nlNotation << fout << 0 << 0;
        QTest::newRow("December has 31 days") << nl << "321200" << missing << "" << "321200" << nlNotation << fout << 0 << 0;
        QTest::newRow("month 13") << nl << "011300" << missing << "" << "011300" << nlNotation << fout << 0 << 0;
        QTest::newRow("day 0 rolls back a day") << nl << "001200" << missing << "30/11/2000" << "30/11/2000" << "" << "" << 0 << 0;
        QTest::newRow("month 0 rolls back a month") << nl << "010000" << missing << "1/12/1999" << "1/12/1999" << "" << "" << 0 << 0;
        QTest::newRow("five digits") << nl << "12345" << missing << "" << "12345" << nlNotation << fout << 0 << 0;
        QTest::newRow("a letter among six") << nl << "12a456" << missing << "" << "12a456" << nlNotation << fout << 0 << 0;
        QTest::newRow("slashes, two-digit year") << nl << "1/2/03" << missing << "1/02/2003" << "1/02/2003" << "" << "" << 0 << 0;
        QTest::newRow("German points") << "de_DE" << "1.2.03" << missing << "01.02.2003" << "01.02.2003" << "" << "" << 0 << 0;
        QTest::newRow("day and month are this year") << nl << "1/2" << missing << "1/02/2024" << "1/02/2024" << "" << "" << 0 << 0;
        QTest::newRow("blanks between") << nl << "1 2 2003" << missing << "1/02/2003" << "1/02/2003" << "" << "" << 0 << 0;
        QTest::newRow("today is not the future") << nl << "15/03/2024" << missing << "15/03/2024" << "15/03/2024" << "" << "" << 0 << 0;
        QTest::newRow("tomorrow is") << nl << "16/03/2024" << missing << "" << "16/03/2024" << inFuture << fout << 0 << 0;
        QTest::newRow("day and month 0 with separators") << nl << "00/00/00" << missing << "" << "00/00/00" << nlNotation << fout << 0 << 0;
        QTest::newRow("year 9999 allowed") << nl << "31/12/9999" << QVariant(true) << "31/12/9999" << "31/12/9999" << "" << "" << 0 << 0;
        QTest::newRow("a time alone is the zero date, shown as a time") << nl << "8:30" << missing << "00:00:00" << "00:00:00" << "" << "" << 0 << 0;
        QTest::newRow("window to 2049: 50 is 1950") << nl << "010150" << missing << "1/01/1950" << "1/01/1950" << "" << "" << 2049 << 0;
        QTest::newRow("window to 1999: 00 is 1900") << nl << "010100" << missing << "1/01/1900" << "1/01/1900" << "" << "" << 1999 << 0;
        QTest::newRow("window to 1999: 1900 is no leap year") << nl << "290200" << missing << "" << "290200" << nlNotation << fout << 1999 << 0;
        QTest::newRow("all in the 2000s: the pivot falls back to 67") << nl << "010167" << missing << "1/01/1967" << "1/01/1967" << "" << "" << 2099 << 0;
        QTest::newRow("all in the 2000s: 66 is 2066") << nl << "010166" << QVariant(true) << "1/01/2066" << "1/01/2066" << "" << "" << 2099 << 0;
        QTest::newRow("Dutch notation with points") << "de_DE" << "31/31/31" << missing << "" << "31/31/31" << dutchNotationMessage("DDMMJJ", "DD.MM.JJ", "DD.MM.JJJJ") << fout << 0 << 0;
        QTest::newRow("French notation, day first") << "fr_BE" << "31/31/31" << missing << "" << "31/31/31" << QStringLiteral("Date non valable.  Utilisez une des notations suivantes :") + cr2 + "JJMMAA  ou  JJ/MM/AA  ou  JJ/MM/AAAA" << "Erreur !" << 0 << 10000;
        QTest::newRow("English notation, month first") << "en_US" << "31/31/31" << missing << "" << "31/31/31" << QStringLiteral("Invalid Date.  Use one of the following notations :") + cr2 + "MMDDYY  or  MM/DD/YY  or  MM/DD/YYYY" << "Error !" << 0 << 20000;
        // clang-format on
    }
    void controleerDatum()
    {
        QFETCH(QString, locale);
        QFETCH(QString, input);
        QFETCH(QVariant, allowFuture);
        QFETCH(QString, prompt);
        QFETCH(QString, title);
        QFETCH(int, window);
        QFETCH(int, offset);
        const auto machine = installDateMachine(locale, test::fixedNow, window);
        clsqorGenLib lib;
        lib.setProperty("Offset", offset);
        QVariantList args { input };
        if (allowFuture.isValid())
            args.append(allowFuture);
        QTEST(lib.Invoke(QStringLiteral("ControleerDatum"), args).toString(), "result");
        QTEST(args.first().toString(), "after");
        QCOMPARE(test::onlyMessage(*machine),
            prompt.isEmpty() ? QVariantMap() : test::messageBox(prompt, 48, title));

        // Without MBox the same answer comes without a word.
        machine->clearRecords();
        QVariantList quiet { input, allowFuture.isValid() ? allowFuture : QVariant(false), false };
        QTEST(lib.Invoke(QStringLiteral("ControleerDatum"), quiet).toString(), "result");
        QVERIFY(machine->shown().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestDateEntry)
#include "tst_dateentry.moc"
