#include "calculator/qt/vatnoteform.h"

#include "platform/desktop.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QTimer>

namespace qor {

namespace {

// The note is 40 twips wider than its label.
constexpr int extraWidthTwips = 40;
constexpr int gapPixels = 4;

int twipsToPixels(int twips, const ScreenInfo &screen)
{
    return qMax(1, qRound(double(twips) / qMax(1, screen.twipsPerPixelX)));
}

} // namespace

VatNoteForm::VatNoteForm(const QString &text, QWidget *field)
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    setObjectName(QStringLiteral("frmBtwToolTip"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::NoFocus);
    setAutoFillBackground(true);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, QColor(0xFF, 0xFF, 0xE1));
    setPalette(palette);
    m_label = new QLabel(text, this);
    m_label->setObjectName(QStringLiteral("lblBtw"));
    m_label->setTextFormat(Qt::PlainText);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_label);
    const ScreenInfo screen = Desktop::current().screen();
    setFixedSize(m_label->sizeHint().width() + twipsToPixels(extraWidthTwips, screen),
        m_label->sizeHint().height() + 2);
    placeBeside(field, screen);
}

VatNoteForm *VatNoteForm::flash(const QString &text, QWidget *field)
{
    auto *note = new VatNoteForm(text, field);
    note->show();
    return note;
}

void VatNoteForm::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    QTimer::singleShot(lifetimeMs, this, &QWidget::close);
}

// Right of the field at its height, or left of it when the field's screen ends
// there; at the mouse pointer, within the work area, without a field.
void VatNoteForm::placeBeside(QWidget *field, const ScreenInfo &screen)
{
    const QRect area
        = field && field->screen() ? field->screen()->availableGeometry() : screen.workArea();
    QRect beside(screen.cursor, size());
    if (field) {
        const QRect fieldRect(field->mapToGlobal(QPoint(0, 0)), field->size());
        beside.moveTopLeft(QPoint(fieldRect.right() + gapPixels, fieldRect.top()));
        if (beside.right() > area.right())
            beside.moveRight(fieldRect.left() - gapPixels);
    }
    beside.moveLeft(qBound(area.left(), beside.left(), qMax(area.left(), area.right() - width())));
    beside.moveTop(qBound(area.top(), beside.top(), qMax(area.top(), area.bottom() - height())));
    move(beside.topLeft());
}

} // namespace qor
