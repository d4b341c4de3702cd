#pragma once

#include "qorgenlib_export.h"

#include "host/columns.h"
#include "host/hostobject.h"

namespace qor {

/// The host's data grid: the grid-wide settings the library sets or reads,
/// its three style objects and its columns, in index order.
class QORGENLIB_EXPORT Grid : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Grid")
    Q_PROPERTY(bool AllowAddNew MEMBER m_allowAddNew)
    Q_PROPERTY(bool AllowDelete MEMBER m_allowDelete)
    Q_PROPERTY(bool AllowUpdate MEMBER m_allowUpdate)
    Q_PROPERTY(bool AllowColSelect MEMBER m_allowColSelect)
    Q_PROPERTY(qint32 DeadAreaBackColor MEMBER m_deadAreaBackColor)
    Q_PROPERTY(qint16 BorderStyle MEMBER m_borderStyle)
    Q_PROPERTY(double HeadLines MEMBER m_headLines)
    Q_PROPERTY(bool RecordSelectors MEMBER m_recordSelectors)
    Q_PROPERTY(bool PartialRightColumn MEMBER m_partialRightColumn)
    Q_PROPERTY(qint16 MultipleLines MEMBER m_multipleLines)
    Q_PROPERTY(qint32 MarqueeStyle MEMBER m_marqueeStyle)
    Q_PROPERTY(qint32 MultiSelect MEMBER m_multiSelect)
    Q_PROPERTY(qint32 ScrollBars MEMBER m_scrollBars)
    Q_PROPERTY(qint32 RowDividerStyle MEMBER m_rowDividerStyle)
    Q_PROPERTY(bool FetchRowStyle MEMBER m_fetchRowStyle)
    Q_PROPERTY(float Left MEMBER m_left)
    Q_PROPERTY(float Top MEMBER m_top)
    Q_PROPERTY(float Width MEMBER m_width)
    Q_PROPERTY(float Height MEMBER m_height)
    Q_PROPERTY(float RowHeight MEMBER m_rowHeight)
    Q_PROPERTY(QString Tag MEMBER m_tag)
    Q_PROPERTY(QObject *Style MEMBER m_style)
    Q_PROPERTY(QObject *HighlightRowStyle MEMBER m_highlightRowStyle)
    Q_PROPERTY(QObject *SelectedStyle MEMBER m_selectedStyle)
    Q_PROPERTY(QVariant Columns READ columns WRITE setColumns)

public:
    explicit Grid(QObject *parent = nullptr);

    QString elementClass(const QString &property) const override;

    /// The Columns collection; an array of columns replaces its elements.
    QVariant columns() const;
    void setColumns(const QVariant &columns);

private:
    bool m_allowAddNew = false;
    bool m_allowDelete = false;
    bool m_allowUpdate = false;
    bool m_allowColSelect = false;
    qint32 m_deadAreaBackColor = 0;
    qint16 m_borderStyle = 0;
    double m_headLines = 1;
    bool m_recordSelectors = false;
    bool m_partialRightColumn = true; // the grid control's own default
    qint16 m_multipleLines = 0;
    qint32 m_marqueeStyle = 0;
    qint32 m_multiSelect = 0;
    qint32 m_scrollBars = 0;
    qint32 m_rowDividerStyle = 0;
    bool m_fetchRowStyle = false;
    float m_left = 0;
    float m_top = 0;
    float m_width = 0;
    float m_height = 0;
    float m_rowHeight = 225; // one text line and its divider
    QString m_tag;
    QObject *m_style = nullptr;
    QObject *m_highlightRowStyle = nullptr;
    QObject *m_selectedStyle = nullptr;
    Columns *m_columns = nullptr;
};

} // namespace qor
