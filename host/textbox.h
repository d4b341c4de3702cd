#pragma once

#include "qorgenlib_export.h"

#include "host/controls/textbox.h"

#include "host/hostobject.h"
#include "host/textselection.h"

namespace qor {

/// The host's edit control.
class QORGENLIB_EXPORT TextBox : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "TextBox")
    Q_PROPERTY(QString Text READ text WRITE setText)
    Q_PROPERTY(qint32 SelStart READ selStart WRITE setSelStart)
    Q_PROPERTY(qint32 SelLength READ selLength WRITE setSelLength)
    Q_PROPERTY(qint32 MaxLength READ maxLength WRITE setMaxLength)
    Q_PROPERTY(bool Enabled MEMBER m_enabled)
    Q_PROPERTY(float Left MEMBER m_left)
    Q_PROPERTY(float Top MEMBER m_top)
    Q_PROPERTY(float Width MEMBER m_width)
    Q_PROPERTY(float Height MEMBER m_height)

public:
    explicit TextBox(QObject *parent = nullptr);

    QString text() const { return m_edit.text(); }
    void setText(const QString &text) { m_edit.setText(text); }
    qint32 selStart() const { return m_edit.start(); }
    void setSelStart(qint32 start) { m_edit.setStart(start); }
    qint32 selLength() const { return m_edit.length(); }
    void setSelLength(qint32 length) { m_edit.setLength(length); }
    qint32 maxLength() const { return m_maxLength; }
    void setMaxLength(qint32 maxLength);

    /// A disabled control cannot take the focus: RuntimeError 5, as the real one.
    Q_INVOKABLE void SetFocus();

private:
    TextSelection m_edit;
    qint32 m_maxLength = controls::initial<qint32>(controls::textBox, "MaxLength");
    bool m_enabled = controls::initial<bool>(controls::textBox, "Enabled");
    float m_left = controls::initial<float>(controls::textBox, "Left");
    float m_top = controls::initial<float>(controls::textBox, "Top");
    float m_width = controls::initial<float>(controls::textBox, "Width");
    float m_height = controls::initial<float>(controls::textBox, "Height");
};

} // namespace qor
