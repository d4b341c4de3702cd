#pragma once

#include "qorgenlib_export.h"

#include "host/qt/widgetadapter.h"

#include <QCheckBox>
#include <QPointer>

namespace qor {

/// Gives a QCheckBox the names of a check box: Value 0 unchecked, 1 checked,
/// 2 greyed (partly checked), and Caption, besides the position and size in
/// twips of every placed control.
class QORGENLIB_WIDGETS_EXPORT CheckBoxAdapter : public WidgetAdapter
{
    Q_OBJECT
    Q_PROPERTY(qint16 Value READ value WRITE setValue)
    Q_PROPERTY(QString Caption READ caption WRITE setCaption)

public:
    explicit CheckBoxAdapter(QCheckBox *box, QObject *parent = nullptr);

    qint16 value() const;
    /// 380 for anything but 0, 1 and 2.
    void setValue(qint16 value);
    QString caption() const;
    void setCaption(const QString &caption);

private:
    QCheckBox *box() const;

    QPointer<QCheckBox> m_box;
};

} // namespace qor
