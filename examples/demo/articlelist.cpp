#include "articlelist.h"

ArticleList::ArticleList()
{
    // code, description, quantity, unit, price incl. VAT, VAT rate, payment method
    m_articles = {
        { QStringLiteral("5410000100017"), QStringLiteral("Container 1,1 m3 huur"), 1, 7, 45.98,
            2100, 2 },
        { QStringLiteral("5410000100024"), QStringLiteral("Ledigen restafval"), 1, 12, 18.15, 2100,
            2 },
        { QStringLiteral("5410000100031"), QStringLiteral("Groenafval"), 1, 2, 0.12, 600, 1 },
        { QStringLiteral("5410000100048"), QStringLiteral("Afvalzakken rol 20 st."), 1, 9, 12.50,
            2100, 4 },
        { QStringLiteral("5410000100055"), QStringLiteral("Bouwpuin"), 1, 3, 31.80, 2100, 6 },
        { QStringLiteral("5410000100062"), QStringLiteral("Compostvat"), 1, 4, 29.95, 600, 4 },
    };
}

std::optional<InvoiceLine> ArticleList::find(const QString &code) const
{
    for (const InvoiceLine &article : m_articles) {
        if (article.code == code.trimmed())
            return article;
    }
    return std::nullopt;
}
