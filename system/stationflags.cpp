#include "system/stationflags.h"

#include "platform/clock.h"
#include "runtime/conversion.h"
#include "system/settingsfile.h"

namespace qor {

namespace {

const QString settingsSection = QStringLiteral("qorSoft DLL");

QString twoDigits(int value)
{
    return QStringLiteral("%1").arg(value % 100, 2, 10, QLatin1Char('0'));
}

} // namespace

QString fieldExtOf(qint32 offset)
{
    static const char *const suffixes[] = { "NL", "FR", "UK", "DE", "ES", "IT" };
    const qint32 index = vbIntDiv(offset, 10000);
    if (index < 0 || index >= 6)
        return QString();
    return QLatin1String(suffixes[index]);
}

void setDebug(
    bool debugKlantPC, qint32 debugOffset, bool &klantPC, qint32 &offset, QString &fieldExt)
{
    if (getKlantPC())
        return;
    QString defaultFile;
    writeIni(settingsSection, QStringLiteral("DebugKlantPC"),
        debugKlantPC ? QStringLiteral("True") : QStringLiteral("False"), defaultFile);
    klantPC = debugKlantPC;
    if (!debugKlantPC) {
        writeIni(
            settingsSection, QStringLiteral("Offset"), QString::number(debugOffset), defaultFile);
        offset = debugOffset;
    }
    fieldExt = fieldExtOf(offset);
}

QString getTimerCode()
{
    const QDateTime now = Clock::current().now();
    const int day = now.date().day();
    return twoDigits(day * now.date().month()) + twoDigits(now.time().hour() + day);
}

} // namespace qor
