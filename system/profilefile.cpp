#include "system/profilefile.h"

#include "runtime/codepage.h"

namespace qor {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

QByteArray trimmedBlanks(QByteArrayView bytes)
{
    qsizetype from = 0, to = bytes.size();
    while (from < to && isBlank(bytes[from]))
        ++from;
    while (to > from && isBlank(bytes[to - 1]))
        --to;
    return bytes.sliced(from, to - from).toByteArray();
}

bool sameName(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

QByteArray oneLine(const QString &text)
{
    QString line = text;
    line.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
    return toCp1252(line);
}

} // namespace

ProfileFile::ProfileFile(const QByteArray &contents)
    : m_contents(contents)
{ }

ProfileFile::Line ProfileFile::lineAt(qsizetype start) const
{
    Line line;
    line.start = start;
    qsizetype newline = m_contents.indexOf('\n', start);
    if (newline < 0) {
        line.end = line.next = m_contents.size();
        return line;
    }
    line.next = newline + 1;
    line.end = newline > start && m_contents[newline - 1] == '\r' ? newline - 1 : newline;
    return line;
}

std::optional<QString> ProfileFile::sectionName(const Line &line) const
{
    const QByteArray text
        = trimmedBlanks(QByteArrayView(m_contents).sliced(line.start, line.end - line.start));
    if (!text.startsWith('['))
        return std::nullopt;
    qsizetype close = text.indexOf(']');
    if (close < 0)
        close = text.size();
    return fromCp1252(trimmedBlanks(QByteArrayView(text).sliced(1, close - 1)));
}

std::optional<QString> ProfileFile::keyName(const Line &line) const
{
    const QByteArrayView text
        = QByteArrayView(m_contents).sliced(line.start, line.end - line.start);
    const qsizetype equals = text.indexOf('=');
    if (equals < 0)
        return std::nullopt;
    const QByteArray key = trimmedBlanks(text.first(equals));
    if (key.startsWith(';'))
        return std::nullopt;
    return fromCp1252(key);
}

QString ProfileFile::valueOf(const Line &line) const
{
    const QByteArrayView text
        = QByteArrayView(m_contents).sliced(line.start, line.end - line.start);
    QByteArray value = trimmedBlanks(text.sliced(text.indexOf('=') + 1));
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'')
        && value.back() == value.front())
        value = value.sliced(1, value.size() - 2);
    return fromCp1252(value);
}

std::optional<qsizetype> ProfileFile::sectionBody(const QString &section) const
{
    for (qsizetype at = 0; at < m_contents.size();) {
        const Line line = lineAt(at);
        const auto name = sectionName(line);
        if (name && sameName(*name, section))
            return line.next;
        at = line.next;
    }
    return std::nullopt;
}

std::optional<QString> ProfileFile::value(const QString &section, const QString &key) const
{
    const auto body = sectionBody(section);
    if (!body)
        return std::nullopt;
    for (qsizetype at = *body; at < m_contents.size();) {
        const Line line = lineAt(at);
        if (sectionName(line))
            break;
        const auto name = keyName(line);
        if (name && sameName(*name, key))
            return valueOf(line);
        at = line.next;
    }
    return std::nullopt;
}

QByteArray ProfileFile::lineBreak() const
{
    const qsizetype newline = m_contents.indexOf('\n');
    if (newline < 0 || (newline > 0 && m_contents[newline - 1] == '\r'))
        return QByteArrayLiteral("\r\n");
    return QByteArrayLiteral("\n");
}

QByteArray ProfileFile::withValue(
    const QString &section, const QString &key, const QString &value) const
{
    const QByteArray eol = lineBreak();
    const QByteArray setting = oneLine(key.trimmed()) + '=' + oneLine(value);
    QByteArray result = m_contents;
    const auto body = sectionBody(section);
    if (!body) {
        if (!result.isEmpty() && !result.endsWith('\n'))
            result += eol;
        return result + '[' + oneLine(section) + ']' + eol + setting + eol;
    }
    // Where a new key goes: after the last setting (or the header) of the section.
    qsizetype insertAt = *body;
    bool lastHasBreak = true;
    for (qsizetype at = *body; at < m_contents.size();) {
        const Line line = lineAt(at);
        if (sectionName(line))
            break;
        const auto name = keyName(line);
        if (name && sameName(*name, key)) {
            const QByteArray kept
                = trimmedBlanks(QByteArrayView(m_contents)
                                    .sliced(line.start, line.end - line.start)
                                    .first(m_contents.indexOf('=', line.start) - line.start));
            return result.replace(line.start, line.end - line.start, kept + '=' + oneLine(value));
        }
        if (!trimmedBlanks(QByteArrayView(m_contents).sliced(line.start, line.end - line.start))
                 .isEmpty()) {
            insertAt = line.next;
            lastHasBreak = line.next > line.end;
        }
        at = line.next;
    }
    if (insertAt == *body && *body > 0 && m_contents[*body - 1] != '\n')
        lastHasBreak = false;
    return result.insert(insertAt, lastHasBreak ? setting + eol : eol + setting);
}

} // namespace qor
