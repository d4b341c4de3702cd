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
    : QObject(parent)
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
int LineEditAdapter::left() const
{
    return require(m_field)->x();
}
void LineEditAdapter::setLeft(int left)
{
    require(m_field)->move(left, top());
}
int LineEditAdapter::top() const
{
    return require(m_field)->y();
}
void LineEditAdapter::setTop(int top)
{
    require(m_field)->move(left(), top);
}
int LineEditAdapter::width() const
{
    return require(m_field)->width();
}
void LineEditAdapter::setWidth(int width)
{
    require(m_field)->resize(width, height());
}
int LineEditAdapter::height() const
{
    return require(m_field)->height();
}
void LineEditAdapter::setHeight(int height)
{
    require(m_field)->resize(width(), height);
}
void LineEditAdapter::SetFocus()
{
    require(m_field)->setFocus();
}

} // namespace qor
