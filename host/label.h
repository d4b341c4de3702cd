#pragma once

#include "qorgenlib_export.h"

#include "host/controls/label.h"

#include "host/control.h"

namespace qor {

/// A label. With AutoSize it takes 100 twips of width per character of its
/// caption, the measure of the model's font.
class QORGENLIB_EXPORT Label : public Control
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Label")
    Q_PROPERTY(qint32 Alignment MEMBER m_alignment)
    Q_PROPERTY(bool AutoSize READ autoSize WRITE setAutoSize)
    Q_PROPERTY(QString Caption READ caption WRITE setCaption)
    Q_PROPERTY(qint32 ForeColor MEMBER m_foreColor)

public:
    explicit Label(QObject *parent = nullptr);

    bool autoSize() const { return m_autoSize; }
    void setAutoSize(bool autoSize);
    QString caption() const { return m_caption; }
    void setCaption(const QString &caption);

private:
    void fitCaption();

    qint32 m_alignment = controls::initial<qint32>(controls::label, "Alignment");
    bool m_autoSize = controls::initial<bool>(controls::label, "AutoSize");
    QString m_caption;
    qint32 m_foreColor = controls::initial<qint32>(controls::label, "ForeColor");
};

} // namespace qor
