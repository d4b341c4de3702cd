// A small program the system tests start as a separate process:
//   write FILE SECTION KEY COUNT   sets KEY to "KEY-1" ... "KEY-COUNT" (0: for ever)
//   race APPLICATION AT            registers as a running copy at AT (ms since the epoch),
//                                  prints "alone" or "second", waits
#include "platform/platform.h"
#include "system/settingsfile.h"

#include <QString>
#include <QThread>

#include <cstdio>
#include <cstdlib>
#include <ctime>

int main(int argc, char *argv[])
{
    const QString mode = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (mode == QLatin1String("write") && argc == 6) {
        QString file = QString::fromLocal8Bit(argv[2]);
        const QString section = QString::fromLocal8Bit(argv[3]);
        const QString key = QString::fromLocal8Bit(argv[4]);
        const long count = std::atol(argv[5]);
        for (long i = 1; count == 0 || i <= count; ++i)
            qor::writeIni(section, key, key + QLatin1Char('-') + QString::number(i), file);
        return 0;
    }
    if (mode == QLatin1String("race") && argc == 4) {
        const long long at = std::atoll(argv[3]);
        const timespec instant { time_t(at / 1000), long(at % 1000) * 1000000L };
        while (clock_nanosleep(CLOCK_REALTIME, TIMER_ABSTIME, &instant, nullptr) != 0) { }
        const bool second = qor::platform().registerInstance(QString::fromLocal8Bit(argv[2]));
        std::printf(second ? "second\n" : "alone\n");
        std::fflush(stdout);
        for (;;)
            QThread::sleep(1);
    }
    return 2;
}
