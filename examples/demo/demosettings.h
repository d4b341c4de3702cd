#pragma once

#include <QString>

class clsqorGenLib;

// The demo's settings in the library's settings file (qorSoft.ini), under a
// section of its own: the language, the next invoice number, the export folder
// and what the last save kept.
class DemoSettings
{
public:
    explicit DemoSettings(clsqorGenLib &lib);

    // A missing key reads as the fallback, without the library's notice.
    QString value(const QString &key, const QString &fallback = QString()) const;
    void setValue(const QString &key, const QString &value);

private:
    clsqorGenLib &m_lib;
};
