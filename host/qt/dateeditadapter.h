#pragma once

#include "qorgenlib_export.h"

#include <QDateTimeEdit>
#include <QObject>
#include <QPointer>
#include <QVariant>

namespace qor {

// Gives a QDateEdit (or QDateTimeEdit) the names of a date field: Text as
// shown and Value as a date.
class QORGENLIB_WIDGETS_EXPORT DateEditAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ text)
    Q_PROPERTY(QVariant Value READ value WRITE setValue)

public:
    explicit DateEditAdapter(QDateTimeEdit *edit, QObject *parent = nullptr);

    QString text() const;
    QVariant value() const;
    void setValue(const QVariant &value);

private:
    QDateTimeEdit *edit() const;

    QPointer<QDateTimeEdit> m_edit;
};

} // namespace qor
