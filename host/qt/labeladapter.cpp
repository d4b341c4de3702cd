#include "host/qt/labeladapter.h"

namespace qor {

LabelAdapter::LabelAdapter(QLabel *label, QObject *parent)
    : WidgetAdapter(label, parent)
{ }

QLabel *LabelAdapter::label() const
{
    return static_cast<QLabel *>(widget());
}

QString LabelAdapter::caption() const
{
    return label()->text();
}
void LabelAdapter::setCaption(const QString &caption)
{
    label()->setText(caption);
    fit();
}

qint32 LabelAdapter::alignment() const
{
    const Qt::Alignment horizontal = label()->alignment() & Qt::AlignHorizontal_Mask;
    return horizontal & Qt::AlignRight ? 1 : horizontal & Qt::AlignHCenter ? 2 : 0;
}
void LabelAdapter::setAlignment(qint32 alignment)
{
    const Qt::Alignment horizontal = alignment == 1 ? Qt::AlignRight
        : alignment == 2                            ? Qt::AlignHCenter
                                                    : Qt::AlignLeft;
    label()->setAlignment(horizontal | Qt::AlignVCenter);
}

void LabelAdapter::setAutoSize(bool autoSize)
{
    m_autoSize = autoSize;
    fit();
}

void LabelAdapter::setForeColor(qint32 colour)
{
    m_foreColor = colour;
    QPalette palette = label()->palette();
    palette.setColor(QPalette::WindowText, colourOf(colour));
    label()->setPalette(palette);
}

void LabelAdapter::fit()
{
    if (m_autoSize)
        label()->resize(label()->sizeHint());
}

} // namespace qor
