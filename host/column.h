#pragma once

#include "qorgenlib_export.h"

#include "host/controls/column.h"

#include "host/hostobject.h"
#include "host/valueitems.h"

namespace qor {

/// A column of a host grid, with its heading style and its value translation list.
class QORGENLIB_EXPORT Column : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Column")
    Q_PROPERTY(qint32 ColIndex MEMBER m_colIndex)
    Q_PROPERTY(QString DataField MEMBER m_dataField)
    Q_PROPERTY(QString Caption MEMBER m_caption)
    Q_PROPERTY(qint32 Alignment MEMBER m_alignment)
    Q_PROPERTY(float Width MEMBER m_width)
    Q_PROPERTY(bool FetchStyle MEMBER m_fetchStyle)
    Q_PROPERTY(bool Visible MEMBER m_visible)
    Q_PROPERTY(bool Merge MEMBER m_merge)
    Q_PROPERTY(bool AllowFocus MEMBER m_allowFocus)
    Q_PROPERTY(bool AllowSizing MEMBER m_allowSizing)
    Q_PROPERTY(QString NumberFormat MEMBER m_numberFormat)
    Q_PROPERTY(qint32 DividerStyle MEMBER m_dividerStyle)
    Q_PROPERTY(qint32 HeadAlignment MEMBER m_headAlignment)
    Q_PROPERTY(QString Tag MEMBER m_tag)
    Q_PROPERTY(QObject *HeadingStyle MEMBER m_headingStyle)
    Q_PROPERTY(QVariant ValueItems READ valueItems WRITE setValueItems)
    Q_PROPERTY(bool Translate READ translate WRITE setTranslate)

public:
    explicit Column(QObject *parent = nullptr);

    QString elementClass(const QString &property) const override;

    /// The translation list (a ValueItems collection); an array of items replaces its elements.
    QVariant valueItems() const;
    void setValueItems(const QVariant &items);
    /// The list's Translate.
    bool translate() const;
    void setTranslate(bool on);

private:
    qint32 m_colIndex = controls::initial<qint32>(controls::column, "ColIndex");
    QString m_dataField;
    QString m_caption;
    qint32 m_alignment = controls::initial<qint32>(controls::column, "Alignment");
    float m_width = controls::initial<float>(controls::column, "Width");
    bool m_fetchStyle = controls::initial<bool>(controls::column, "FetchStyle");
    bool m_visible = controls::initial<bool>(controls::column, "Visible");
    bool m_merge = controls::initial<bool>(controls::column, "Merge");
    bool m_allowFocus = controls::initial<bool>(controls::column, "AllowFocus");
    bool m_allowSizing = controls::initial<bool>(controls::column, "AllowSizing");
    QString m_numberFormat;
    qint32 m_dividerStyle = controls::initial<qint32>(controls::column, "DividerStyle");
    qint32 m_headAlignment = controls::initial<qint32>(controls::column, "HeadAlignment");
    QString m_tag;
    QObject *m_headingStyle = nullptr;
    ValueItems *m_valueItems = nullptr;
};

} // namespace qor
