#pragma once

#include "qorgenlib_export.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVariantList>
#include <QWidget>

namespace qor {

/// Gives any QWidget form the names of a host form: Tag (kept on the widget,
/// so it lives as long as the form), Caption (the window title) and Controls:
/// its line edits, combo boxes, check boxes, spin boxes and date edits, in the
/// order they were created, each under the names of its kind of control.
class QORGENLIB_WIDGETS_EXPORT FormAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Tag READ tag WRITE setTag)
    Q_PROPERTY(QString Caption READ caption WRITE setCaption)
    Q_PROPERTY(QVariantList Controls READ controls)

public:
    explicit FormAdapter(QWidget *form, QObject *parent = nullptr);

    QString tag() const;
    void setTag(const QString &tag);
    QString caption() const;
    void setCaption(const QString &caption);
    QVariantList controls();

private:
    QWidget *form() const;
    QObject *adapterFor(QWidget *widget);

    QPointer<QWidget> m_form;
    QHash<QWidget *, QPointer<QObject>> m_adapters;
};

} // namespace qor
