#pragma once

#include "qorgenlib_export.h"

#include <QList>
#include <QRect>
#include <QString>

#include <functional>

namespace qor {

// What the layout of the message box and the input box needs to know, in
// twips. The text measure gives the width of one line of the prompt's font.
struct BoxLayoutInput
{
    QString prompt;
    int screenWidth = 15360; // twips
    int screenHeight = 11520;
    std::function<int(const QString &line)> textWidth; // twips
    int lineHeight = 195; // twips of one line of the label
    QList<int> buttonWidths; // visible buttons, left to right
    int buttonHeight = 375;
    int extraHeight = 0; // room below the label for a field (input box)
};

// Where everything goes, in twips, relative to the form (the frame's and the
// label's rectangles) or to the screen (the form's).
struct BoxLayout
{
    QString caption; // the wrapped prompt, lines separated by carriage returns
    QRect form;
    QRect frame;
    QRect label;
    QRect icon;
    QList<QRect> buttons; // same order as the widths
    bool clipped = false; // the prompt did not fit the screen and is cut off
};

// Wraps the prompt and widens the box until it fits the screen: the widening
// step starts at the screen width less 6000 and is halved while the label,
// 1500 narrower than the form, is too high for the screen height less 1000.
// The form is never narrower than 4600 nor larger than the screen. A word wider
// than the label is broken at the last character that fits; a prompt that
// does not fit even at full width is cut at the last line that fits.
QORGENLIB_EXPORT BoxLayout layoutBox(const BoxLayoutInput &input);

// The prompt wrapped to a width: paragraphs split at carriage returns (a line
// feed, alone or after a carriage return, counts as one), each trimmed of
// blanks and wrapped at blanks. At most maxLines lines are made.
QStringList wrapPrompt(const QString &prompt, int width,
    const std::function<int(const QString &)> &textWidth, int maxLines);

// The geometry constants of both boxes, in twips.
namespace BoxMetrics {
constexpr int firstStepMargin = 6000; // the first widening step is the screen width less this
constexpr int labelMargin = 1500; // the label is this much narrower than the form
constexpr int heightMargin = 1000; // the box keeps this much of the screen height free
constexpr int formOverLabel = 1300; // the form is this much higher than the label
constexpr int minimumFormWidth = 4600;
constexpr int smallestStep = 201; // a step below this stops the widening
constexpr int buttonGap = 120;
constexpr int buttonTopFromBottom = 855; // button top = frame height less this
constexpr int iconLeft = 200; // from the frame's left edge
constexpr int iconSize = 480;
constexpr int labelLeft = 1100;
constexpr int labelTop = 200;
constexpr int frameRightMargin = 240; // the frame stops this far from the form's right edge
} // namespace BoxMetrics

} // namespace qor
