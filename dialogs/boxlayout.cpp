#include "dialogs/boxlayout.h"

#include "runtime/blanks.h"

#include <algorithm>

namespace qor {

namespace {

using namespace BoxMetrics;

QStringList paragraphsOf(const QString &prompt)
{
    QString text = prompt;
    text.replace(QLatin1String("\r\n"), QLatin1String("\r"));
    text.replace(QLatin1Char('\n'), QLatin1Char('\r'));
    return text.split(QLatin1Char('\r'));
}

// Collects the lines of one wrap and stops when enough are made.
class LineSink
{
public:
    LineSink(QStringList &lines, int maxLines)
        : m_lines(lines)
        , m_maxLines(maxLines)
    { }
    bool full() const { return m_lines.size() >= m_maxLines; }
    void add(const QString &line)
    {
        if (!full())
            m_lines.append(line);
        else
            m_overflow = true;
    }
    bool overflow() const { return m_overflow; }

private:
    QStringList &m_lines;
    int m_maxLines;
    bool m_overflow = false;
};

// A word wider than the line: as many characters per line as fit, at least one.
QString breakWord(const QString &word, int width,
    const std::function<int(const QString &)> &measure, LineSink &sink)
{
    QString piece;
    for (const QChar c : word) {
        if (sink.full())
            return piece;
        const QString longer = piece + c;
        if (!piece.isEmpty() && measure(longer) > width) {
            sink.add(piece);
            piece = QString(c);
        } else {
            piece = longer;
        }
    }
    return piece;
}

void wrapParagraph(const QString &paragraph, int width,
    const std::function<int(const QString &)> &measure, LineSink &sink)
{
    if (measure(paragraph) <= width) {
        sink.add(paragraph);
        return;
    }
    QString line;
    bool lineOpen = false;
    for (const QString &word : paragraph.split(QLatin1Char(' '))) {
        if (sink.full())
            break;
        const QString candidate = lineOpen ? line + QLatin1Char(' ') + word : word;
        if (measure(candidate) <= width) {
            line = candidate;
            lineOpen = true;
            continue;
        }
        if (lineOpen)
            sink.add(line);
        if (measure(word) <= width)
            line = word;
        else
            line = breakWord(word, width, measure, sink);
        lineOpen = true;
    }
    if (lineOpen)
        sink.add(line);
}

int widestLine(const QStringList &lines, const std::function<int(const QString &)> &measure)
{
    int widest = 0;
    for (const QString &line : lines)
        widest = std::max(widest, measure(line));
    return widest;
}

int buttonsWidth(const QList<int> &widths)
{
    int total = 0;
    for (int width : widths)
        total += std::max(0, width);
    return total + buttonGap * std::max<qsizetype>(0, widths.size() - 1);
}

} // namespace

QStringList wrapPrompt(const QString &prompt, int width,
    const std::function<int(const QString &)> &textWidth, int maxLines)
{
    QStringList lines;
    LineSink sink(lines, std::max(0, maxLines));
    for (const QString &paragraph : paragraphsOf(prompt)) {
        if (sink.full())
            break;
        wrapParagraph(trimBlanks(paragraph), width, textWidth, sink);
    }
    return lines;
}

BoxLayout layoutBox(const BoxLayoutInput &input)
{
    std::function<int(const QString &)> measure = input.textWidth;
    if (!measure)
        measure = [](const QString &line) { return int(line.size()); };
    const int lineHeight = std::max(1, input.lineHeight);
    const int extra = std::max(0, input.extraHeight);
    const int screenWidth = std::max(0, input.screenWidth);
    const int screenHeight = std::max(0, input.screenHeight);
    const int heightLimit = screenHeight - heightMargin;
    const int fittingLines = std::max(0, (heightLimit - formOverLabel - extra) / lineHeight);

    BoxLayout layout;
    QStringList lines;
    int formHeight = 0;
    int step = std::max(0, screenWidth - firstStepMargin);
    for (;;) {
        const int labelWidth = std::max(1, screenWidth - step - labelMargin);
        lines = wrapPrompt(input.prompt, labelWidth, measure, fittingLines + 1);
        if (lines.size() <= fittingLines) {
            formHeight = int(lines.size()) * lineHeight + formOverLabel + extra;
            break;
        }
        if (step < smallestStep) {
            lines = lines.mid(0, fittingLines);
            formHeight = heightLimit;
            layout.clipped = true;
            break;
        }
        step /= 2;
    }

    const int labelWidth = widestLine(lines, measure);
    const int narrowest = std::max(
        minimumFormWidth, buttonsWidth(input.buttonWidths) + iconLeft + frameRightMargin);
    const int formWidth = std::min(screenWidth, std::max(labelWidth + labelMargin, narrowest));
    formHeight = std::clamp(formHeight, 0, screenHeight);
    layout.caption = lines.join(QLatin1Char('\r'));
    layout.form = QRect(
        (screenWidth - formWidth) / 2, (screenHeight - formHeight) / 2, formWidth, formHeight);
    layout.frame = QRect(0, 0, std::max(0, formWidth - frameRightMargin), formHeight);
    const int labelHeight = layout.clipped ? std::max(0, formHeight - formOverLabel - extra)
                                           : int(lines.size()) * lineHeight;
    layout.label = QRect(labelLeft, labelTop,
        std::min(labelWidth, std::max(0, formWidth - labelMargin)), labelHeight);
    layout.icon = QRect(iconLeft, labelTop, iconSize, iconSize);
    const int buttonTop = layout.frame.height() - buttonTopFromBottom;
    int right = layout.frame.x() + layout.frame.width();
    QList<QRect> buttons;
    for (qsizetype i = input.buttonWidths.size() - 1; i >= 0; --i) {
        const int width = std::max(0, input.buttonWidths.at(i));
        buttons.prepend(QRect(right - width, buttonTop, width, input.buttonHeight));
        right -= width + buttonGap;
    }
    layout.buttons = buttons;
    return layout;
}

} // namespace qor
