#pragma once

#include "calculator/calculatorsession.h"

#include <QDialog>

namespace qor {

// The calculator's help card: its title, the keyboard map in two columns and
// the lines on calling, moving and direct VAT. The first key or click closes
// it, and the key goes no further.
class CalculatorHelpForm : public QDialog
{
    Q_OBJECT

public:
    explicit CalculatorHelpForm(const CalculatorHelpCard &card, QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
};

} // namespace qor
