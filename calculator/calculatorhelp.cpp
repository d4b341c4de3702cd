#include "calculator/calculatorhelp.h"

#include "calculator/calculatortexts.h"
#include "lib/frame/catalogue.h"

namespace qor {

using namespace catalogue;

namespace {

// The texts the card carries itself. They differ from the Dutch catalogue on
// purpose: the title is indented, the call line has the card's own spelling
// and a wider gap for the key picture, and the heading is worded differently.
const char16_t builtInTitle[] = u"  Help bij Velantis Calculator";
const char16_t builtInCallLine[]
    = u"U kan de Calculator vanuit eender welk numeriek invulkvak aanroepen door      te drukken !";
const char16_t builtInHeading[] = u"U kan de Calculator volledig bedienen via het toetsenbord :";

struct KeyLine
{
    const char *keys;
    qint32 explanation;
};

// The keyboard map: the key names are the same in every language.
constexpr KeyLine keyLines[] = {
    { "[0] [1] ... [9]", HelpDigitKeys },
    { "[,] [.]", HelpDecimalKeys },
    { "[+] [-] [x] [/]", HelpOperatorKeys },
    { "[=] [Enter]", HelpEqualsKey },
    { "", HelpSecondEquals },
    { "[Insert]", HelpInsertKey },
    { "[Esc]", HelpEscapeKey },
    { "[BackSpace]", HelpBackSpaceKey },
};

QString text(qint32 id, qint32 offset)
{
    return Catalogue::text(qint64(id) + offset)
        .value_or(QStringLiteral(" [LL %1 ?] ").arg(qint64(id) + offset));
}

} // namespace

CalculatorHelpCard calculatorHelpCard(qint32 offset)
{
    const bool ownTexts = offset <= 0;
    const qint32 language = ownTexts ? 0 : offset;
    CalculatorHelpCard card;
    card.title = ownTexts ? QString::fromUtf16(builtInTitle) : text(HelpTitle, language);
    card.callLine = ownTexts ? QString::fromUtf16(builtInCallLine) : text(HelpCallLine, language);
    card.heading = ownTexts ? QString::fromUtf16(builtInHeading) : text(HelpHeading, language);
    for (const KeyLine &line : keyLines)
        card.keys.append({ QString::fromLatin1(line.keys), text(line.explanation, language) });
    card.movingLine = text(HelpMovingLine, language);
    card.vatLine = text(HelpDirectVat, 0);
    return card;
}

} // namespace qor
