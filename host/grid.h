#pragma once

#include "qorgenlib_export.h"

#include "host/controls/grid.h"

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
    bool m_allowAddNew = controls::initial<bool>(controls::grid, "AllowAddNew");
    bool m_allowDelete = controls::initial<bool>(controls::grid, "AllowDelete");
    bool m_allowUpdate = controls::initial<bool>(controls::grid, "AllowUpdate");
    bool m_allowColSelect = controls::initial<bool>(controls::grid, "AllowColSelect");
    qint32 m_deadAreaBackColor = controls::initial<qint32>(controls::grid, "DeadAreaBackColor");
    qint16 m_borderStyle = controls::initial<qint16>(controls::grid, "BorderStyle");
    double m_headLines = controls::initial<double>(controls::grid, "HeadLines");
    bool m_recordSelectors = controls::initial<bool>(controls::grid, "RecordSelectors");
    bool m_partialRightColumn = controls::initial<bool>(controls::grid, "PartialRightColumn");
    qint16 m_multipleLines = controls::initial<qint16>(controls::grid, "MultipleLines");
    qint32 m_marqueeStyle = controls::initial<qint32>(controls::grid, "MarqueeStyle");
    qint32 m_multiSelect = controls::initial<qint32>(controls::grid, "MultiSelect");
    qint32 m_scrollBars = controls::initial<qint32>(controls::grid, "ScrollBars");
    qint32 m_rowDividerStyle = controls::initial<qint32>(controls::grid, "RowDividerStyle");
    bool m_fetchRowStyle = controls::initial<bool>(controls::grid, "FetchRowStyle");
    float m_left = controls::initial<float>(controls::grid, "Left");
    float m_top = controls::initial<float>(controls::grid, "Top");
    float m_width = controls::initial<float>(controls::grid, "Width");
    float m_height = controls::initial<float>(controls::grid, "Height");
    float m_rowHeight = controls::initial<float>(controls::grid, "RowHeight");
    QString m_tag;
    QObject *m_style = nullptr;
    QObject *m_highlightRowStyle = nullptr;
    QObject *m_selectedStyle = nullptr;
    Columns *m_columns = nullptr;
};

} // namespace qor
