#pragma once

#include "invoiceline.h"

#include <QList>

// The shop's small article file: what a scanned or typed article code stands for.
class ArticleList
{
public:
    ArticleList();
    // The article with this code as a new line of quantity 1; nothing for an unknown code.
    std::optional<InvoiceLine> find(const QString &code) const;
    const QList<InvoiceLine> &articles() const { return m_articles; }

private:
    QList<InvoiceLine> m_articles;
};
