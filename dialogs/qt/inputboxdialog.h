#pragma once

#include "platform/platform.h"

#include <QDialog>

class QLineEdit;

namespace qor {

// A modal window for the extended input box: the prompt, one text field with
// its maximum length, OK and Cancel. Enter means OK and Escape Cancel.
class InputBoxDialog : public QDialog
{
    Q_OBJECT

public:
    explicit InputBoxDialog(const InputBoxERequest &request, QWidget *parent = nullptr);

    InputBoxEAnswer answer() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLineEdit *m_text;
    bool m_cancelled = true;
};

} // namespace qor
