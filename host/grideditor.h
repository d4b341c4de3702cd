#pragma once

#include "qorgenlib_export.h"

#include "host/hostobject.h"
#include "host/textselection.h"

namespace qor {

/// The cell editor of a host grid: the cell's text and the text being edited
/// with its own caret and selection.
class QORGENLIB_EXPORT GridEditor : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "GridEditor")
    Q_PROPERTY(QString Text MEMBER m_text)
    Q_PROPERTY(QString EditText READ editText WRITE setEditText)
    Q_PROPERTY(qint32 EditSelStart READ editSelStart WRITE setEditSelStart)
    Q_PROPERTY(qint32 EditSelLength READ editSelLength WRITE setEditSelLength)
    Q_PROPERTY(qint32 editMaxLength MEMBER m_editMaxLength)

public:
    explicit GridEditor(QObject *parent = nullptr);

    QString editText() const { return m_edit.text(); }
    void setEditText(const QString &text) { m_edit.setText(text); }
    qint32 editSelStart() const { return m_edit.start(); }
    void setEditSelStart(qint32 start) { m_edit.setStart(start); }
    qint32 editSelLength() const { return m_edit.length(); }
    void setEditSelLength(qint32 length) { m_edit.setLength(length); }

private:
    QString m_text;
    TextSelection m_edit;
    qint32 m_editMaxLength = 0;
};

} // namespace qor
