// Reads lines "kind<TAB>text" on standard input and writes for each one line
// "verdict<TAB>form": the check's verdict and, for a valid identifier, its
// print form (IBAN, creditor reference) or electronic form (BIC). Kinds: iban
// (a Belgian one also on its account's check digits), beiban, rf, bic. Used by the comparison with
// python-stdnum.

#include "payments/bic.h"
#include "payments/creditorreference.h"
#include "payments/iban.h"

#include <QString>

#include <iostream>
#include <string>

using namespace qor;

namespace {

const char *verdictName(PaymentCheck check)
{
    switch (check) {
    case PaymentCheck::Valid: return "Valid";
    case PaymentCheck::InvalidLength: return "InvalidLength";
    case PaymentCheck::InvalidFormat: return "InvalidFormat";
    case PaymentCheck::InvalidChecksum: return "InvalidChecksum";
    case PaymentCheck::InvalidComponent: return "InvalidComponent";
    }
    return "?";
}

struct Verdict
{
    PaymentCheck check;
    QString form;
};

Verdict verdictOf(const std::string &kind, const QString &text)
{
    if (kind == "iban" || kind == "beiban") {
        const QString electronic = ibanElectronicForm(text);
        const PaymentCheck check
            = kind == "iban" ? ibanAndAccountValidity(electronic) : belgianIbanValidity(electronic);
        return { check, ibanPrintForm(electronic) };
    }
    if (kind == "rf") {
        const QString electronic = creditorReferenceElectronicForm(text);
        return { creditorReferenceValidity(electronic), creditorReferencePrintForm(electronic) };
    }
    const QString electronic = bicElectronicForm(text);
    return { bicValidity(electronic), electronic };
}

} // namespace

int main()
{
    std::ios::sync_with_stdio(false);
    std::string line;
    while (std::getline(std::cin, line)) {
        const std::size_t tab = line.find('\t');
        if (tab == std::string::npos) {
            std::cout << "?\t\n";
            continue;
        }
        const Verdict verdict = verdictOf(
            line.substr(0, tab), QString::fromUtf8(line.data() + tab + 1, line.size() - tab - 1));
        std::cout << verdictName(verdict.check) << '\t'
                  << (verdict.check == PaymentCheck::Valid ? verdict.form.toStdString() : "")
                  << '\n';
    }
    return 0;
}
