#pragma once

#include "qorgenlib_export.h"

#include <QObject>
#include <QPointer>
#include <QString>

namespace qor {

// State shared by every library object and the library's dialogs of one thread:
// the language of the next text, the last dialog answers, the sound switch, the
// scanner buffer, the host's application object and the calculator's registers.
struct QORGENLIB_EXPORT ModGenLib
{
    qint32 languageOffset = 0;
    qint32 msgBoxResult = 0;
    QString inputBoxResult;
    bool soundOff = false;
    QString scannerBuffer;
    QPointer<QObject> application;
    double calculatorRegister = 0;
    bool calculatorFlag = false;
    qint32 calculatorMode = 0;
    // The colour scheme of the house layout of the menu form; the host sets it
    // ("17": orange), the library never does.
    QString deskTopScheme;

    // The copy of the calling thread.
    static ModGenLib &current();
    // Starts the calling thread over with fresh state.
    static void reset();
};

// The calling thread's module state.
inline ModGenLib &modGenLib()
{
    return ModGenLib::current();
}

// Every method that may show a catalogue text first hands over the language
// of the object it was called on.
inline void useLanguage(qint32 offset)
{
    modGenLib().languageOffset = offset;
}

} // namespace qor
