#include "input/keypress.h"

#include "input/keycodes.h"
#include "platform/clock.h"
#include "platform/dialogpresenter.h"
#include "runtime/codepage.h"
#include "runtime/conversion.h"
#include "runtime/dates.h"
#include "runtime/variant.h"

#include <QDateTime>

namespace qor {

namespace {

bool isCharacter(int code)
{
    return code >= 0 && code <= 255;
}

bool isLetter(int code)
{
    return (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z')
        || (code >= KeyCode::FirstAccentedLetter && code <= 255);
}

// Upper case character by character, keeping the length (as UCase does).
QString upperCase(const QString &text)
{
    QString upper = text;
    for (QChar &c : upper)
        c = c.toUpper();
    return upper;
}

// The upper-case form of a character code, when the code page has one.
int upperCode(int code)
{
    if (!isCharacter(code))
        return code;
    const QChar upper = chr(code).toUpper();
    const int upperCodeValue = asc(upper);
    return upperCodeValue == '?' && upper != QLatin1Char('?') ? code : upperCodeValue;
}

// The third character of a sample date and time: the separators in force.
QString dateSeparator(const RegionalSettings &rs)
{
    return toText(QDateTime(QDate(1972, 11, 27), QTime(0, 0), Qt::UTC), rs).mid(2, 1);
}

QString timeSeparator(const RegionalSettings &rs)
{
    return toText(QDateTime(zeroDate(), QTime(11, 22, 33), Qt::UTC), rs).mid(2, 1);
}

QVariant refused()
{
    DialogPresenter::current().beep();
    return integerVariant(0);
}

} // namespace

QVariant keyPress(short &ka, QString &allowed, const RegionalSettings &rs)
{
    allowed = upperCase(allowed);
    // No quote may ever reach a field.
    if (ka == KeyCode::Quote || ka == KeyCode::Apostrophe)
        ka = KeyCode::AcuteAccent;
    if (ka == KeyCode::BackSpace || ka == KeyCode::Enter || allowed.isEmpty())
        return integerVariant(ka);
    QString set = allowed;
    if (set.contains(QLatin1Char('D')))
        set += dateSeparator(rs) + QLatin1Char('C');
    if (set.contains(QLatin1Char('U')))
        set += timeSeparator(rs) + QLatin1Char('C');
    if (set.contains(QLatin1Char('C')) && ka >= '0' && ka <= '9')
        return integerVariant(ka);
    if (set.contains(QLatin1Char('H')))
        ka = short(upperCode(ka));
    if ((set.contains(QLatin1Char('L')) || set.contains(QLatin1Char('H'))) && isLetter(ka))
        return integerVariant(ka);
    if (isCharacter(ka) && set.contains(chr(ka)))
        return integerVariant(ka);
    return refused();
}

} // namespace qor
