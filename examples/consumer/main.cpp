// A headless host: checks a bank account and reads an amount the way a
// Belgian user types it. Links the core library only (Qt Core, no screen).
#include <qorgenlib/lib/clsqorgenlib.h>
#include <qorgenlib/platform/coreplatform.h>
#include <qorgenlib/qorgenlib_version.h>
#include <qorgenlib/runtime/runtimeerror.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);

    // Pin the regional settings: "1.234,5" reads as 1234.5 whatever the machine's locale.
    auto machine = std::make_shared<qor::CorePlatform>();
    machine->setRegionalSettings(qor::RegionalSettings::fromLocale(QStringLiteral("nl_BE")));
    qor::Platform::install(machine);

    clsqorGenLib lib;
    QString account = QStringLiteral("000 0000000 97");
    const QString shown = lib.ControleerBankNr(account, false);
    const double amount = lib.CGetal(QStringLiteral("1.234,5")).toDouble();

    int overflow = 0;
    try {
        QString reference = QStringLiteral("999/9999/99999");
        lib.ControleerOGM(reference, false);
    } catch (const qor::RuntimeError &error) {
        overflow = error.number(); // travels to the host as in the classic library
    }

    std::printf("qorGenLib %s: %s %.1f %d\n", QORGENLIB_VERSION_STRING, qPrintable(shown), amount,
        overflow);
    const bool ok = shown == QLatin1String("000-0000000-97") && amount == 1234.5 && overflow == 6;
    return ok ? 0 : 1;
}
