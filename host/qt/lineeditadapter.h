#pragma once

#include "qorgenlib_export.h"

#include "host/qt/widgetadapter.h"

#include <QObject>
#include <QPointer>

#include <QLineEdit>

namespace qor {

/// Gives a QLineEdit the names of an edit control, so the library can work on
/// a real field: Text, SelStart, SelLength, MaxLength, Enabled and the
/// operation SetFocus, besides the position and size in twips of every placed
/// control. The adapter does not own the field.
class QORGENLIB_WIDGETS_EXPORT LineEditAdapter : public WidgetAdapter
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ text WRITE setText)
    Q_PROPERTY(int SelStart READ selStart WRITE setSelStart)
    Q_PROPERTY(int SelLength READ selLength WRITE setSelLength)
    Q_PROPERTY(int MaxLength READ maxLength WRITE setMaxLength)
    Q_PROPERTY(bool Enabled READ enabled WRITE setEnabled)

public:
    explicit LineEditAdapter(QLineEdit *field, QObject *parent = nullptr);

    QLineEdit *field() const { return m_field; }

    QString text() const;
    void setText(const QString &text);
    int selStart() const;
    void setSelStart(int start);
    int selLength() const;
    void setSelLength(int length);
    /// 0 means no limit, as for the classic edit control.
    int maxLength() const;
    void setMaxLength(int length);
    bool enabled() const;
    void setEnabled(bool enabled);

    Q_INVOKABLE void SetFocus();

private:
    QPointer<QLineEdit> m_field;
};

} // namespace qor
