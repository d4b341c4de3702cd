#include "runtime/propertybag.h"

namespace qor {

namespace {

// Names match with the ASCII letters alone folded, as names have always matched.
QString folded(const QString &name)
{
    QString text = name;
    for (QChar &c : text) {
        if (c >= u'A' && c <= u'Z')
            c = QChar(c.unicode() + (u'a' - u'A'));
    }
    return text;
}

} // namespace

PropertyBag::~PropertyBag() = default;

qsizetype PropertyBag::indexOf(const QString &name) const
{
    return m_index.value(folded(name), -1);
}

QString PropertyBag::bagName(const QString &name) const
{
    const qsizetype index = indexOf(name);
    return index < 0 ? QString() : m_names[index];
}

const QVariant *PropertyBag::bagValue(const QString &name) const
{
    const qsizetype index = indexOf(name);
    return index < 0 ? nullptr : &m_values[size_t(index)];
}

void PropertyBag::bagAssign(const QString &name, const QVariant &value)
{
    const QString key = folded(name);
    const auto it = m_index.constFind(key);
    if (it != m_index.constEnd()) {
        m_values[size_t(*it)] = value;
        return;
    }
    m_index.insert(key, m_names.size());
    m_names.append(name);
    m_values.push_back(value);
}

} // namespace qor
