#pragma once

#include "qorgenlib_export.h"

#include "host/controls/grid.h"
#include "host/qt/widgetadapter.h"

#include <QObject>
#include <QPointer>
#include <QTableView>

namespace qor {

class GridStyleAdapter;
class TableColumnsAdapter;

/// Gives a QTableView the names of the host's data grid, so that the grid
/// set-up and translation calls work on a real table: place and size in twips,
/// row height, selection and editing, the style colours, and the Columns
/// collection. A view without a model gets an empty QStandardItemModel. The
/// adapter does not own the view.
class QORGENLIB_WIDGETS_EXPORT TableViewAdapter : public WidgetAdapter
{
    Q_OBJECT
    Q_PROPERTY(bool AllowAddNew MEMBER m_allowAddNew)
    Q_PROPERTY(bool AllowDelete MEMBER m_allowDelete)
    Q_PROPERTY(bool AllowUpdate READ allowUpdate WRITE setAllowUpdate)
    Q_PROPERTY(bool AllowColSelect MEMBER m_allowColSelect)
    Q_PROPERTY(qint32 DeadAreaBackColor READ deadAreaBackColor WRITE setDeadAreaBackColor)
    Q_PROPERTY(qint16 BorderStyle READ borderStyle WRITE setBorderStyle)
    Q_PROPERTY(double HeadLines READ headLines WRITE setHeadLines)
    Q_PROPERTY(bool RecordSelectors READ recordSelectors WRITE setRecordSelectors)
    Q_PROPERTY(bool PartialRightColumn MEMBER m_partialRightColumn)
    Q_PROPERTY(qint16 MultipleLines MEMBER m_multipleLines)
    Q_PROPERTY(qint32 MarqueeStyle READ marqueeStyle WRITE setMarqueeStyle)
    Q_PROPERTY(qint32 MultiSelect READ multiSelect WRITE setMultiSelect)
    Q_PROPERTY(qint32 ScrollBars READ scrollBars WRITE setScrollBars)
    Q_PROPERTY(qint32 RowDividerStyle READ rowDividerStyle WRITE setRowDividerStyle)
    Q_PROPERTY(bool FetchRowStyle MEMBER m_fetchRowStyle)
    Q_PROPERTY(float RowHeight READ rowHeight WRITE setRowHeight)
    Q_PROPERTY(QString Tag MEMBER m_tag)
    Q_PROPERTY(QObject *Style READ style)
    Q_PROPERTY(QObject *HighlightRowStyle READ highlightRowStyle)
    Q_PROPERTY(QObject *SelectedStyle READ selectedStyle)
    Q_PROPERTY(QObject *Columns READ columns)

public:
    explicit TableViewAdapter(QTableView *view, QObject *parent = nullptr);

    QTableView *view() const;

    bool allowUpdate() const;
    void setAllowUpdate(bool allow);
    qint32 deadAreaBackColor() const { return m_deadAreaBackColor; }
    void setDeadAreaBackColor(qint32 colour);
    qint16 borderStyle() const;
    void setBorderStyle(qint16 style);
    double headLines() const { return m_headLines; }
    void setHeadLines(double lines);
    bool recordSelectors() const;
    void setRecordSelectors(bool shown);
    qint32 marqueeStyle() const { return m_marqueeStyle; }
    void setMarqueeStyle(qint32 style);
    qint32 multiSelect() const { return m_multiSelect; }
    void setMultiSelect(qint32 mode);
    qint32 scrollBars() const { return m_scrollBars; }
    void setScrollBars(qint32 bars);
    qint32 rowDividerStyle() const { return m_rowDividerStyle; }
    void setRowDividerStyle(qint32 style);
    float rowHeight() const;
    void setRowHeight(float twips);
    QObject *style() const;
    QObject *highlightRowStyle() const;
    QObject *selectedStyle() const;
    QObject *columns() const;

private:
    QPointer<QTableView> m_view;
    GridStyleAdapter *m_style;
    GridStyleAdapter *m_highlightRowStyle;
    GridStyleAdapter *m_selectedStyle;
    TableColumnsAdapter *m_columns;
    bool m_allowAddNew = controls::initial<bool>(controls::grid, "AllowAddNew");
    bool m_allowDelete = controls::initial<bool>(controls::grid, "AllowDelete");
    bool m_allowColSelect = controls::initial<bool>(controls::grid, "AllowColSelect");
    qint32 m_deadAreaBackColor = controls::initial<qint32>(controls::grid, "DeadAreaBackColor");
    double m_headLines = controls::initial<double>(controls::grid, "HeadLines");
    bool m_partialRightColumn = controls::initial<bool>(controls::grid, "PartialRightColumn");
    qint16 m_multipleLines = controls::initial<qint16>(controls::grid, "MultipleLines");
    qint32 m_marqueeStyle = controls::initial<qint32>(controls::grid, "MarqueeStyle");
    qint32 m_multiSelect = controls::initial<qint32>(controls::grid, "MultiSelect");
    qint32 m_scrollBars = 3; // a fresh view shows both scroll bars when needed
    qint32 m_rowDividerStyle = controls::initial<qint32>(controls::grid, "RowDividerStyle");
    bool m_fetchRowStyle = controls::initial<bool>(controls::grid, "FetchRowStyle");
    QString m_tag;
};

} // namespace qor
