#pragma once

#include "qorgenlib_export.h"

#include "host/qt/widgetadapter.h"

#include <QAbstractSpinBox>
#include <QObject>
#include <QPointer>
#include <QVariant>

namespace qor {

/// Gives a QSpinBox or QDoubleSpinBox the names of an up-down field: Text as
/// shown and Value as a number (Long for a QSpinBox, Double otherwise),
/// besides the position and size in twips of every placed control.
class QORGENLIB_WIDGETS_EXPORT SpinBoxAdapter : public WidgetAdapter
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ text)
    Q_PROPERTY(QVariant Value READ value WRITE setValue)

public:
    explicit SpinBoxAdapter(QAbstractSpinBox *box, QObject *parent = nullptr);

    QString text() const;
    QVariant value() const;
    void setValue(const QVariant &value);

private:
    QAbstractSpinBox *box() const;

    QPointer<QAbstractSpinBox> m_box;
};

} // namespace qor
