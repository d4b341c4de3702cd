#include "lib/clsqorgenlib.h"
#include "lib/clsqorgenlibdefaults.h"
#include "lib/typelibrary.h"
#include "runtime/coercion.h"
#include "runtime/runtimeerror.h"
#include "tests/common/recordingmachine.h"

#include <QMetaMethod>
#include <QTest>

#include <functional>

using namespace qor;

namespace {

// What one call leaves behind: its result, the arguments as written back,
// what the user was shown, or the run-time error it raised.
struct Outcome
{
    QVariant result;
    QVariantList arguments;
    QList<ShownEvent> shown;
    int error = 0;
    bool operator==(const Outcome &) const = default;
};

// The type of a parameter; moc knows a by-reference one by its name only.
QMetaType parameterType(const QMetaMethod &method, int i)
{
    const QMetaType type = method.parameterMetaType(i);
    if (type.isValid())
        return type;
    QByteArray plain = method.parameterTypeName(i);
    plain.chop(plain.endsWith('&') ? 1 : 0);
    return QMetaType::fromName(plain);
}

// The sample for parameter `index` in a round of calls: blank, wrong and
// well-formed texts, both Booleans, zero and non-zero numbers, so that the
// optional arguments matter. In the fourth round every Variant is an array,
// so that methods taking arrays (records, sorting) get past their argument
// checks to the code the defaults steer.
QVariant sampleFor(QMetaType type, int round, int index)
{
    static const QVariantList texts { QString(), QStringLiteral("123"),
        QStringLiteral("000-0000000-97"), QStringLiteral("12,5") };
    const int turn = round + index;
    switch (type.id()) {
    case QMetaType::QString: return texts.at(turn % texts.size());
    case QMetaType::QStringList: return QStringList { QStringLiteral("ab"), QStringLiteral("123") };
    case QMetaType::Bool: return turn % 2 == 0;
    case QMetaType::QVariant:
        return round == 3 ? QVariant(QVariantList { 2, 3 }) : texts.at((turn + 1) % texts.size());
    case QMetaType::QObjectStar: return QVariant::fromValue<QObject *>(nullptr);
    default: return turn % 3;
    }
}

// Calls a C++ overload that moc made for default arguments: the compiler
// fills in the C++ defaults.
QVariant callDirectly(clsqorGenLib &lib, const QMetaMethod &method, QVariantList &args)
{
    const RegionalSettings rs = platform().regionalSettings();
    QVariant result = method.returnMetaType().id() == QMetaType::Void
        ? QVariant()
        : QVariant(method.returnMetaType(), nullptr);
    QVariantList storage;
    QList<void *> argv { result.isValid() ? result.data() : nullptr };
    for (int i = 0; i < args.size(); ++i)
        storage.append(coerceTo(args.at(i), parameterType(method, i), rs));
    // A Variant parameter is passed as the QVariant itself, any other one as
    // the value a QVariant holds.
    for (int i = 0; i < storage.size(); ++i)
        argv.append(parameterType(method, i).id() == QMetaType::QVariant
                ? static_cast<void *>(&storage[i])
                : storage[i].data());
    lib.qt_metacall(QMetaObject::InvokeMetaMethod, method.methodIndex(), argv.data());
    args = storage;
    if (result.metaType().id() == QMetaType::QVariant)
        return *static_cast<const QVariant *>(result.constData());
    return result;
}

// A C++ overload that leaves out written-back arguments, called with the
// leading arguments its published method takes.
using Overload = std::function<QVariant(clsqorGenLib &, QVariantList &)>;

// What `call` leaves behind on a fresh object.
Outcome capture(const Overload &call, QVariantList args)
{
    auto machine = test::installRecordingPlatform(QStringLiteral("nl_BE"));
    Outcome outcome;
    try {
        clsqorGenLib lib;
        outcome.result = call(lib, args);
    } catch (const RuntimeError &error) {
        outcome.error = error.number();
    }
    outcome.arguments = args;
    outcome.shown = machine->shown();
    return outcome;
}

// Runs `call` in rounds of sample arguments for the first `given` parameters
// of `name`, and compares each with the late-bound call that leaves the rest out.
void compareWithLateBinding(const QString &name, qsizetype given, const Overload &call)
{
    const MethodInfo *info = clsqorGenLib::typeLibrary().findMethod(name);
    QVERIFY(info);
    for (int round = 0; round < 5; ++round) {
        QVariantList args;
        for (qsizetype i = 0; i < given; ++i)
            args.append(sampleFor(info->parameters.at(i).metaType, round, int(i)));
        const Outcome direct = capture(call, args);
        const Outcome late = capture(
            [&](clsqorGenLib &lib, QVariantList &a) { return lib.Invoke(name, a); }, args);
        QVERIFY2(direct == late, "round " + QByteArray::number(round));
    }
}

} // namespace

Q_DECLARE_METATYPE(Overload)

// A method called with its trailing optional arguments left out behaves the
// same through its C++ signature as through the published defaults, which
// late binding and the bridge fill in.
class TestPublishedDefaults : public QObject
{
    Q_OBJECT

private slots:
    void cppDefaultsAreThePublishedOnes_data()
    {
        QTest::addColumn<int>("methodIndex");
        const QMetaObject &meta = clsqorGenLib::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QMetaMethod method = meta.method(i);
            if (method.access() == QMetaMethod::Public
                && (method.attributes() & QMetaMethod::Cloned)
                && method.methodType() == QMetaMethod::Method)
                QTest::newRow(method.methodSignature().constData()) << i;
        }
    }

    void cppDefaultsAreThePublishedOnes()
    {
        QFETCH(int, methodIndex);
        const QMetaMethod method = clsqorGenLib::staticMetaObject.method(methodIndex);
        compareWithLateBinding(QString::fromLatin1(method.name()), method.parameterCount(),
            [&](clsqorGenLib &lib, QVariantList &args) { return callDirectly(lib, method, args); });
    }

    // Every row of the table is an optional parameter of a published method, and
    // the optional parameters of a method are its last ones.
    void everyDefaultIsATrailingPublishedParameter_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QString>("parameter");
        for (const PublishedDefault &entry : clsqorGenLibDefaults) {
            const QString method = QString::fromLatin1(entry.method.data(), entry.method.size());
            const QString parameter
                = QString::fromLatin1(entry.parameter.data(), entry.parameter.size());
            QTest::addRow("%s %s", qPrintable(method), qPrintable(parameter))
                << method << parameter;
        }
    }
    void everyDefaultIsATrailingPublishedParameter()
    {
        QFETCH(QString, method);
        QFETCH(QString, parameter);
        const MethodInfo *info = clsqorGenLib::typeLibrary().findMethod(method);
        QVERIFY(info);
        qsizetype place = -1;
        for (qsizetype i = 0; i < info->parameters.size(); ++i) {
            if (info->parameters.at(i).name == parameter)
                place = i;
        }
        QVERIFY(place >= 0);
        for (qsizetype i = place; i < info->parameters.size(); ++i)
            QVERIFY(info->parameters.at(i).optional);
    }

    // The C++ overloads that leave out written-back arguments fill in the
    // published defaults.
    void overloadsFillInThePublishedDefaults_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<int>("given");
        QTest::addColumn<Overload>("call");
        QTest::newRow("ControleerVAT without LandCode")
            << "ControleerVAT" << 2 << Overload([](clsqorGenLib &lib, QVariantList &a) {
                   QString vat = a[0].toString();
                   const QString result = lib.ControleerVAT(vat, a[1].toBool());
                   a[0] = vat;
                   return QVariant(result);
               });
        QTest::newRow("PlaySound without SoundDirectory")
            << "PlaySound" << 2 << Overload([](clsqorGenLib &lib, QVariantList &a) {
                   QString file = a[0].toString();
                   lib.PlaySound(file, a[1].toBool());
                   a[0] = file;
                   return QVariant();
               });
        QTest::newRow("GetExportData without formats")
            << "GetExportData" << 3 << Overload([](clsqorGenLib &lib, QVariantList &a) {
                   qint32 line = a[0].toInt();
                   QStringList data = a[1].toStringList();
                   const QVariant result = lib.GetExportData(line, data, a[2]);
                   a[0] = line;
                   a[1] = data;
                   return result;
               });
        QTest::newRow("SortArray without companion")
            << "SortArray" << 2 << Overload([](clsqorGenLib &lib, QVariantList &a) {
                   lib.SortArray(a[0], qorGenLib::OstSortOrder(a[1].toInt()));
                   return QVariant();
               });
        QTest::newRow("GetIni from the default file")
            << "GetIni" << 2 << Overload([](clsqorGenLib &lib, QVariantList &a) {
                   return QVariant(lib.GetIni(a[0].toString(), a[1].toString()));
               });
    }
    void overloadsFillInThePublishedDefaults()
    {
        QFETCH(QString, method);
        QFETCH(int, given);
        QFETCH(Overload, call);
        compareWithLateBinding(method, given, call);
    }
};

QTEST_GUILESS_MAIN(TestPublishedDefaults)
#include "tst_publisheddefaults.moc"
