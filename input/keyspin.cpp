#include "input/keyspin.h"

#include "input/amounts.h"
#include "platform/clock.h"
#include "platform/dialogpresenter.h"
#include "runtime/callbyname.h"
#include "runtime/conversion.h"
#include "runtime/dates.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <optional>

namespace qor {

namespace {

constexpr int arrowUp = 38;
constexpr int arrowDown = 40;
constexpr double defaultNumberMaximum = 1e12;

QDateTime dateValue(const QDate &date)
{
    return QDateTime(date, QTime(0, 0), Qt::UTC);
}

// Trim as the classic runtime does it: blanks only.
bool isBlank(const QString &text)
{
    for (const QChar c : text) {
        if (c != QLatin1Char(' '))
            return false;
    }
    return true;
}

// number < bound (-1), = (0) or > (1) as a Double compares with a Variant:
// Empty is 0, numeric text and dates by value, Null compares as unknown
// (nullopt); a missing bound or anything else is a type mismatch.
std::optional<int> compareWithBound(
    double number, const QVariant &bound, const RegionalSettings &rs)
{
    if (isMissing(bound))
        throw RuntimeError::typeMismatch();
    if (isNull(bound))
        return std::nullopt;
    const double value = toDouble(bound, rs);
    return number < value ? -1 : (number > value ? 1 : 0);
}

std::optional<QDateTime> steppedDate(const QDateTime &field, int direction, QVariant &maxValue,
    QVariant &minValue, const RegionalSettings &rs)
{
    if (direction == arrowUp) {
        if (isMissing(maxValue))
            maxValue = dateValue(Clock::current().now().date());
        if (!isDate(maxValue, rs))
            maxValue = dateValue(QDate(2100, 1, 1));
        if (field.date().daysTo(toDate(maxValue, rs).date()) > 0)
            return field.addDays(1);
        return std::nullopt;
    }
    if (isMissing(minValue))
        minValue = dateValue(QDate(1800, 1, 1));
    if (field.date().daysTo(toDate(minValue, rs).date()) < 0)
        return field.addDays(-1);
    return std::nullopt;
}

std::optional<double> steppedNumber(double number, int direction, QVariant &maxValue,
    QVariant &minValue, const RegionalSettings &rs)
{
    if (direction == arrowUp) {
        if (isMissing(maxValue))
            maxValue = doubleVariant(defaultNumberMaximum);
        if (compareWithBound(number, maxValue, rs) == -1)
            return number + 1;
        return std::nullopt;
    }
    // The default minimum depends on the maximum being left out, as it always did.
    if (isMissing(maxValue))
        minValue = integerVariant(1);
    if (compareWithBound(number, minValue, rs) == 1)
        return number - 1;
    return std::nullopt;
}

} // namespace

bool keySpin(int direction, QObject *txtBox, QVariant &maxValue, QVariant &minValue)
{
    if (direction != arrowUp && direction != arrowDown)
        return false;
    const RegionalSettings rs = Clock::current().regionalSettings();
    const QString text = getProperty(txtBox, "Text").toString();
    if (isBlank(text)) {
        DialogPresenter::current().beep();
        return false;
    }
    if (!getProperty(txtBox, "Enabled").toBool())
        return false;
    QString stepped;
    if (isDate(text, rs)) {
        if (const auto date = steppedDate(toDate(text, rs), direction, maxValue, minValue, rs))
            stepped = toText(*date, rs);
    } else if (const auto number
        = steppedNumber(cGetalValue(text, rs), direction, maxValue, minValue, rs)) {
        stepped = numberText(*number == 0 ? 0.0 : *number, rs);
    }
    if (stepped.isNull()) {
        DialogPresenter::current().beep();
        return false;
    }
    setProperty(txtBox, "Text", stepped, rs);
    callOperation(txtBox, "SetFocus");
    setProperty(txtBox, "SelStart", 0, rs);
    setProperty(txtBox, "SelLength", qint32(stepped.size()), rs);
    return true;
}

} // namespace qor
