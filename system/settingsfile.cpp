#include "system/settingsfile.h"

#include "lib/frame/catalogue.h"
#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "platform/dialogpresenter.h"
#include "platform/filesystem.h"
#include "system/processes.h"
#include "system/profilefile.h"
#include "system/systemmessages.h"

namespace qor {

namespace {

void useDefaultWhenEmpty(QString &iniFile)
{
    if (iniFile.isEmpty())
        iniFile = defaultSettingsFile();
}

void reportMissing(const QString &header, const QString &section, const QString &iniFile)
{
    const QString prompt = QLatin1Char('[') + header + QStringLiteral("] - ") + section
        + QStringLiteral("= ?") + QString(2, QChar(13))
        + loadCatalogueText(catalogue::ParameterNotFound) + iniFile + QStringLiteral(" !");
    DialogPresenter::current().systemMessageBox({ prompt, MessageBoxStyle::Critical, QString() });
}

} // namespace

QString defaultSettingsFile()
{
    return getSystemDir() + QStringLiteral("\\qorSoft.ini");
}

QString getIni(
    const QString &header, const QString &section, QString &iniFile, bool mbox, qint32 offset)
{
    useLanguage(offset);
    useDefaultWhenEmpty(iniFile);
    QString result;
    if (const auto contents = FileSystem::current().readFile(iniFile))
        result = ProfileFile(*contents).value(header, section).value_or(QString());
    result.truncate(settingValueLength);
    if (result.isEmpty() && mbox)
        reportMissing(header, section, iniFile);
    return result;
}

void writeIni(const QString &header, const QString &section, const QString &value, QString &iniFile)
{
    useDefaultWhenEmpty(iniFile);
    FileSystem::current().updateFile(
        iniFile, [&](const QByteArray &old) -> std::optional<QByteArray> {
            return ProfileFile(old).withValue(header, section, value);
        });
}

} // namespace qor
