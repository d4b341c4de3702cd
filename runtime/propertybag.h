#pragma once

#include "qorgenlib_export.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <vector>

namespace qor {

/// Properties an object keeps beside its declared ones, found by name regardless
/// of the case of ASCII letters in constant time, listed in the order they were
/// first assigned. A model control is such an object; the call-by-name functions look in its bag
/// after its declared properties.
class QORGENLIB_EXPORT PropertyBag
{
public:
    virtual ~PropertyBag();

    /// The spelling the bag knows `name` by, or an empty text.
    QString bagName(const QString &name) const;
    /// The value, or nullptr when the bag has no such property.
    const QVariant *bagValue(const QString &name) const;
    /// Assigns; a new name is kept in the spelling given.
    void bagAssign(const QString &name, const QVariant &value);
    const QStringList &bagNames() const { return m_names; }

private:
    qsizetype indexOf(const QString &name) const;

    QHash<QString, qsizetype> m_index; // folded name -> position
    QStringList m_names;
    std::vector<QVariant> m_values;
};

} // namespace qor
