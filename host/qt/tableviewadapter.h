#pragma once

#include "qorgenlib_export.h"

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
class QORGENLIB_WIDGETS_EXPORT TableViewAdapter : public QObject
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
    Q_PROPERTY(float Left READ left WRITE setLeft)
    Q_PROPERTY(float Top READ top WRITE setTop)
    Q_PROPERTY(float Width READ width WRITE setWidth)
    Q_PROPERTY(float Height READ height WRITE setHeight)
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
    float left() const;
    void setLeft(float twips);
    float top() const;
    void setTop(float twips);
    float width() const;
    void setWidth(float twips);
    float height() const;
    void setHeight(float twips);
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
    bool m_allowAddNew = false;
    bool m_allowDelete = false;
    bool m_allowColSelect = false;
    qint32 m_deadAreaBackColor = 0;
    double m_headLines = 1;
    bool m_partialRightColumn = true;
    qint16 m_multipleLines = 0;
    qint32 m_marqueeStyle = 0;
    qint32 m_multiSelect = 0;
    qint32 m_scrollBars = 3;
    qint32 m_rowDividerStyle = 0;
    bool m_fetchRowStyle = false;
    QString m_tag;
};

} // namespace qor
