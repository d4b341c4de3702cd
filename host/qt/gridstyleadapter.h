#pragma once

#include "qorgenlib_export.h"

#include "host/controls/gridstyle.h"

#include <QObject>
#include <QPalette>
#include <QPointer>

class QAbstractItemView;

namespace qor {

/// One style object of a grid on a QTableView: its colours go into the view's
/// palette roles (cells: Base and Text; the highlighted row: Highlight and
/// HighlightedText), and WrapText into the view's word wrap.
class QORGENLIB_WIDGETS_EXPORT GridStyleAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qint32 BackColor READ backColor WRITE setBackColor)
    Q_PROPERTY(qint32 ForeColor READ foreColor WRITE setForeColor)
    Q_PROPERTY(bool WrapText READ wrapText WRITE setWrapText)
    Q_PROPERTY(qint32 BorderAppearance MEMBER m_borderAppearance)

public:
    GridStyleAdapter(QAbstractItemView *view, QPalette::ColorRole back, QPalette::ColorRole fore,
        QObject *parent = nullptr);

    qint32 backColor() const { return m_backColor; }
    void setBackColor(qint32 colour);
    qint32 foreColor() const { return m_foreColor; }
    void setForeColor(qint32 colour);
    bool wrapText() const;
    void setWrapText(bool wrap);

private:
    void paint(QPalette::ColorRole role, qint32 colour);

    QPointer<QAbstractItemView> m_view;
    QPalette::ColorRole m_back;
    QPalette::ColorRole m_fore;
    qint32 m_backColor = 0xFFFFFF;
    qint32 m_foreColor = controls::initial<qint32>(controls::gridStyle, "ForeColor");
    qint32 m_borderAppearance = controls::initial<qint32>(controls::gridStyle, "BorderAppearance");
};

} // namespace qor
