#include "platform/commandline.h"

namespace qor {

namespace {

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

} // namespace

QStringList splitCommandLine(const QString &commandLine)
{
    QStringList words;
    QString word;
    bool inWord = false;
    bool quoted = false;
    const QChar quote = QLatin1Char('"');
    for (qsizetype i = 0; i < commandLine.size(); ++i) {
        const QChar c = commandLine.at(i);
        if (c == quote) {
            inWord = true;
            if (quoted && i + 1 < commandLine.size() && commandLine.at(i + 1) == quote) {
                word += quote;
                ++i;
            } else {
                quoted = !quoted;
            }
        } else if (isBlank(c) && !quoted) {
            if (inWord)
                words.append(word);
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (inWord)
        words.append(word);
    return words;
}

} // namespace qor
