#include "system/processes.h"

#include "lib/frame/messageboxlogic.h"
#include "lib/frame/paths.h"
#include "platform/dialogpresenter.h"
#include "platform/filesystem.h"
#include "platform/processes.h"
#include "runtime/runtimeerror.h"

namespace qor {

namespace {

void reportStartFailure(const QString &commandLine, int number)
{
    const QString prompt = QStringLiteral("Error starting task ") + commandLine
        + QStringLiteral("\r\n") + RuntimeError::classicDescription(number);
    DialogPresenter::current().systemMessageBox(
        { prompt, MessageBoxStyle::Exclamation | MessageBoxStyle::OK, QStringLiteral("Error") });
}

} // namespace

qint32 shellAndWait(const QString &commandLine, qint32 windowStyle)
{
    // The styles of the classic start: 0 hidden, 1 normal, 2 minimised,
    // 3 maximised, 4 and 6 the same without focus; any other is refused.
    static const QList<qint32> styles { 0, 1, 2, 3, 4, 6 };
    if (!styles.contains(windowStyle)) {
        reportStartFailure(commandLine, RuntimeError::InvalidProcedureCall);
        return RuntimeError::InvalidProcedureCall;
    }
    const qint64 process = Processes::current().startProcess(commandLine, windowStyle);
    if (process < 0) {
        const int number = int(-process);
        reportStartFailure(commandLine, number);
        return number;
    }
    Processes::current().waitForProcess(process);
    return 0;
}

QString getFileList(
    const QString &folder, const QString &wildcard, qint32 attribute, const QString &separator)
{
    // The classic test was "attributes And (attribute = attribute)", that is
    // And True: any non-zero attribute value counts, whatever was asked.
    Q_UNUSED(attribute);
    const QString base = pathRS(folder);
    QString pattern = base + QLatin1Char('\\') + wildcard;
    // A wildcard may carry folders of its own: the last separator ends the folder.
    const qsizetype cut
        = qMax(pattern.lastIndexOf(QLatin1Char('\\')), pattern.lastIndexOf(QLatin1Char('/')));
    const QString directory = cut == 0 ? QStringLiteral("\\") : pattern.left(cut);
    pattern = pattern.mid(cut + 1);
    QString list;
    for (const FileEntry &entry : FileSystem::current().listFiles(directory, pattern)) {
        const auto attributes
            = FileSystem::current().fileAttributes(base + QLatin1Char('\\') + entry.name);
        if (!attributes || *attributes == 0)
            continue;
        if (!list.isEmpty())
            list += separator;
        list += entry.name;
    }
    return list;
}

QString getSystemDir()
{
    QString folder = FileSystem::current().systemDirectory().left(255);
    if (folder.endsWith(QLatin1Char('\\')))
        folder.chop(1);
    return folder;
}

void shutDownPC()
{
    Processes::current().shutDown();
}

} // namespace qor
