#include "input/scanbm.h"

#include "lib/frame/catalogue.h"
#include "lib/frame/modgenlib.h"
#include "platform/clock.h"
#include "platform/dialogpresenter.h"
#include "runtime/callbyname.h"
#include "runtime/codepage.h"

namespace qor {

namespace {

constexpr qint32 formatMismatchText = 1003;
constexpr qint32 scannedCodeText = 1004;
constexpr qint32 formatText = 1005;
constexpr int criticalIcon = 16;
constexpr int exclamationIcon = 48;

const QString paragraph = QStringLiteral("\r\r");
const QString eightBlanks = QStringLiteral("        ");
const QString okCode = QStringLiteral("%[OK]");
const QString cancelCode = QStringLiteral("%[ANN]");

void report(bool mbox, const QString &prompt, int style, const QString &title)
{
    if (mbox)
        DialogPresenter::current().systemMessageBox({ prompt, style, title });
    else
        DialogPresenter::current().beep();
}

bool isControlCode(const QString &scan)
{
    return scan == okCode || scan == cancelCode;
}

bool startsControlCode(const QString &buffer)
{
    return okCode.startsWith(buffer) || cancelCode.startsWith(buffer);
}

// The position check of a scan so far against the working format.
bool matchesFormat(const QString &buffer, const QString &format)
{
    for (qsizetype i = 0; i < buffer.size(); ++i) {
        const QChar f = i < format.size() ? format.at(i) : QChar();
        const QChar c = buffer.at(i);
        if (f == QLatin1Char('@'))
            continue;
        if (f == QLatin1Char('_'))
            return true;
        if (f == QLatin1Char('#')) {
            if (c < QLatin1Char('0') || c > QLatin1Char('9'))
                return false;
            continue;
        }
        if (f.isNull() || c != f)
            return false;
    }
    return true;
}

// The value a finished scan gives the field.
QString scannedValue(const QString &scan, const QString &format, bool returnFieldOnly)
{
    if (scan == okCode)
        return QStringLiteral("OK");
    if (scan == cancelCode)
        return QStringLiteral("ANN");
    if (!returnFieldOnly)
        return scan.mid(2, scan.size() - 3);
    QString field;
    for (qsizetype i = 2; i < scan.size() - 1; ++i) {
        if (i < format.size() && format.at(i) == QLatin1Char('#'))
            field += scan.at(i);
    }
    return field;
}

bool fieldTakesScan(QObject *textBox)
{
    const QString text = getProperty(textBox, "Text").toString();
    return text.isEmpty() || text.size() == getProperty(textBox, "SelLength").toInt();
}

} // namespace

qint16 scanBM(QObject *textBox, qint16 keyAscii, QString &scanFormat, bool returnFieldOnly,
    bool mbox, qint32 offset)
{
    useLanguage(offset);
    QString &buffer = modGenLib().scannerBuffer;
    if (scanFormat.isEmpty() && returnFieldOnly) {
        DialogPresenter::current().systemMessageBox(
            { QStringLiteral("To Return Field Only, you must fill in ScanFormat in procedure "
                             "HoldScanBM"),
                criticalIcon, QStringLiteral("OstGenLib") });
        return 0;
    }
    if (!scanFormat.startsWith(QLatin1String("%[")) || !scanFormat.endsWith(QLatin1Char(']'))) {
        report(mbox,
            QStringLiteral("Invalid ScanFormat !") + paragraph
                + QStringLiteral("ScanFormat must be  %[   ]"),
            exclamationIcon, QStringLiteral("Scan Barcode - Magnetic"));
        return 0;
    }
    scanFormat = scanFormat.toUpper();
    const bool scanning = !buffer.isEmpty() || keyAscii == ScanKey::Start;
    if (!scanning || !fieldTakesScan(textBox)) {
        buffer.clear();
        return keyAscii;
    }

    switch (keyAscii) {
    case ScanKey::Backspace: buffer.chop(1); return 0;
    case ScanKey::Escape: buffer.clear(); return ScanKey::Escape;
    case ScanKey::Enter: {
        const QString scanned = buffer;
        buffer.clear();
        setProperty(textBox, "Text", scanned, Clock::current().regionalSettings());
        return ScanKey::Enter;
    }
    default: buffer += QString(chr(keyAscii)).toUpper();
    }

    QString format = scanFormat;
    const bool end = keyAscii == ScanKey::End;
    if (end && format.contains(QLatin1Char('_'))) {
        const qsizetype digits = buffer.size() - format.size() + 1;
        if (digits >= 0) {
            format.replace(QLatin1Char('_'), QString(digits, QLatin1Char('#')));
        } else if (!isControlCode(buffer)) {
            report(mbox,
                QStringLiteral("De lengte van de gescande waarde is kleiner dan de minimum "
                               "ingestelde lengte : ")
                    + paragraph + buffer + paragraph + scanFormat,
                exclamationIcon, QStringLiteral("ScanBM"));
            buffer.clear();
            return 0;
        }
    }
    if (!startsControlCode(buffer) && !matchesFormat(buffer, format)) {
        if (buffer.startsWith(QLatin1String("%[")))
            report(mbox,
                loadCatalogueText(formatMismatchText) + paragraph
                    + loadCatalogueText(scannedCodeText) + eightBlanks + buffer + paragraph
                    + loadCatalogueText(formatText) + eightBlanks + format,
                exclamationIcon, QStringLiteral("Scan Barcode - Magnetic Card"));
        buffer.clear();
        return 0;
    }
    if (!end)
        return 0;

    const QString scan = buffer;
    buffer.clear();
    const QString value = scannedValue(scan, format, returnFieldOnly);
    setProperty(textBox, "Text", value, Clock::current().regionalSettings());
    if (!isControlCode(scan))
        setProperty(textBox, "SelStart", qint32(value.size()), Clock::current().regionalSettings());
    return 0;
}

} // namespace qor
