#include "host/form.h"
#include "lib/clsqorgenlib.h"
#include "lib/frame/modgenlib.h"
#include "platform/recordingplatform.h"
#include "tools/qorgen/jsonwriter.h"
#include "tools/qorgen/recordwriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace qor;

namespace {

// Makes the platform record one kind of record, through the library where the
// library is what produces it.
void produce(RecordingPlatform &machine, const QString &kind, QObject *form)
{
    clsqorGenLib lib;
    if (kind == QLatin1String("InputBoxE"))
        lib.InputBoxE(QStringLiteral("Naam ?"), QStringLiteral("Klant"), QStringLiteral("Jan"), 8);
    else if (kind == QLatin1String("CalculatorHelp"))
        lib.ShowCalculator(12);
    else if (kind == QLatin1String("Note"))
        machine.showNote({ QStringLiteral("+ 21 %"), nullptr });
    else if (kind == QLatin1String("sound"))
        machine.playSound(QStringLiteral("/x/Ding.wav"), true);
    else if (kind == QLatin1String("onTop"))
        machine.keepOnTop(form, 0);
}

template <class Record> QJsonObject written(const Record &record)
{
    QByteArray text;
    JsonWriter out(text);
    if constexpr (std::is_same_v<Record, ShownEvent>)
        RecordWriter::writeShown(out, record);
    else
        RecordWriter::writeAction(out, record);
    return QJsonDocument::fromJson(text).object();
}

} // namespace

// Every record the platform keeps reaches the response whole: each field,
// with the lists and maps inside it, as the platform holds it. The message
// box and the program started are written out in full by the session test.
class TestRecordWriter : public QObject
{
    Q_OBJECT

private slots:
    void everyFieldOfEveryRecord_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QVariantList>("answers");
        const QVariantMap cancel { { "cancel", true } };
        // clang-format off
        QTest::newRow("input box cancelled, with its sound notice") << "InputBoxE" << QVariantList { cancel };
        QTest::newRow("calculator and its help card") << "CalculatorHelp" << QVariantList { QVariantMap { { "keys", "{Help}x5{Enter}" } } };
        QTest::newRow("VAT note") << "Note" << QVariantList {};
        QTest::newRow("looping sound") << "sound" << QVariantList {};
        QTest::newRow("form on top") << "onTop" << QVariantList {};
        // clang-format on
    }
    void everyFieldOfEveryRecord()
    {
        QFETCH(QString, kind);
        QFETCH(QVariantList, answers);
        auto machine = std::make_shared<RecordingPlatform>();
        const auto previous = Platform::install(machine);
        ModGenLib::reset();
        machine->setAnswers(answers);
        Form form; // outlives its record
        produce(*machine, kind, &form);
        Platform::install(previous);

        QStringList kinds;
        const auto check = [&](const auto &entry) {
            const QVariantMap record = RecordWriter::fields(entry);
            kinds.append(kindOf(entry));
            const QJsonObject json = written(entry);
            QCOMPARE(json.keys(), record.keys());
            for (auto it = record.begin(); it != record.end(); ++it) {
                const QJsonValue actual = json.value(it.key());
                // A host object is written whole, as the codec writes every object.
                const QJsonValue expected = it.value().typeId() == QMetaType::QObjectStar
                    ? QJsonValue(QStringLiteral("Form"))
                    : QJsonValue::fromVariant(it.value());
                const QJsonValue compared = it.value().typeId() == QMetaType::QObjectStar
                    ? actual.toObject().value("$object")
                    : actual;
                QVERIFY2(compared == expected,
                    qPrintable(kind + "." + it.key() + ": "
                        + QJsonDocument(QJsonArray { actual }).toJson(QJsonDocument::Compact)));
            }
        };
        for (const ShownEvent &entry : machine->shown())
            check(entry);
        for (const MachineAction &entry : machine->actions())
            check(entry);
        QVERIFY2(kinds.contains(kind), qPrintable(kinds.join(", ")));
    }
};

QTEST_GUILESS_MAIN(TestRecordWriter)
#include "tst_recordwriter.moc"
