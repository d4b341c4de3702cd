#pragma once

#include "qorgenlib_export.h"

#include "host/controls/column.h"

#include <QObject>
#include <QPointer>
#include <QTableView>
#include <QVariant>

class QHeaderView;

namespace qor {

class HeadingStyleAdapter;
class TranslationDelegate;
class ValueItemsAdapter;

/// One column of a QTableView under the names of a grid column: the caption,
/// alignment and direction picture in the heading, the width in twips (read
/// back from the header, so rounded to whole pixels), visibility, sizing, and
/// the value translation of its cells. Settings that a table view has no
/// counterpart for are kept as given.
class QORGENLIB_WIDGETS_EXPORT TableColumnAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qint32 ColIndex READ colIndex)
    Q_PROPERTY(QString DataField MEMBER m_dataField)
    Q_PROPERTY(QString Caption READ caption WRITE setCaption)
    Q_PROPERTY(qint32 Alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(float Width READ width WRITE setWidth)
    Q_PROPERTY(bool FetchStyle MEMBER m_fetchStyle)
    Q_PROPERTY(bool Visible READ visible WRITE setVisible)
    Q_PROPERTY(bool Merge MEMBER m_merge)
    Q_PROPERTY(bool AllowFocus MEMBER m_allowFocus)
    Q_PROPERTY(bool AllowSizing READ allowSizing WRITE setAllowSizing)
    Q_PROPERTY(QString NumberFormat MEMBER m_numberFormat)
    Q_PROPERTY(qint32 DividerStyle MEMBER m_dividerStyle)
    Q_PROPERTY(qint32 HeadAlignment READ headAlignment WRITE setHeadAlignment)
    Q_PROPERTY(QString Tag MEMBER m_tag)
    Q_PROPERTY(QObject *HeadingStyle READ headingStyle)
    Q_PROPERTY(QObject *ValueItems READ valueItems)

public:
    TableColumnAdapter(QTableView *view, qint32 index, QObject *parent = nullptr);

    qint32 colIndex() const { return m_index; }
    void setIndex(qint32 index);
    QString caption() const;
    void setCaption(const QString &caption);
    qint32 alignment() const { return m_alignment; }
    void setAlignment(qint32 alignment);
    float width() const;
    void setWidth(float twips);
    bool visible() const;
    void setVisible(bool visible);
    bool allowSizing() const { return m_allowSizing; }
    void setAllowSizing(bool allow);
    qint32 headAlignment() const { return m_headAlignment; }
    void setHeadAlignment(qint32 alignment);
    QObject *headingStyle() const;
    QObject *valueItems() const;

    QTableView *view() const;
    QHeaderView *header() const;
    TranslationDelegate *delegate() const { return m_delegate; }
    void setHeading(int role, const QVariant &value);

private:
    QPointer<QTableView> m_view;
    qint32 m_index;
    TranslationDelegate *m_delegate;
    HeadingStyleAdapter *m_headingStyle;
    ValueItemsAdapter *m_valueItems;
    QString m_dataField;
    qint32 m_alignment = controls::initial<qint32>(controls::column, "Alignment");
    int m_widthPixels = 0; // kept for a hidden column, whose section has no size
    bool m_fetchStyle = controls::initial<bool>(controls::column, "FetchStyle");
    bool m_merge = controls::initial<bool>(controls::column, "Merge");
    bool m_allowFocus = controls::initial<bool>(controls::column, "AllowFocus");
    bool m_allowSizing = controls::initial<bool>(controls::column, "AllowSizing");
    QString m_numberFormat;
    qint32 m_dividerStyle = controls::initial<qint32>(controls::column, "DividerStyle");
    qint32 m_headAlignment = controls::initial<qint32>(controls::column, "HeadAlignment");
    QString m_tag;
};

} // namespace qor
