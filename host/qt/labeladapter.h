#pragma once

#include "qorgenlib_export.h"

#include "host/controls/label.h"

#include "host/qt/widgetadapter.h"

#include <QLabel>

namespace qor {

/// A label on a real form: Caption, Alignment (0 left, 1 right, 2 centre),
/// AutoSize (the label takes the width and height of its text) and ForeColor.
class QORGENLIB_WIDGETS_EXPORT LabelAdapter : public WidgetAdapter
{
    Q_OBJECT
    Q_PROPERTY(QString Caption READ caption WRITE setCaption)
    Q_PROPERTY(qint32 Alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(bool AutoSize READ autoSize WRITE setAutoSize)
    Q_PROPERTY(qint32 ForeColor READ foreColor WRITE setForeColor)

public:
    explicit LabelAdapter(QLabel *label, QObject *parent = nullptr);

    QString caption() const;
    void setCaption(const QString &caption);
    qint32 alignment() const;
    void setAlignment(qint32 alignment);
    bool autoSize() const { return m_autoSize; }
    void setAutoSize(bool autoSize);
    qint32 foreColor() const { return m_foreColor; }
    void setForeColor(qint32 colour);

private:
    QLabel *label() const;
    void fit();

    bool m_autoSize = controls::initial<bool>(controls::label, "AutoSize");
    qint32 m_foreColor = controls::initial<qint32>(controls::label, "ForeColor");
};

} // namespace qor
