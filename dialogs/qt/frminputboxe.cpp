#include "dialogs/qt/frminputboxe.h"

#include "dialogs/qt/boxgeometry.h"

#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace qor {

namespace {

constexpr int questionType = 3;
constexpr int fieldArea = 555; // twips below the label for the field
constexpr int fieldGap = 120;
constexpr int fieldHeight = 315;
constexpr int widestField = 32767; // what a line edit holds at most

} // namespace

frmInputBoxE::frmInputBoxE(const InputBoxERequest &request, QWidget *parent)
    : QDialog(parent)
    , m_label(nullptr)
    , m_text(nullptr)
    , m_firstShown(request.firstShown)
{
    setObjectName(QStringLiteral("frmInputBoxE"));
    setModal(true);
    setWindowTitle(request.caption);
    layOut(request);
}

void frmInputBoxE::layOut(const InputBoxERequest &request)
{
    auto *frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("Frame"));
    m_label = new QLabel(frame);
    m_label->setObjectName(QStringLiteral("Label"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTag(m_label, request.prompt);
    auto *icon = new QLabel(frame);
    icon->setObjectName(QStringLiteral("Img"));
    icon->setPixmap(BoxGeometry::iconOf(this, questionType));
    m_text = new QLineEdit(frame);
    m_text->setObjectName(QStringLiteral("Text"));
    m_text->setMaxLength(
        request.maxLength > 0 ? std::min(request.maxLength, widestField) : widestField);
    m_text->setText(request.defaultValue);
    m_text->installEventFilter(this);
    const QString okCaption
        = request.okCaption.isEmpty() ? QStringLiteral("OK") : request.okCaption;
    auto *ok = new QPushButton(okCaption, frame);
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto *cancel = new QPushButton(request.cancelCaption, frame);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    for (QPushButton *button : { ok, cancel }) {
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::NoFocus);
    }
    connect(ok, &QPushButton::clicked, this, [this] { choose(true); });
    connect(cancel, &QPushButton::clicked, this, [this] { choose(false); });

    const BoxGeometry geometry(m_label);
    BoxLayoutInput input = geometry.input(request.prompt, { okCaption, request.cancelCaption });
    input.extraHeight = fieldArea;
    const BoxLayout layout = layoutBox(input);
    m_label->setText(QString(layout.caption).replace(QLatin1Char('\r'), QLatin1Char('\n')));
    m_label->setGeometry(geometry.toPixels(layout.label));
    frame->setGeometry(geometry.toPixels(layout.frame));
    icon->setGeometry(geometry.toPixels(layout.icon));
    const int fieldTop = layout.label.bottom() + 1 + fieldGap;
    m_text->setGeometry(geometry.toPixels(QRect(layout.label.left(), fieldTop,
        std::max(0, layout.frame.right() + 1 - layout.label.left()), fieldHeight)));
    ok->setGeometry(geometry.toPixels(layout.buttons.value(0)));
    cancel->setGeometry(geometry.toPixels(layout.buttons.value(1)));
    const QRect form = geometry.toPixels(layout.form);
    setFixedSize(std::max(1, form.width()), std::max(1, form.height()));
    move(form.topLeft());
    m_text->setFocus();
}

InputBoxEAnswer frmInputBoxE::answer() const
{
    if (!m_ok)
        return { true, QString() };
    return { false, m_text->text() };
}

// Enter and Escape answer the box, wherever they are typed.
bool frmInputBoxE::answerKey(const QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: choose(true); return true;
    case Qt::Key_Escape: choose(false); return true;
    default: return false;
    }
}

bool frmInputBoxE::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_text && event->type() == QEvent::KeyPress
        && answerKey(static_cast<QKeyEvent *>(event)))
        return true;
    return QDialog::eventFilter(watched, event);
}

void frmInputBoxE::keyPressEvent(QKeyEvent *event)
{
    if (!answerKey(event))
        QDialog::keyPressEvent(event);
}

void frmInputBoxE::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (m_shown)
        return;
    m_shown = true;
    firstShown();
}

void frmInputBoxE::firstShown()
{
    Desktop::current().setMousePointer(0);
    if (m_firstShown)
        m_firstShown();
}

// OK is only what OK or Enter chose; everything else, the close button too, cancels.
void frmInputBoxE::choose(bool ok)
{
    m_ok = ok;
    if (ok)
        accept();
    else
        reject();
}

} // namespace qor
