#include "invoiceform.h"

#include <qorgenlib/lib/clsqorgenlib.h>
#include <qorgenlib/platform/qt/qtplatform.h>

#include <QApplication>

// A host application in a few lines: install the on-screen platform, create the
// library object once, choose the language, and hand it to the forms.
int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    qor::Platform::install(std::make_shared<qor::QtPlatform>());
    clsqorGenLib lib;
    const QStringList args = app.arguments();
    const int at = args.indexOf(QStringLiteral("--offset"));
    if (at >= 0 && at + 1 < args.size())
        lib.setProperty("Offset", args.at(at + 1).toInt());
    InvoiceForm form(lib);
    form.show();
    // "--screenshot file.png" saves the form as shown and quits, for a look without a screen.
    const int shot = args.indexOf(QStringLiteral("--screenshot"));
    if (shot >= 0 && shot + 1 < args.size()) {
        app.processEvents();
        return form.grab().save(args.at(shot + 1)) ? 0 : 1;
    }
    return app.exec();
}
