#pragma once

#include <QString>

namespace qor {

// The extended message box in the caller's language: 1 OK, 2 Cancel, 6 Yes,
// 7 No, also kept as the module's last message-box result. Any style value
// is taken; -1 is the identity-number box.
qint32 msgBoxE(const QString &prompt, qint32 buttons, const QString &title, qint32 offset);

// The extended input box: the trimmed text on OK, "-9999" on Cancel, also
// kept as the module's last input-box result. A maximum length of 0 or less
// means no limit.
QString inputBoxE(const QString &prompt, const QString &title, const QString &defaultValue,
    qint32 maxLength, qint32 offset);

// What the input box returns for Cancel.
inline const QString inputBoxCancelled = QStringLiteral("-9999");

} // namespace qor
