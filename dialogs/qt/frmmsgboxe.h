#pragma once

#include "platform/dialogpresenter.h"

#include <QDialog>

class QFrame;
class QLabel;
class QPushButton;

namespace qor {

class ScannerField;

// The extended message box window: the prompt wrapped to the screen, the
// icon of its type, the buttons the style chose, and the hidden scanner field.
// Every key goes first through the scanner routine and is then taken as an
// answer by the box's key rules; every key is swallowed. The window's close
// button counts as Escape. When first shown it runs the box's own first step
// (the type's sound) once.
class frmMsgBoxE : public QDialog
{
    Q_OBJECT

public:
    explicit frmMsgBoxE(const MessageBoxERequest &request, QWidget *parent = nullptr);

    // The chosen result (1, 2, 6 or 7), 0 while open.
    int answer() const { return m_answer; }

    void done(int code) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void createWidgets();
    void layOut();
    void firstShown();
    void choose(int result);
    void scannerTextChanged(const QString &text);
    QPushButton *button(const QString &name) const;

    MessageBoxERequest m_request;
    QFrame *m_frame;
    QLabel *m_label;
    QList<QLabel *> m_icons;
    QList<QPushButton *> m_buttons;
    ScannerField *m_scanner;
    int m_answer = 0;
    bool m_shown = false;
};

} // namespace qor
