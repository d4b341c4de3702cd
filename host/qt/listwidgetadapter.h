#pragma once

#include "host/qt/listadapter.h"

#include <QListWidget>
#include <QPointer>

namespace qor {

/// Gives a QListWidget the names of a list box: those of every list
/// (ListAdapter, the number kept as the item's user data) and Text, the text of
/// the current item.
class QORGENLIB_WIDGETS_EXPORT ListWidgetAdapter : public ListAdapter
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ text)

public:
    explicit ListWidgetAdapter(QListWidget *list, QObject *parent = nullptr);

    QString text() const;

protected:
    int itemCount() const override;
    QString itemText(int row) const override;
    QVariant itemNumber(int row) const override;
    void setItemNumber(int row, qint32 number) override;
    int currentRow() const override;
    void setCurrentRow(int row) override;
    void clearItems() override;
    void insertItem(int row, const QString &text) override;

private:
    QListWidget *widget() const;

    QPointer<QListWidget> m_list;
};

} // namespace qor
