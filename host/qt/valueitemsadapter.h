#pragma once

#include "qorgenlib_export.h"

#include <QObject>
#include <QPointer>

namespace qor {

class TranslationDelegate;

/// A column's value translation list on a QTableView: Add keeps a copy of the
/// item's Value and DisplayValue in the column's delegate, Translate switches
/// the translation on, Item(i) gives a copy of entry i.
class QORGENLIB_WIDGETS_EXPORT ValueItemsAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qint32 Count READ count)
    Q_PROPERTY(bool Translate READ translate WRITE setTranslate)

public:
    explicit ValueItemsAdapter(TranslationDelegate *delegate, QObject *parent = nullptr);

    qint32 count() const;
    bool translate() const;
    void setTranslate(bool on);

    Q_INVOKABLE void Add(QObject *item);
    Q_INVOKABLE QObject *Item(qint32 index);
    Q_INVOKABLE void Remove(qint32 index);
    Q_INVOKABLE void Clear();

private:
    TranslationDelegate *delegate() const;
    void repaint() const;

    QPointer<TranslationDelegate> m_delegate;
};

} // namespace qor
