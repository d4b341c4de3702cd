// The keystroke handlers: key sequences on a model field (an edit control or a
// grid's cell editor), each returned code applied as a host applies it, the
// calculator the amount keys open driven by scripted keys.
#include "fuzz/fuzzinput.h"
#include "host/grideditor.h"
#include "host/textbox.h"
#include "lib/clsqorgenlib.h"
#include "runtime/callbyname.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <QDateTime>

namespace {

// An optional argument as a host may pass it.
QVariant argument(uint8_t code)
{
    switch (code % 8) {
    case 0: return qor::missingVariant();
    case 1: return qor::emptyVariant();
    case 2: return qor::nullVariant();
    case 3: return int(code >> 3) - 8;
    case 4: return QString::number((code >> 3) % 6);
    case 5: return QStringLiteral("abc");
    case 6: return QDateTime(QDate(2004, 5, 20).addDays((code >> 3) - 16), QTime(0, 0), Qt::UTC);
    default: return 1e300 * (code >> 3);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::fuzz::FuzzInput input(data, size);
    qor::RecordingPlatform &machine = qor::fuzz::fuzzMachine();
    const uint8_t which = input.byte();
    const bool negNumber = input.flag();
    const uint8_t first = input.byte();
    const uint8_t second = input.byte();
    const uint8_t selStart = input.byte();
    const uint8_t selLength = input.byte();
    const uint8_t maxLength = input.byte();
    const uint8_t rates = input.byte();
    const QStringList parts = input.parts(3);
    const QString text = parts.value(0);
    const QString keys = parts.value(1);
    // Every calculator the keys open is typed into and closed.
    QVariantList answers;
    for (int i = 0; i < 4; ++i)
        answers.append(QVariantMap {
            { QStringLiteral("keys"), parts.value(2) + QStringLiteral("{Enter}{Enter}") } });
    machine.setAnswers(answers);

    clsqorGenLib lib;
    lib.setProperty("NbrDec", int(first % 5));
    lib.setProperty("BtwTar1", (rates & 1) ? 2100 : 0);
    lib.setProperty("BtwTar2", (rates & 2) ? 600 : 0);
    const bool grid = (which % 5) == 1;
    qor::TextBox textBox;
    qor::GridEditor editor;
    QObject *field = grid ? static_cast<QObject *>(&editor) : &textBox;
    const qor::RegionalSettings rs;
    qor::setProperty(field, grid ? "EditText" : "Text", text, rs);
    qor::setProperty(field, grid ? "EditSelStart" : "SelStart", selStart % 16, rs);
    qor::setProperty(field, grid ? "EditSelLength" : "SelLength", selLength % 16, rs);
    qor::setProperty(field, grid ? "editMaxLength" : "MaxLength", maxLength % 24, rs);
    QString allowed = parts.value(2);
    for (const QChar key : keys) {
        short ka = short(key.unicode());
        try {
            QVariant result;
            switch (which % 5) {
            case 0:
            case 1: {
                QVariant decimals = argument(first);
                bool neg = negNumber;
                bool flexgrid = grid;
                result = lib.KeyGetal(field, ka, decimals, neg, flexgrid);
                break;
            }
            case 2: {
                QVariant decimals = argument(first);
                bool neg = negNumber;
                result = lib.KeyEuro(field, ka, decimals, neg);
                break;
            }
            case 3: result = lib.KeyPress(ka, allowed); break;
            default: {
                QVariant maxValue = argument(first);
                QVariant minValue = argument(second);
                lib.KeySpin(qorGenLib::SpinUpDown((ka & 1) ? 38 : 40), field, maxValue, minValue);
                continue;
            }
            }
            qor::test::typeIntoModel(field, result.toInt(), grid);
        } catch (const qor::RuntimeError &) {
            // Overflow, type mismatch and a field that lacks a property are
            // the run-time errors the caller gets.
        }
    }
    return 0;
}
