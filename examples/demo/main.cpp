#include "demoapp.h"
#include "demofill.h"
#include "invoiceform.h"

#include <qorgenlib/platform/qt/qtplatform.h>

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

namespace {

QString option(const QStringList &args, const QString &name)
{
    const int at = args.indexOf(name);
    return at >= 0 && at + 1 < args.size() ? args.at(at + 1) : QString();
}

// The folder of the settings file: the machine's shared folder when it is
// there, else (or when asked) a folder of the user's own.
QString settingsFolder(const QStringList &args)
{
    QString folder = option(args, QStringLiteral("--system-dir"));
    if (folder.isEmpty() && QDir(qor::CorePlatform::defaultSystemDirectory()).exists())
        return qor::CorePlatform::defaultSystemDirectory();
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(folder);
    return folder;
}

// The application's folder, which holds the dialog sounds in "MultiMedia":
// the shared data folder of an installed demo, else the program's own folder
// (a build folder).
QString applicationFolder()
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QString installed
        = QDir::cleanPath(program.absoluteFilePath(QStringLiteral("../share/qorgenlib")));
    if (QDir(installed + QStringLiteral("/MultiMedia")).exists())
        return installed;
    return program.path();
}

} // namespace

// The host application: install the on-screen platform with Belgian regional
// settings, create the library object once, hand it the application, and show
// the windows.
//   --system-dir DIR     where qorSoft.ini lives
//   --fill demo          types a sample invoice
//   --screenshot FILE    saves the invoice window and quits
int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("qorgenlib-demo"));
    const QStringList args = app.arguments();
    auto machine = std::make_shared<qor::QtPlatform>();
    machine->setRegionalSettings(qor::RegionalSettings::fromLocale(QStringLiteral("nl_BE")));
    machine->setSystemDirectory(settingsFolder(args));
    qor::Platform::install(machine);

    DemoApp demo;
    if (!demo.start(applicationFolder()))
        return 1;
    demo.show();
    if (option(args, QStringLiteral("--fill")) == QLatin1String("demo"))
        DemoFill(demo.invoice()).fill();
    const QString shot = option(args, QStringLiteral("--screenshot"));
    if (shot.isEmpty())
        return app.exec();
    app.processEvents();
    return demo.invoice()->grab().save(shot) ? 0 : 1;
}
