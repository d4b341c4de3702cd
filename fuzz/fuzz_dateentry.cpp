// Date entry: what a user types into a date field, read under the regional
// settings of several countries and checked through the library object.
#include "datetime/dateentry.h"
#include "fuzz/fuzzinput.h"
#include "lib/clsqorgenlib.h"
#include "runtime/runtimeerror.h"

#include <QDateTime>

namespace {

const qor::RegionalSettings &settings(uint8_t which)
{
    static const qor::RegionalSettings all[] = {
        qor::RegionalSettings::fromLocale(QStringLiteral("nl_BE")),
        qor::RegionalSettings::fromLocale(QStringLiteral("fr_BE")),
        qor::RegionalSettings::fromLocale(QStringLiteral("en_US")),
        qor::RegionalSettings::fromLocale(QStringLiteral("de_DE")),
        qor::RegionalSettings::fromLocale(QStringLiteral("ja_JP")),
    };
    return all[which % std::size(all)];
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::fuzz::FuzzInput input(data, size);
    qor::fuzz::fuzzMachine();
    const uint8_t which = input.byte();
    const bool allowFuture = input.flag();
    const bool mbox = input.flag();
    const uint8_t region = input.byte();
    QString text = input.rest();
    try {
        switch (which % 5) {
        case 0: {
            clsqorGenLib lib;
            lib.setProperty("Offset", (region % 6) * 10000);
            lib.ControleerDatum(text, allowFuture, mbox);
            break;
        }
        case 1:
            qor::readDateEntry(text, allowFuture, QDate(2004, 5, 20), settings(region));
            break;
        case 2: {
            clsqorGenLib lib;
            lib.GetQuarterStart(text);
            lib.GetQuarterEnd(text);
            break;
        }
        case 3:
            qor::dateNotations(settings(region), (region % 6) * 10000);
            qor::centuryPivot(settings(region));
            break;
        default: {
            clsqorGenLib lib;
            QDateTime when = QDateTime(QDate(1899, 12, 30), QTime(0, 0)).addDays(qHash(text) % 200000);
            lib.setProperty("Offset", (region % 6) * 10000);
            lib.GetWeekDag(when);
            break;
        }
        }
    } catch (const qor::RuntimeError &) {
        // Overflow and type mismatch are answers the caller gets.
    }
    return 0;
}
