#include "lib/frame/messageboxlogic.h"

#include "lib/frame/catalogue.h"
#include "lib/frame/dialogsound.h"
#include "lib/frame/modgenlib.h"

namespace qor {

namespace MessageBoxLogic {

namespace {

using namespace MessageBoxResult;
constexpr int resultOK = OK;
constexpr int resultCancel = Cancel;
constexpr int resultYes = Yes;
constexpr int resultNo = No;

// Catalogue ids of the box's own words.
constexpr qint32 yesCaption = 1028;
constexpr qint32 noCaption = 1029;
constexpr qint32 firstTypeTitle = 1031; // "Fout !", then one title per type
constexpr qint32 cancelCaption = 9500;
// The identity-number box.
constexpr qint32 foreignCardCaption = 1036;
constexpr qint32 typingErrorCaption = 1037;
constexpr qint32 invalidIdentityNumber = 1038;
constexpr qint32 typingErrorOrForeign = 1039;
constexpr qint32 identityNumberTitle = 1040;

int resultOf(const QList<DialogButton> &buttons, int wanted)
{
    for (const DialogButton &button : buttons) {
        if (button.result == wanted)
            return wanted;
    }
    return 0;
}

// The first of the wanted results that has a visible button.
int firstVisible(const QList<DialogButton> &buttons, std::initializer_list<int> wanted)
{
    for (int result : wanted) {
        if (resultOf(buttons, result))
            return result;
    }
    return 0;
}

// Blank as the classic Trim sees it: nothing but blanks.
bool isBlank(const QString &text)
{
    for (const QChar c : text) {
        if (c != QLatin1Char(' '))
            return false;
    }
    return true;
}

} // namespace

Type typeOf(int style)
{
    if (style & MessageBoxStyle::Question)
        return (style & MessageBoxStyle::Critical) ? Exclamation : Question;
    if (style & MessageBoxStyle::Critical)
        return Critical;
    if (style & MessageBoxStyle::Information)
        return Information;
    return Message;
}

QString typeName(Type type)
{
    static const char *names[]
        = { "Critical", "Exclamation", "Information", "Question", "Message" };
    return QString::fromLatin1(names[type]);
}

QList<DialogButton> buttonsOf(int style)
{
    if (style == MessageBoxStyle::IdentityNumber)
        return { { QStringLiteral("cmdOK"), loadCatalogueText(foreignCardCaption), resultOK },
            { QStringLiteral("cmdCancel"), loadCatalogueText(typingErrorCaption), resultCancel } };
    if (style & MessageBoxStyle::YesNo)
        return { { QStringLiteral("cmdYes"), loadCatalogueText(yesCaption), resultYes },
            { QStringLiteral("cmdNo"), loadCatalogueText(noCaption), resultNo } };
    if (style & MessageBoxStyle::OKCancel)
        return { { QStringLiteral("cmdOK"), QStringLiteral("OK"), resultOK },
            { QStringLiteral("cmdCancel"), loadCatalogueText(cancelCaption), resultCancel } };
    return { { QStringLiteral("cmdOK"), QStringLiteral("OK"), resultOK } };
}

int resultForKey(const QList<DialogButton> &buttons, const QString &key)
{
    const QString upper = key.toUpper();
    if (upper == QLatin1String("ENTER") || upper == QLatin1String("\r"))
        return firstVisible(buttons, { resultYes, resultOK });
    if (upper == QLatin1String("ESCAPE") || upper == QLatin1String("ESC")
        || upper == QLatin1String("\x1b"))
        return firstVisible(buttons, { resultNo, resultCancel, resultOK });
    if (upper == QLatin1String("A") || upper == QLatin1String("C"))
        return resultOf(buttons, resultCancel);
    if (upper == QLatin1String("J") || upper == QLatin1String("Y"))
        return resultOf(buttons, resultYes);
    if (upper == QLatin1String("O"))
        return resultOf(buttons, resultOK);
    if (upper == QLatin1String("N"))
        return resultOf(buttons, resultNo);
    return 0;
}

int resultForIdentityKey(const QList<DialogButton> &buttons, const QString &key)
{
    const QString upper = key.toUpper();
    if (upper == QLatin1String("ENTER") || upper == QLatin1String("\r")
        || upper == QLatin1String("ESCAPE") || upper == QLatin1String("ESC")
        || upper == QLatin1String("\x1b"))
        return resultOf(buttons, resultCancel);
    if (upper.size() != 1)
        return 0;
    for (const DialogButton &button : buttons) {
        if (button.caption.left(1).toUpper() == upper)
            return button.result;
    }
    return 0;
}

QString identityNumberText(const QString &number)
{
    return loadCatalogueText(invalidIdentityNumber) + QStringLiteral("  ") + number
        + QStringLiteral("\r\r") + loadCatalogueText(typingErrorOrForeign);
}

int resultForScannedText(const QList<DialogButton> &buttons, const QString &text)
{
    if (text == QLatin1String("OK"))
        return firstVisible(buttons, { resultYes, resultOK });
    if (text == QLatin1String("ANN"))
        return firstVisible(buttons, { resultNo, resultCancel });
    return 0;
}

MessageBoxERequest prepare(const QString &prompt, int style, const QString &title)
{
    MessageBoxERequest request;
    request.prompt = prompt;
    request.style = style;
    request.title = title;
    const bool identityNumber = style == MessageBoxStyle::IdentityNumber;
    const Type type = identityNumber ? Exclamation : typeOf(style);
    request.type = type;
    request.typeName = typeName(type);
    const qint32 defaultTitle = identityNumber ? identityNumberTitle : firstTypeTitle + type;
    request.caption = isBlank(title) ? loadCatalogueText(defaultTitle) : title;
    request.text = identityNumber ? identityNumberText(prompt) : prompt;
    request.buttons = buttonsOf(style);
    const QList<DialogButton> buttons = request.buttons;
    if (identityNumber)
        request.resultForKey
            = [buttons](const QString &key) { return resultForIdentityKey(buttons, key); };
    else
        request.resultForKey = [buttons](const QString &key) { return resultForKey(buttons, key); };
    // A scan arrives framed as "%[data]"; the box answers on the data alone.
    request.resultForScan = [buttons](const QString &scan) {
        QString data = scan;
        if (data.startsWith(QLatin1String("%[")) && data.endsWith(QLatin1Char(']')))
            data = data.mid(2, data.size() - 3);
        return resultForScannedText(buttons, data);
    };
    request.firstShown = [type] { playDialogSound(type); };
    return request;
}

} // namespace MessageBoxLogic

int showMessageBoxE(const QString &prompt, int style, const QString &title)
{
    const int result
        = DialogPresenter::current().messageBoxE(MessageBoxLogic::prepare(prompt, style, title));
    modGenLib().msgBoxResult = result;
    return result;
}

} // namespace qor
