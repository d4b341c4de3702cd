// GetExportData and GetImportData as a host calls them: the records they
// build and take apart, and every fault with its message and result.

#include "lib/clsqorgenlib.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"
#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QTest>

using namespace qor;
using namespace qor::test;

namespace {

const QString exportTitle = QStringLiteral("GetExportData");
const QString importTitle = QStringLiteral("GetImportData");
constexpr int critical = 16;

QVariant list(const QVariantList &values)
{
    return values;
}

QVariantMap exportBox(const QString &prompt)
{
    return messageBox(prompt, critical, exportTitle);
}

QVariantMap importBox(const QString &prompt)
{
    return messageBox(prompt, critical, importTitle);
}

// The run-time error a call raises, in place of the message it shows.
QVariantMap raises(RuntimeError::Number number)
{
    return { { QStringLiteral("error"), int(number) } };
}

QVariant fields(const QStringList &values)
{
    return QStringList(values) << QString();
}

} // namespace

class tst_RecordMethods : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> m_machine;

private slots:
    void init() { m_machine = installRecordingPlatform(QStringLiteral("en_US")); }

    void exportData_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("lineNumber");
        QTest::addColumn<QStringList>("data");
        QTest::addColumn<QVariant>("widths");
        QTest::addColumn<QVariant>("formats"); // Empty: left out
        QTest::addColumn<bool>("addChecksum");
        QTest::addColumn<QVariant>("separator");
        QTest::addColumn<QVariant>("record");
        QTest::addColumn<QVariantMap>("message"); // or the run-time error raised

        const QStringList ab7 { "AB", "7" };
        const QVariant w43 = list({ 4, 3 });
        const QVariant f00 = list({ "", "0.00" });
        const QVariant blank(" ");
        const QVariant none;
        // clang-format off
        QTest::newRow("number cut on the left, point decimals") << "en_US" << 12 << ab7 << w43 << f00 << true << blank << QVariant("000012 AB   .00 B4") << QVariantMap();
        QTest::newRow("line number 0: no prefix") << "en_US" << 0 << ab7 << w43 << f00 << true << blank << QVariant("AB   .00 71") << QVariantMap();
        QTest::newRow("no checksum: ends with the last field") << "en_US" << 12 << ab7 << w43 << f00 << false << blank << QVariant("000012 AB   .00") << QVariantMap();
        QTest::newRow("other separator also in front of the checksum") << "en_US" << 12 << ab7 << w43 << f00 << true << QVariant(";") << QVariant("000012 AB  ;.00;CF") << QVariantMap();
        QTest::newRow("longer separator") << "en_US" << 1 << ab7 << w43 << none << false << QVariant(" | ") << QVariant("000001 AB   | 7  ") << QVariantMap();
        QTest::newRow("Null separator joins the fields") << "en_US" << 1 << ab7 << w43 << none << false << nullVariant() << QVariant("000001 AB  7  ") << QVariantMap();
        QTest::newRow("number as separator") << "en_US" << 1 << ab7 << w43 << none << false << QVariant(0) << QVariant("000001 AB  07  ") << QVariantMap();
        QTest::newRow("line number of seven digits") << "en_US" << 1234567 << ab7 << w43 << f00 << false << blank << QVariant("1234567 AB   .00") << QVariantMap();
        QTest::newRow("no formats: numbers aligned left") << "en_US" << 1 << QStringList { "7", "12345" } << w43 << none << false << blank << QVariant("000001 7    123") << QVariantMap();
        QTest::newRow("Empty and Null masks: text") << "en_US" << 1 << QStringList { "7", "7" } << w43 << list({ QVariant(), nullVariant() }) << false << blank << QVariant("000001 7    7  ") << QVariantMap();
        QTest::newRow("mask on text that is no number") << "en_US" << 1 << QStringList { "x7", "abcd" } << w43 << list({ "0.00", "0.00" }) << false << blank << QVariant("000001 x7   abc") << QVariantMap();
        QTest::newRow("formatted number padded in front") << "en_US" << 1 << QStringList { "1", "2.5" } << list({ 6, 5 }) << list({ "0.00", "#,##0" }) << false << blank << QVariant("000001   1.00     3") << QVariantMap();
        QTest::newRow("grouping under comma decimals") << "nl_BE" << 1 << QStringList { "Café", "1234,5" } << list({ 5, 8 }) << list({ "", "#,##0.00" }) << true << blank << QVariant("000001 Café  1.234,50 FD") << QVariantMap();
        QTest::newRow("text cut on the right") << "en_US" << 0 << QStringList { "ABCDEFG" } << list({ 4 }) << none << false << blank << QVariant("ABCD") << QVariantMap();
        QTest::newRow("width 0: empty field") << "en_US" << 0 << QStringList { "A", "B" } << list({ 0, 1 }) << none << false << blank << QVariant(" B") << QVariantMap();
        QTest::newRow("widths as text and Doubles, rounded to even") << "en_US" << 0 << QStringList { "ABCDEF", "ABCDEF", "ABCDEF" } << list({ "2", 2.5, 3.5 }) << none << false << QVariant("|") << QVariant("AB|AB|ABCD") << QVariantMap();
        QTest::newRow("widths as an array of texts") << "en_US" << 0 << QStringList { "ABCDEF" } << QVariant(QStringList { "3" }) << none << false << blank << QVariant("ABC") << QVariantMap();
        QTest::newRow("no fields at all") << "en_US" << 12 << QStringList() << list({}) << none << true << blank << QVariant("000012  43") << QVariantMap();

        QTest::newRow("text width: the conversion error") << "en_US" << 12 << ab7 << list({ 4, "x" }) << none << true << blank << none << raises(RuntimeError::TypeMismatch);
        QTest::newRow("Null width") << "en_US" << 12 << ab7 << list({ nullVariant(), 3 }) << none << true << blank << none << raises(RuntimeError::InvalidUseOfNull);
        QTest::newRow("negative width") << "en_US" << 12 << ab7 << list({ -1, 3 }) << none << true << blank << none << raises(RuntimeError::InvalidProcedureCall);
        QTest::newRow("width beyond 32 bits") << "en_US" << 12 << ab7 << list({ 3e9, 3 }) << none << true << blank << none << raises(RuntimeError::Overflow);
        QTest::newRow("record beyond memory") << "en_US" << 12 << ab7 << list({ 2000000000, 3 }) << none << true << blank << none << raises(RuntimeError::OutOfMemory);
        QTest::newRow("widths no array") << "en_US" << 12 << ab7 << QVariant(4) << f00 << true << blank << QVariant() << exportBox("arrFieldLength is geen geldige array !");
        QTest::newRow("more widths than data") << "en_US" << 12 << ab7 << list({ 4, 3, 2 }) << f00 << true << blank << QVariant() << exportBox("Het aantal elementen in arrFieldLength stemt niet overeen met het aantal elementen in Data !\r\rarrFieldLength = 2\rData = 1");
        QTest::newRow("formats no array") << "en_US" << 12 << ab7 << w43 << QVariant("0.00") << true << blank << QVariant() << exportBox("De variable arrFormat is geen geldige Array !");
        QTest::newRow("fewer formats than data") << "en_US" << 12 << ab7 << w43 << list({ "" }) << true << blank << QVariant() << exportBox("Het aantal elementen in arrFormat stemt niet overeen met het aantal elementen in Data !\r\rarrFormat = 0\rData = 1");
        QTest::newRow("widths checked before formats") << "en_US" << 12 << ab7 << QVariant("x") << QVariant("y") << true << blank << QVariant() << exportBox("arrFieldLength is geen geldige array !");
        // clang-format on
    }

    void exportData()
    {
        QFETCH(QString, locale);
        QFETCH(int, lineNumber);
        QFETCH(QStringList, data);
        QFETCH(QVariant, widths);
        QFETCH(QVariant, formats);
        QFETCH(bool, addChecksum);
        QFETCH(QVariant, separator);
        QFETCH(QVariant, record);

        m_machine->setLocale(locale);
        clsqorGenLib lib;
        qint32 number = lineNumber;
        QVariant result;
        const int error = errorNumber([&] {
            result = lib.GetExportData(number, data, widths, formats, addChecksum, separator);
        });
        QCOMPARE(varTypeName(result), varTypeName(record));
        QCOMPARE(result, record);
        QTEST(error ? raises(RuntimeError::Number(error)) : onlyMessage(*m_machine), "message");
        QVERIFY(!error || m_machine->shown().isEmpty());
        QCOMPARE(number, lineNumber);
    }

    void importData_data()
    {
        QTest::addColumn<QString>("record");
        QTest::addColumn<QVariant>("widths");
        QTest::addColumn<bool>("lineNumberIncluded");
        QTest::addColumn<bool>("checkSumIncluded");
        QTest::addColumn<QVariant>("result");
        QTest::addColumn<QVariantMap>("message"); // or the run-time error raised

        const QVariant w43 = list({ 4, 3 });
        const QVariant checksumFault = integerVariant(-4);
        const QVariant delimiterFault = integerVariant(-6);
        // clang-format off
        QTest::newRow("record with number and checksum") << "000012 AB   .00 B4" << w43 << true << true << fields({ "AB", ".00" }) << QVariantMap();
        QTest::newRow("no line number") << "AB   .00 71" << w43 << false << true << fields({ "AB", ".00" }) << QVariantMap();
        QTest::newRow("blanks around the data trimmed, tabs kept") << "000001  \tA   x" << list({ 5, 1 }) << true << false << fields({ "\tA", "x" }) << QVariantMap();
        QTest::newRow("characters beyond the fields not read") << "000012 AB   .00 and more" << w43 << true << false << fields({ "AB", ".00" }) << QVariantMap();
        QTest::newRow("last field missing") << "000012 AB   " << w43 << true << false << fields({ "AB", "" }) << QVariantMap();
        QTest::newRow("no fields") << "000012  43" << list({}) << true << true << fields({}) << QVariantMap();
        QTest::newRow("width 0") << " B" << list({ 0, 1 }) << false << false << fields({ "", "B" }) << QVariantMap();
        QTest::newRow("line number read with blanks") << "  12   AB   .00" << w43 << true << false << fields({ "AB", ".00" }) << QVariantMap();
        QTest::newRow("a huge width: the record runs out") << "AB" << list({ 2147483647 }) << false << false << fields({ "AB" }) << QVariantMap();

        QTest::newRow("text width: the conversion error") << "AB   7  " << list({ 4, "x" }) << false << false << QVariant() << raises(RuntimeError::TypeMismatch);
        QTest::newRow("wrong checksum") << "000012 AB   .00 B5" << w43 << true << true << checksumFault << importBox("Ongeldige CheckSum  in Regel 000012  !");
        QTest::newRow("wrong checksum, no line number") << "AB   .00 72" << w43 << false << true << checksumFault << importBox("Ongeldige CheckSum  in InputRecord ''AB   .00 72''  !");
        QTest::newRow("no blank in front of the checksum") << "000012 AB   .0;B4" << w43 << true << true << checksumFault << importBox("Ongeldige CheckSum  in Regel 000012  !");
        QTest::newRow("record of two characters") << "B4" << w43 << true << true << checksumFault << importBox("Ongeldige CheckSum  in Regel B4  !");
        QTest::newRow("empty record") << "" << w43 << false << true << checksumFault << importBox("Ongeldige CheckSum  in InputRecord ''''  !");
        QTest::newRow("line number not numeric") << "00001A AB   .00" << w43 << true << false << checksumFault << importBox("Ongeldige LineNumber/Spatie in Regel 00001A  !");
        QTest::newRow("line number of seven digits") << "1234567 AB   .00" << w43 << true << false << checksumFault << importBox("Ongeldige LineNumber/Spatie in Regel 123456  !");
        QTest::newRow("record shorter than the line number") << "000012" << w43 << true << false << checksumFault << importBox("Ongeldige LineNumber/Spatie in Regel 000012  !");
        QTest::newRow("no blank between fields") << "000012 ABCDE.00" << w43 << true << false << delimiterFault << importBox("Ongeldige Delimiter Space(1) op Positie 12 in Line 12  !");
        QTest::newRow("no blank, no line number") << "ABCDE.00" << w43 << false << false << delimiterFault << importBox("Ongeldige Delimiter Space(1) op Positie 5 in InputRecord ''ABCDE.00''  !");
        QTest::newRow("record shorter than its fields") << "000012 AB" << w43 << true << false << delimiterFault << importBox("Ongeldige Delimiter Space(1) op Positie 12 in Line 12  !");
        QTest::newRow("third delimiter") << "AB C D" << list({ 2, 1, 1, 1 }) << false << false << delimiterFault << importBox("Ongeldige Delimiter Space(1) op Positie 7 in InputRecord ''AB C D''  !");
        QTest::newRow("two huge widths: the delimiter beyond the Long range") << "AB" << list({ 2147483647, 2147483647 }) << false << false << delimiterFault << importBox("Ongeldige Delimiter Space(1) op Positie 2147483648 in InputRecord ''AB''  !");
        QTest::newRow("widths no array") << "000012 AB   .00 B4" << QVariant(4) << true << true << delimiterFault << importBox("arrFieldLength is geen geldige array !");
        QTest::newRow("delimiter found before a bad width") << "ABCD" << list({ 2, "x" }) << false << false << delimiterFault << importBox("Ongeldige Delimiter Space(1) op Positie 3 in InputRecord ''ABCD''  !");
        QTest::newRow("checksum found before a bad width") << "AB 00" << list({ "x" }) << false << true << checksumFault << importBox("Ongeldige CheckSum  in InputRecord ''AB 00''  !");
        // clang-format on
    }

    void importData()
    {
        QFETCH(QString, record);
        QFETCH(QVariant, widths);
        QFETCH(bool, lineNumberIncluded);
        QFETCH(bool, checkSumIncluded);
        QFETCH(QVariant, result);

        clsqorGenLib lib;
        QVariant read;
        const int error = errorNumber([&] {
            read = lib.GetImportData(record, widths, lineNumberIncluded, checkSumIncluded);
        });
        QCOMPARE(varTypeName(read), varTypeName(result));
        QCOMPARE(read, result);
        QTEST(error ? raises(RuntimeError::Number(error)) : onlyMessage(*m_machine), "message");
        QVERIFY(!error || m_machine->shown().isEmpty());
    }

    // The host's paragraph break and language.
    void objectProperties()
    {
        clsqorGenLib lib;
        lib.setProperty("vbCr2", QStringLiteral("\r\n\r\n"));
        lib.setProperty("Offset", 10000);
        qint32 lineNumber = 1;
        QStringList data { "A" };
        QVariant widths = list({ 1, 2 });
        QVariant formats;
        QCOMPARE(lib.GetExportData(lineNumber, data, widths, formats), QVariant());
        QCOMPARE(onlyMessage(*m_machine),
            exportBox(QString::fromUtf8(
                "Le nombre d'éléments de arrFieldLength ne correspond pas "
                "au nombre d'éléments de Data !\r\n\r\narrFieldLength = 1\rData = 0")));
        m_machine->clearRecords();
        lib.setProperty("Offset", 30000);
        QCOMPARE(lib.GetImportData(QStringLiteral("x"), widths), integerVariant(-4));
        QCOMPARE(
            onlyMessage(*m_machine), importBox(QStringLiteral(" [LL 31223 ?]  [LL 31224 ?] x  !")));
    }
};

QTEST_GUILESS_MAIN(tst_RecordMethods)
#include "tst_recordmethods.moc"
