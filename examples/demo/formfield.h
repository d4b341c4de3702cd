#pragma once

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

// A text field with its caption on a form row. The caption is named after the
// field: "txtNaam" gets the label "lblNaam".
inline QLineEdit *addFormField(QFormLayout *form, QWidget *parent, const char *objectName)
{
    auto *field = new QLineEdit(parent);
    field->setObjectName(QLatin1String(objectName));
    auto *label = new QLabel(parent);
    label->setObjectName(QStringLiteral("lbl") + QLatin1String(objectName + 3));
    label->setBuddy(field);
    form->addRow(label, field);
    return field;
}
