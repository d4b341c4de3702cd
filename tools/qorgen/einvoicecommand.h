#pragma once

#include <QStringList>

#include <cstdio>

namespace qor {

// `qorgen einvoice write|read|check [OPTIONS] FILE`: e-invoices from the
// shell. `write` turns the JSON shape of docs/einvoice.md into a Peppol UBL
// document after the library's rule check; `read` turns a UBL document into
// that JSON; `check` prints the rules a UBL document or JSON model breaks,
// one "RULE: message" per line. FILE "-" is standard input.
// Exit status: 0 done (no rule broken), 1 rules broken (nothing written),
// 2 the command could not run (bad option, unreadable file, XML or JSON).
class EInvoiceCommand
{
public:
    static int run(const QStringList &arguments, std::FILE *in, std::FILE *out, std::FILE *err);
};

} // namespace qor
