// Sorts 100,000 elements in every order, with and without a companion array,
// and prints the time each run takes. The goal: well under a second each.
#include "grid/sortarray.h"
#include "lib/frame/modgenlib.h"
#include "platform/coreplatform.h"
#include "platform/platform.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTextStream>

using namespace qor;

namespace {

QVariantList randomTexts(int count)
{
    QRandomGenerator random(20040520);
    QVariantList list;
    list.reserve(count);
    for (int i = 0; i < count; ++i) {
        switch (random.bounded(10)) {
        case 0: list.append(QString()); break;
        case 1: list.append(qint32(random.bounded(-100000, 100000))); break;
        case 2: list.append(double(random.bounded(100000)) / 100); break;
        default: {
            QString word;
            const int length = random.bounded(1, 12);
            for (int c = 0; c < length; ++c)
                word.append(QChar(u'A' + random.bounded(58)));
            list.append(word);
        }
        }
    }
    return list;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    Platform::install(std::make_shared<CorePlatform>());
    constexpr int count = 100000;
    const QVariantList input = randomTexts(count);
    QVariantList positions;
    for (int i = 0; i < count; ++i)
        positions.append(i);
    QTextStream out(stdout);
    for (int order = 1; order <= 6; ++order) {
        for (bool withRef : { false, true }) {
            QVariant values = input;
            QVariant ref = positions;
            QElapsedTimer timer;
            timer.start();
            sortArray(values, order, withRef ? &ref : nullptr, 0);
            out << "order " << order << (withRef ? " with companion" : "               ") << ": "
                << count << " elements in " << timer.elapsed() << " ms\n";
        }
    }
    return 0;
}
