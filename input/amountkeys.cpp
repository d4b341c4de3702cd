#include "input/amountkeys.h"

#include "calculator/calculatortexts.h"
#include "calculator/showcalculator.h"
#include "calculator/vatrates.h"
#include "input/amounts.h"
#include "input/keycodes.h"
#include "lib/frame/catalogue.h"
#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "platform/clock.h"
#include "platform/dialogpresenter.h"
#include "runtime/blanks.h"
#include "runtime/callbyname.h"
#include "runtime/codepage.h"
#include "runtime/conversion.h"
#include "runtime/format.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <cmath>

namespace qor {

using namespace catalogue;

namespace {

// The names of the field's text, caret, selection and maximum length.
struct FieldNames
{
    const char *text;
    const char *start;
    const char *length;
    const char *maxLength;
};

constexpr FieldNames editControl { "Text", "SelStart", "SelLength", "MaxLength" };
constexpr FieldNames gridEditor { "EditText", "EditSelStart", "EditSelLength", "editMaxLength" };

// No Double has significant digits beyond this many decimals.
constexpr int maxPatternDecimals = 330;

struct Field
{
    QObject *control;
    const FieldNames &names;
    bool grid;
    RegionalSettings rs;

    QString text() const { return getProperty(control, names.text).toString(); }
    qint32 selLength() const { return getProperty(control, names.length).toInt(); }
    qint32 maxLength() const { return getProperty(control, names.maxLength).toInt(); }
    void setText(const QString &text) const { setProperty(control, names.text, text, rs); }
    void place(qint32 start, qint32 length) const
    {
        setProperty(control, names.start, start, rs);
        setProperty(control, names.length, length, rs);
    }
};

// The code of the decimal separator in force: the second character of the
// text form of 4/3.
int decimalCode(const RegionalSettings &rs)
{
    return asc(numberText(4.0 / 3.0, rs).at(1));
}

bool isDigitCode(int code)
{
    return code >= '0' && code <= '9';
}

// How many zeros a rounding pattern gets for a number of decimals.
int patternDecimals(double decimals)
{
    if (!(decimals > 0))
        return 0;
    if (decimals >= maxPatternDecimals)
        return maxPatternDecimals;
    return roundToLong(decimals);
}

QString zeros(double decimals)
{
    return QString(patternDecimals(decimals), QLatin1Char('0'));
}

void refuseResult(const QString &prompt)
{
    showMessageBoxE(
        prompt, MessageBoxStyle::Exclamation | MessageBoxStyle::OK, calculatorMessageTitle());
}

// Writes the result register into the field rounded with the pattern, unless
// the field takes no negative value or has no room for it. Always consumes the key.
QVariant insertResult(const Field &field, short &ka, bool negNumber, const QString &pattern)
{
    ka = 0;
    double result = modGenLib().calculatorRegister;
    if (!negNumber && result < 0) {
        refuseResult(loadCatalogueText(NegativeRefused));
        return integerVariant(0);
    }
    result = toDouble(format(result, pattern, field.rs), field.rs);
    if (result == 0)
        result = 0; // no negative zero in the field
    modGenLib().calculatorRegister = result;
    const qint32 maxLength = field.maxLength();
    const QString text = numberText(result, field.rs);
    if (maxLength > 0 && text.size() > maxLength) {
        refuseResult(loadCatalogueText(TooLongStart) + QString::number(maxLength)
            + loadCatalogueText(TooLongEnd));
        return integerVariant(0);
    }
    field.setText(text);
    // The grid's caret has always been placed by the length of the cell's Text.
    const qint32 caret = field.grid ? qint32(getProperty(field.control, "Text").toString().size())
                                    : qint32(text.size());
    field.place(caret, 0);
    return integerVariant(0);
}

// "-": the sign of the whole value, wherever the caret stands.
QVariant toggleSign(const Field &field, bool negNumber)
{
    if (!negNumber) {
        DialogPresenter::current().beep();
        return integerVariant(0);
    }
    const QString text = field.text();
    if (trimBlanks(text).isEmpty() || field.selLength() == text.size()) {
        field.setText(QStringLiteral("-"));
        setProperty(field.control, field.names.start, 1, field.rs);
        return integerVariant(0);
    }
    double value = -cGetalValue(text, field.rs);
    if (value == 0)
        value = 0;
    const QString toggled = numberText(value, field.rs);
    field.setText(toggled);
    setProperty(field.control, field.names.start, qint32(toggled.size()), field.rs);
    return integerVariant(0);
}

// Digits, Backspace and one decimal separator with at most `decimals` decimals.
int filterAmountKey(const Field &field, int key, double decimals)
{
    if (decimals == 0)
        return key == KeyCode::BackSpace || isDigitCode(key) ? key : 0;
    const int decCode = decimalCode(field.rs);
    if (key == KeyCode::Point)
        key = decCode;
    const QString text = field.text();
    const qint32 selected = field.selLength();
    if (key == decCode && (text.isEmpty() || selected == text.size())) {
        field.setText(QStringLiteral("0") + chr(decCode));
        field.place(2, 0);
        return -1;
    }
    const qsizetype separatorAt = text.indexOf(chr(decCode)) + 1;
    if (separatorAt == 0)
        return key == KeyCode::BackSpace || key == decCode || isDigitCode(key) ? key : 0;
    if (key == decCode)
        key = 0;
    // The decimals are full whatever the caret: only a selection over all lets a key in.
    if (key != KeyCode::BackSpace && double(separatorAt) + decimals == double(text.size())
        && selected != text.size())
        key = 0;
    return key == KeyCode::BackSpace || isDigitCode(key) ? key : 0;
}

QVariant typedKey(const Field &field, short &ka, double decimals)
{
    const int key = filterAmountKey(field, ka, decimals);
    if (key < 0) {
        // The separator typed first became "0," in the field.
        ka = short(decimalCode(field.rs));
        return integerVariant(0);
    }
    ka = short(key);
    if (isDigitCode(key))
        modGenLib().calculatorFlag = true;
    if (key == 0)
        DialogPresenter::current().beep();
    return integerVariant(ka);
}

double openCalculator(const Field &field, const AmountKeySettings &settings)
{
    return showCalculator(
        cGetalValue(field.text(), field.rs), settings.btwTar1, settings.btwTar2, settings.offset);
}

// Adds a VAT rate to the field's value at once and flashes the VAT note.
void applyRate(const Field &field, qint32 rate)
{
    const double result = cGetalValue(field.text(), field.rs) * vatFactor(rate);
    if (!std::isfinite(result))
        throw RuntimeError::overflow();
    modGenLib().calculatorRegister = result;
    DialogPresenter::current().showNote({ vatNoteText(rate, field.rs), field.control });
    modGenLib().calculatorFlag = false;
}

} // namespace

QVariant keyGetal(QObject *textBox, short &ka, QVariant &nbrDecimals, bool negNumber, bool flexgrid,
    const AmountKeySettings &settings)
{
    useLanguage(settings.offset);
    if (isMissing(nbrDecimals))
        nbrDecimals = longVariant(settings.nbrDec);
    const RegionalSettings rs = Clock::current().regionalSettings();
    const Field field { textBox, flexgrid ? gridEditor : editControl, flexgrid, rs };
    switch (ka) {
    case KeyCode::Asterisk: openCalculator(field, settings); [[fallthrough]];
    case KeyCode::Percent: {
        const double decimals = toDouble(nbrDecimals, rs);
        const bool whole
            = std::floor(modGenLib().calculatorRegister) == modGenLib().calculatorRegister;
        const QString pattern
            = decimals == 0 || whole ? QStringLiteral("0") : QStringLiteral("0.") + zeros(decimals);
        return insertResult(field, ka, negNumber, pattern);
    }
    case KeyCode::Minus: return toggleSign(field, negNumber);
    default: return typedKey(field, ka, toDouble(nbrDecimals, rs));
    }
}

QVariant keyEuro(QObject *textBox, short &ka, QVariant &eurDecimals, bool negNumber,
    const AmountKeySettings &settings)
{
    useLanguage(settings.offset);
    const RegionalSettings rs = Clock::current().regionalSettings();
    if (isMissing(eurDecimals) || isEmpty(eurDecimals) || !isNumeric(eurDecimals, rs))
        eurDecimals = integerVariant(2);
    const double decimals = toDouble(eurDecimals, rs);
    const Field field { textBox, editControl, false, rs };
    const QString pattern
        = decimals == 0 ? QStringLiteral("#,##0") : QStringLiteral("#,##0.") + zeros(decimals);
    switch (ka) {
    case KeyCode::Percent:
        if (!modGenLib().calculatorFlag) {
            DialogPresenter::current().beep();
            return integerVariant(0);
        }
        if (settings.btwTar2 == 0)
            applyRate(field, settings.btwTar1);
        else if (settings.btwTar1 != 0)
            openCalculator(field, settings);
        else
            applyRate(field, settings.btwTar2);
        return insertResult(field, ka, negNumber, pattern);
    case KeyCode::Asterisk:
        openCalculator(field, settings);
        return insertResult(field, ka, negNumber, pattern);
    case KeyCode::Minus: return toggleSign(field, negNumber);
    default: return typedKey(field, ka, decimals);
    }
}

} // namespace qor
