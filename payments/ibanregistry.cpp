#include "payments/ibanregistry.h"

#include <array>
#include <iterator>

namespace qor {

namespace {

struct IbanCountry
{
    const char *code;
    const char *bbanClasses;
};

#define QOR_IBAN_COUNTRY(code, classes) { code, classes },
constexpr IbanCountry registry[] = {
#include "ibanregistrytable.inc"
};
#undef QOR_IBAN_COUNTRY

constexpr int letters = 26;

int letterIndex(QChar c)
{
    return c >= u'A' && c <= u'Z' ? c.unicode() - u'A' : -1;
}

// The registry indexed by the two letters of the country code.
using CountryIndex = std::array<const char *, letters * letters>;

CountryIndex makeCountryIndex()
{
    CountryIndex index {};
    for (const IbanCountry &country : registry)
        index[(country.code[0] - 'A') * letters + (country.code[1] - 'A')] = country.bbanClasses;
    return index;
}

} // namespace

const char *ibanBbanClasses(QStringView country)
{
    static const CountryIndex index = makeCountryIndex();
    if (country.size() != 2)
        return nullptr;
    const int first = letterIndex(country[0]);
    const int second = letterIndex(country[1]);
    if (first < 0 || second < 0)
        return nullptr;
    return index[first * letters + second];
}

int ibanCountryCount()
{
    return int(std::size(registry));
}

} // namespace qor
