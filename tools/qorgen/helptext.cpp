#include "tools/qorgen/helptext.h"

#include <QRegularExpression>
#include <QStringList>

namespace qor {

QString helpText()
{
    return QStringLiteral(R"(qorgen - call the qorGenLib library object by name

Usage:
  qorgen call [OPTIONS] METHOD [ARG ...]
      Calls one method or property and prints its result. Each ARG is a JSON
      value; an ARG that is not valid JSON is taken as a plain string.
      What the call showed (message boxes, sounds, ...) goes to standard error.
      Options:
        --set NAME=JSON     assign a property first (repeatable)
        --locale NAME       regional settings, e.g. nl_BE, fr_BE, en_US
        --now ISO-DATETIME  the clock, e.g. 2004-05-20T08:30:00
        --answer JSON       the next dialog's answer, e.g. 6, "Escape" (repeatable)
        --json              print the whole response object instead
      Exit status: 0 the call ran, 1 it raised a run-time error,
                   2 the request could not be read.
      Examples:
        qorgen call ControleerBankNr 000-0000000-97
        qorgen call --locale nl_BE --json CGetal '"12,5"'
        qorgen call --set Offset=10000 LLGenLib 1031

  qorgen batch
      JSON Lines: one request object per line on standard input, one response
      object per line on standard output, in order. One library object (and one
      set of module-wide state) serves the whole batch.
      Request fields: call, args, set, env, answers, new.
      Example:
        printf '%s\n' '{"call": "FilterNumeric", "args": ["BE 12-34"]}' | qorgen batch

  qorgen methods
      The type information as JSON: every method with its parameters, every
      property with its type, every enumeration with its members in order.
      Example:
        qorgen methods

  qorgen records write|read --widths W,W... [OPTIONS] FILE
      Data files of fixed-field records (windows-1252, CRLF). write reads one
      JSON array of field strings per line on standard input and writes FILE,
      numbering the records; read writes one JSON array per record of FILE on
      standard output and reports each faulty line on standard error as
      {"line": N, "fault": "checksum", "reason": "..."}. FILE "-" is the
      standard output (write) or input (read).
      Options:
        --widths 4,3            the field widths (required)
        --formats JSON          one mask per field, e.g. '["","0.00"]'
        --no-line-numbers       no six-digit line number in front
        --no-checksum           no checksum at the end
        --separator TEXT        what write puts between fields (read wants a blank)
        --locale NAME           regional settings of the formats, e.g. nl_BE
      Exit status: 0 every line passed, 1 some lines were faulty,
                   2 the command could not run.
      Example:
        echo '["AB","7"]' | qorgen records write --widths 4,3 out.txt

  qorgen einvoice write|read|check [OPTIONS] FILE
      E-invoices as the JSON shape of docs/einvoice.md (FILE "-" is standard
      input). write checks a JSON model against the rules of the e-invoice
      norm and the Peppol profile and writes it as a Peppol BIS 3.0 UBL
      document; read prints a UBL document as that JSON (what the model
      drops is said on standard error); check prints the rules a UBL
      document or JSON model breaks, one "RULE: message" per line.
      Options:
        -o OUT.xml              where write puts the document (default: standard output)
        --language nl|fr|en     the language of the rule messages (default nl)
      Exit status: 0 done, no rule broken; 1 rules broken (write then writes
                   nothing and says why on standard error);
                   2 the command could not run (bad option, unreadable FILE,
                   XML or JSON).
      Examples:
        qorgen einvoice write invoice.json -o invoice.xml
        qorgen einvoice read invoice.xml > invoice.json

  qorgen --help       this text
  qorgen --version    the version

Values in JSON: strings, true/false, numbers, null (Null), {"$empty": true}
(Empty), {"$date": "2004-05-20T08:30:00"}, arrays, {"$missing": true} for an
optional argument left out, and {"$object": "TextBox", "Text": "..."} for the
model host controls.
)");
}

QString commandHelpText(const QString &command)
{
    const QStringList lines = helpText().split(QLatin1Char('\n'));
    const QString heading = QStringLiteral("  qorgen ") + command;
    QStringList part;
    for (const QString &line : lines) {
        const bool startsCommand = line.startsWith(QLatin1String("  qorgen "));
        if (startsCommand && !part.isEmpty())
            break;
        if (part.isEmpty()
            && !(startsCommand && (line == heading || line.startsWith(heading + QLatin1Char(' ')))))
            continue;
        part.append(line);
    }
    if (part.isEmpty())
        return QString();
    while (!part.isEmpty() && part.last().trimmed().isEmpty())
        part.removeLast();
    const qsizetype values = lines.indexOf(QRegularExpression(QStringLiteral("^Values in JSON")));
    QStringList text { QStringLiteral("Usage:") };
    text += part;
    if (values >= 0)
        text += QStringList { QString() } + lines.mid(values);
    return text.join(QLatin1Char('\n'));
}

} // namespace qor
