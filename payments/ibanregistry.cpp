#include "payments/ibanregistry.h"

#include <array>
#include <iterator>

namespace qor {

namespace {

struct IbanCountry
{
    const char *code;
    const char *bbanClasses;
    int bbanLength;
};

#define QOR_IBAN_COUNTRY(code, classes) { code, classes, int(sizeof(classes)) - 1 },
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
using CountryIndex = std::array<const IbanCountry *, letters * letters>;

CountryIndex makeCountryIndex()
{
    CountryIndex index {};
    for (const IbanCountry &country : registry)
        index[(country.code[0] - 'A') * letters + (country.code[1] - 'A')] = &country;
    return index;
}

const IbanCountry *countryOf(QStringView code)
{
    static const CountryIndex index = makeCountryIndex();
    if (code.size() != 2)
        return nullptr;
    const int first = letterIndex(code[0]);
    const int second = letterIndex(code[1]);
    if (first < 0 || second < 0)
        return nullptr;
    return index[first * letters + second];
}

} // namespace

const char *ibanBbanClasses(QStringView country)
{
    const IbanCountry *known = countryOf(country);
    return known ? known->bbanClasses : nullptr;
}

int ibanBbanLength(QStringView country)
{
    const IbanCountry *known = countryOf(country);
    return known ? known->bbanLength : 0;
}

int ibanCountryCount()
{
    return int(std::size(registry));
}

} // namespace qor
