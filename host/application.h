#pragma once

#include "qorgenlib_export.h"

#include "host/hostobject.h"

namespace qor {

/// The host's application object: whether another copy already runs, its
/// names, folder and version numbers.
class QORGENLIB_EXPORT Application : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Application")
    Q_PROPERTY(bool PrevInstance MEMBER m_prevInstance)
    Q_PROPERTY(QString ProductName MEMBER m_productName)
    Q_PROPERTY(QString EXEName MEMBER m_exeName)
    Q_PROPERTY(QString Path MEMBER m_path)
    Q_PROPERTY(qint32 Major MEMBER m_major)
    Q_PROPERTY(qint32 Minor MEMBER m_minor)
    Q_PROPERTY(qint32 Revision MEMBER m_revision)

public:
    explicit Application(QObject *parent = nullptr);

private:
    bool m_prevInstance = false;
    QString m_productName;
    QString m_exeName;
    QString m_path;
    qint32 m_major = 0;
    qint32 m_minor = 0;
    qint32 m_revision = 0;
};

} // namespace qor
