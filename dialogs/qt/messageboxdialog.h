#pragma once

#include "platform/platform.h"

#include <QDialog>

class QLabel;

namespace qor {

// A modal window for the extended message box as the library prepared it:
// the prompt, the visible buttons with their captions, and keys answered the
// way the request maps them. Every key is swallowed, as the box takes them all.
class MessageBoxDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MessageBoxDialog(const MessageBoxERequest &request, QWidget *parent = nullptr);

    int answer() const { return m_answer; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void choose(int result);

    MessageBoxERequest m_request;
    int m_answer = 0;
};

} // namespace qor
