#pragma once

#include <QStringList>

#include <cstdio>

namespace qor {

// `qorgen einvoice write|check [OPTIONS] FILE`: e-invoices from the shell.
// `write` turns the JSON shape of docs/einvoice.md into a Peppol UBL
// document after the library's rule check; `check` prints the rules a JSON
// model breaks, one "RULE: message" per line. FILE "-" is standard input.
// Exit status: 0 done (no rule broken), 1 rules broken (nothing written),
// 2 the command could not run (bad option, unreadable file or JSON).
class EInvoiceCommand
{
public:
    static int run(const QStringList &arguments, std::FILE *in, std::FILE *out, std::FILE *err);
};

} // namespace qor
