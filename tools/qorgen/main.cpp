#include "tools/qorgen/batchcommand.h"
#include "tools/qorgen/callcommand.h"
#include "tools/qorgen/einvoicecommand.h"
#include "tools/qorgen/helptext.h"
#include "tools/qorgen/jsonwriter.h"
#include "tools/qorgen/recordscommand.h"
#include "tools/qorgen/typeinfojson.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>

using namespace qor;

namespace {

void print(std::FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}

int usage()
{
    print(stderr,
        "Usage: qorgen call|batch|methods|records|einvoice|--help|--version (see qorgen --help)\n");
    return 2;
}

} // namespace

int main(int argc, char *argv[])
{
#ifdef SIGPIPE
    // A reader that goes away ends the batch through a failed write, not a signal.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments().mid(1);
    const QString command = arguments.value(0);
    // "qorgen COMMAND --help" answers with that command's help.
    if (arguments.size() == 2
        && (arguments.at(1) == QLatin1String("--help") || arguments.at(1) == QLatin1String("-h"))) {
        const QString help = commandHelpText(command);
        if (!help.isEmpty()) {
            print(stdout, help.toUtf8());
            return 0;
        }
    }
    if (command == QLatin1String("call"))
        return CallCommand::run(arguments.mid(1), stdout, stderr);
    if (command == QLatin1String("batch") && arguments.size() == 1)
        return BatchCommand::run(stdin, stdout);
    if (command == QLatin1String("einvoice"))
        return EInvoiceCommand::run(arguments.mid(1), stdin, stdout, stderr);
    if (command == QLatin1String("records"))
        return RecordsCommand::run(arguments.mid(1), stdin, stdout, stderr);
    if (command == QLatin1String("methods") && arguments.size() == 1) {
        print(stdout, JsonWriter::indented(TypeInfoJson::describeAll()));
        return 0;
    }
    if (command == QLatin1String("--help") || command == QLatin1String("-h")
        || command == QLatin1String("help")) {
        print(stdout, helpText().toUtf8());
        return 0;
    }
    if (command == QLatin1String("--version")) {
        print(stdout, QByteArray("qorgen " QORGEN_VERSION "\n"));
        return 0;
    }
    return usage();
}
