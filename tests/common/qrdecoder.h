#pragma once

#include <QProcess>
#include <QString>

namespace qor::test {

// What the real decoder zbarimg reads in an image file: the code's bytes as
// UTF-8, "" when it finds no code.
inline QString decodedQrCode(const QString &imageFile)
{
    QProcess zbar;
    zbar.start(QStringLiteral("zbarimg"),
        { QStringLiteral("--quiet"), QStringLiteral("--raw"), QStringLiteral("-Sbinary"),
            imageFile });
    if (!zbar.waitForFinished(20000))
        return QStringLiteral("zbarimg did not finish");
    return QString::fromUtf8(zbar.readAllStandardOutput());
}

} // namespace qor::test
