#pragma once

#include "host/qt/listadapter.h"

#include <QComboBox>
#include <QPointer>

namespace qor {

/// Gives a QComboBox the names of a combo box: those of every list (ListAdapter)
/// and Text, the current text (typed into an editable combo, else the item of
/// that text selected).
class QORGENLIB_WIDGETS_EXPORT ComboBoxAdapter : public ListAdapter
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ text WRITE setText)

public:
    explicit ComboBoxAdapter(QComboBox *combo, QObject *parent = nullptr);

    QString text() const;
    void setText(const QString &text);

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
    QComboBox *widget() const;

    QPointer<QComboBox> m_combo;
};

} // namespace qor
