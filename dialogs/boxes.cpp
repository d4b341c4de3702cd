#include "dialogs/boxes.h"

#include "lib/frame/catalogue.h"
#include "lib/frame/dialogsound.h"
#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "platform/dialogpresenter.h"
#include "runtime/blanks.h"

namespace qor {

namespace {

constexpr qint32 cancelCaption = 9500;

} // namespace

qint32 msgBoxE(const QString &prompt, qint32 buttons, const QString &title, qint32 offset)
{
    useLanguage(offset);
    return showMessageBoxE(prompt, buttons, title);
}

QString inputBoxE(const QString &prompt, const QString &title, const QString &defaultValue,
    qint32 maxLength, qint32 offset)
{
    modGenLib().inputBoxResult.clear();
    useLanguage(offset);
    InputBoxERequest request;
    request.prompt = prompt;
    request.title = title;
    request.caption = trimBlanks(title).isEmpty() ? QStringLiteral("?") : title;
    request.defaultValue = defaultValue;
    request.maxLength = maxLength;
    request.okCaption = QStringLiteral("OK");
    request.cancelCaption = loadCatalogueText(cancelCaption);
    request.firstShown = [] { playDialogSound(MessageBoxLogic::Question); };
    const InputBoxEAnswer answer = DialogPresenter::current().inputBoxE(request);
    const QString result = answer.cancelled ? inputBoxCancelled : trimBlanks(answer.text);
    modGenLib().inputBoxResult = result;
    return result;
}

} // namespace qor
