#pragma once

#include "runtime/callbyname.h"
#include "runtime/codepage.h"
#include "runtime/regionalsettings.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

namespace qor::test {

// A key sequence written as text: every character is its windows-1252 code,
// and a number or name in braces is one code: {8} or {BS} Backspace,
// {Enter} 13, {-1}, {300}.
inline QList<int> keyCodes(const QString &keys)
{
    QList<int> codes;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        const qsizetype close
            = keys.at(i) == QLatin1Char('{') ? keys.indexOf(QLatin1Char('}'), i) : -1;
        if (close < 0) {
            codes.append(asc(keys.at(i)));
            continue;
        }
        const QString name = keys.mid(i + 1, close - i - 1);
        if (name == QLatin1String("BS"))
            codes.append(8);
        else if (name == QLatin1String("Enter"))
            codes.append(13);
        else
            codes.append(name.toInt());
        i = close;
    }
    return codes;
}

// The codes a handler returned, as a text: "49 50 0".
inline QString codesText(const QList<int> &codes)
{
    QStringList parts;
    for (int code : codes)
        parts.append(QString::number(code));
    return parts.join(QLatin1Char(' '));
}

// What a host's edit control does with a key code the handler let through:
// Backspace deletes the selection or the character before the caret, Enter
// and codes outside a byte do nothing, any other code replaces the selection
// with its character. A caret or selection beyond the text counts as its end.
inline void typeIntoModel(QObject *control, int code, bool grid = false)
{
    if (code == 13 || code <= 0 || code > 255)
        return;
    const char *textName = grid ? "EditText" : "Text";
    const char *startName = grid ? "EditSelStart" : "SelStart";
    const char *lengthName = grid ? "EditSelLength" : "SelLength";
    QString text = getProperty(control, textName).toString();
    const qsizetype none = 0;
    qsizetype start = qBound(none, qsizetype(getProperty(control, startName).toInt()), text.size());
    qsizetype length
        = qBound(none, qsizetype(getProperty(control, lengthName).toInt()), text.size() - start);
    if (code == 8) {
        if (length == 0 && start > 0) {
            --start;
            length = 1;
        }
        text.remove(start, length);
    } else {
        text.replace(start, length, chr(code));
        ++start;
    }
    const RegionalSettings rs;
    setProperty(control, textName, text, rs);
    setProperty(control, startName, qint32(start), rs);
    setProperty(control, lengthName, 0, rs);
}

} // namespace qor::test
