#include "host/qt/lineeditadapter.h"

#include "runtime/runtimeerror.h"

#include <QLineEdit>

namespace qor {

namespace {

constexpr int unlimited = 32767;

QLineEdit *require(const QPointer<QLineEdit> &field)
{
    // A field that is gone behaves as an object that is no longer there.
    if (!field)
        throw RuntimeError::objectNotSet();
    return field.data();
}

} // namespace

LineEditAdapter::LineEditAdapter(QLineEdit *field, QObject *parent)
    : WidgetAdapter(field, parent)
    , m_field(field)
{ }

QString LineEditAdapter::text() const
{
    return require(m_field)->text();
}
void LineEditAdapter::setText(const QString &text)
{
    require(m_field)->setText(text);
}

int LineEditAdapter::selStart() const
{
    QLineEdit *field = require(m_field);
    return field->hasSelectedText() ? field->selectionStart() : field->cursorPosition();
}

void LineEditAdapter::setSelStart(int start)
{
    QLineEdit *field = require(m_field);
    field->setCursorPosition(qBound(0, start, int(field->text().size())));
}

int LineEditAdapter::selLength() const
{
    return int(require(m_field)->selectedText().size());
}

void LineEditAdapter::setSelLength(int length)
{
    QLineEdit *field = require(m_field);
    const int start = field->hasSelectedText() ? field->selectionStart() : field->cursorPosition();
    const int end = qBound(start, start + length, int(field->text().size()));
    if (end == start)
        field->setCursorPosition(start);
    else
        field->setSelection(start, end - start);
}

int LineEditAdapter::maxLength() const
{
    const int length = require(m_field)->maxLength();
    return length >= unlimited ? 0 : length;
}

void LineEditAdapter::setMaxLength(int length)
{
    require(m_field)->setMaxLength(length <= 0 ? unlimited : length);
}
bool LineEditAdapter::enabled() const
{
    return require(m_field)->isEnabled();
}
void LineEditAdapter::setEnabled(bool enabled)
{
    require(m_field)->setEnabled(enabled);
}
void LineEditAdapter::SetFocus()
{
    require(m_field)->setFocus();
}

} // namespace qor
