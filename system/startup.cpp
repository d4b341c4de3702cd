#include "system/startup.h"

#include "lib/frame/catalogue.h"
#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "platform/clock.h"
#include "platform/processes.h"
#include "runtime/callbyname.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"
#include "system/systemmessages.h"

#include <QCoreApplication>

namespace qor {

namespace {

// A property of the application object, or an empty value when it has none.
QVariant applicationValue(QObject *application, const char *name)
{
    if (!application)
        return QVariant();
    try {
        return getProperty(application, name);
    } catch (const RuntimeError &) {
        return QVariant();
    }
}

QString applicationText(QObject *application, const char *name)
{
    try {
        return toText(applicationValue(application, name), Clock::current().regionalSettings());
    } catch (const RuntimeError &) {
        return QString();
    }
}

bool applicationFlag(QObject *application, const char *name)
{
    try {
        return toBoolean(applicationValue(application, name), Clock::current().regionalSettings());
    } catch (const RuntimeError &) {
        return false;
    }
}

bool isBlank(const QString &text)
{
    for (QChar c : text) {
        if (c != QLatin1Char(' '))
            return false;
    }
    return true;
}

void reportAlreadyOpen(const QString &productName, const QString &exeName)
{
    const QString twoReturns(2, QChar(13));
    QString prompt;
    if (!isBlank(productName))
        prompt = productName + twoReturns;
    prompt += loadCatalogueText(catalogue::AlreadyOpen) + twoReturns
        + QStringLiteral("If the application is not visible, press CTRL-ALT-DEL, select the "
                         "'Task Manager' and click the 'Processes' tab.  Select ")
        + exeName + QStringLiteral(".exe from the list and press the 'End Process' button.");
    showMessageBoxE(prompt, MessageBoxStyle::Critical | MessageBoxStyle::OK,
        QStringLiteral("qorSoft Software"));
}

} // namespace

bool startUp(QObject *application, bool otherDLL, bool multiUse, qint32 offset)
{
    useLanguage(offset);
    modGenLib().application = application;
    if (otherDLL)
        return true;
    const QString exeName = applicationText(application, "EXEName");
    const QString instanceName
        = exeName.trimmed().isEmpty() ? QCoreApplication::applicationName() : exeName.trimmed();
    const bool anotherCopy = Processes::current().registerInstance(instanceName);
    if (!multiUse && (anotherCopy || applicationFlag(application, "PrevInstance"))) {
        reportAlreadyOpen(applicationText(application, "ProductName"), exeName);
        return false;
    }
    modGenLib().soundOff = false;
    return true;
}

} // namespace qor
