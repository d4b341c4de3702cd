#pragma once

#include "platform/dialogpresenter.h"

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;

namespace qor {

// The extended input box window: the prompt wrapped to the screen as in the
// message box, the question icon, one field with its default text and maximum
// length, OK and Cancel. The box sees every key first: Enter is OK, Escape
// (and the window's close button) Cancel. When first shown it runs the box's
// own first step (the question sound) once.
class frmInputBoxE : public QDialog
{
    Q_OBJECT

public:
    explicit frmInputBoxE(const InputBoxERequest &request, QWidget *parent = nullptr);

    InputBoxEAnswer answer() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void layOut(const InputBoxERequest &request);
    void firstShown();
    void choose(bool ok);
    bool answerKey(const QKeyEvent *event);

    QLabel *m_label;
    QLineEdit *m_text;
    bool m_ok = false;
    std::function<void()> m_firstShown;
    bool m_shown = false;
};

} // namespace qor
