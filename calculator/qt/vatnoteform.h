#pragma once

#include <QWidget>

class QLabel;

namespace qor {

struct ScreenInfo;

// The VAT note: a borderless label beside an amount field that closes itself
// half a second after it is shown (on the monotonic clock). It never takes
// the focus and never holds up the caller.
class VatNoteForm : public QWidget
{
    Q_OBJECT

public:
    static constexpr int lifetimeMs = 500;

    explicit VatNoteForm(const QString &text, QWidget *field = nullptr);

    // Shows a note beside the field (or at the mouse when there is none); it deletes itself.
    static VatNoteForm *flash(const QString &text, QWidget *field);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void placeBeside(QWidget *field, const ScreenInfo &screen);

    QLabel *m_label = nullptr;
};

} // namespace qor
