#include "platform/recordingplatform.h"

#include <QTest>

using namespace qor;

namespace {

MessageBoxERequest okCancelBox()
{
    MessageBoxERequest request;
    request.prompt = QStringLiteral("p");
    request.buttons = { { QStringLiteral("cmdOK"), QStringLiteral("OK"), 1 },
        { QStringLiteral("cmdCancel"), QStringLiteral("Annuleren"), 2 } };
    request.resultForKey = [](const QString &key) {
        return key == QLatin1String("Enter") ? 1 : key == QLatin1String("Escape") ? 2 : 0;
    };
    request.resultForScan
        = [](const QString &scan) { return scan == QLatin1String("%[ANN]") ? 2 : 0; };
    return request;
}

} // namespace

// The answer scripts of the recording platform, which the qorgen tool hands its
// callers; what it records is read back by every other test that uses it.
class TestRecordingPlatform : public QObject
{
    Q_OBJECT

private slots:
    void messageBoxAnswers_data()
    {
        QTest::addColumn<QVariantList>("answers");
        QTest::addColumn<int>("result");
        QTest::addColumn<int>("left");
        // clang-format off
        QTest::newRow("default is enter") << QVariantList {} << 1 << 0;
        QTest::newRow("result number") << QVariantList { 2 } << 2 << 0;
        QTest::newRow("key") << QVariantList { "Escape" } << 2 << 0;
        QTest::newRow("swallowed key then next") << QVariantList { "Q", "Escape", 1 } << 2 << 1;
        QTest::newRow("only swallowed keys fall back to enter") << QVariantList { "Q" } << 1 << 0;
        QTest::newRow("scanner") << QVariantList { QVariantMap { { "scan", "%[ANN]" } } } << 2 << 0;
        // clang-format on
    }
    void messageBoxAnswers()
    {
        QFETCH(QVariantList, answers);
        RecordingPlatform machine;
        machine.setAnswers(answers);
        QTEST(machine.messageBoxE(okCancelBox()), "result");
        QTEST(int(machine.pendingAnswers().size()), "left");
        QCOMPARE(machine.shown().size(), 1);
    }

    void inputBoxTakesTypedTextCancelOrDefault()
    {
        RecordingPlatform machine;
        InputBoxERequest request;
        request.defaultValue = QStringLiteral("abc");
        request.maxLength = 4;
        machine.setAnswers({ QStringLiteral("123456"), QVariantMap { { "cancel", true } } });
        QCOMPARE(machine.inputBoxE(request).text, QStringLiteral("1234"));
        QVERIFY(machine.inputBoxE(request).cancelled);
        const InputBoxEAnswer byDefault = machine.inputBoxE(request);
        QVERIFY(!byDefault.cancelled);
        QCOMPARE(byDefault.text, QStringLiteral("abc"));
        QCOMPARE(machine.shown().size(), 3);
        QCOMPARE(std::get<InputBoxEShown>(machine.shown().at(0)).maxLength, 4);
    }
};

QTEST_GUILESS_MAIN(TestRecordingPlatform)
#include "tst_recordingplatform.moc"
