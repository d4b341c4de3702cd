// Time per keystroke of the amount and text key handlers on a model field,
// and per key of the calculator engine, with the recording platform in place
// (beeps recorded, nothing shown). A cash register types tens of keys a
// second; the goal is well under a millisecond a key, so that none is lost.

#include "calculator/calculatorengine.h"
#include "host/textbox.h"
#include "lib/clsqorgenlib.h"
#include "lib/frame/modgenlib.h"
#include "platform/recordingplatform.h"

#include <chrono>
#include <cstdio>
#include <functional>

using namespace qor;

namespace {

constexpr int keysPerRun = 200000;
constexpr double goalMicroseconds = 1000.0;

bool report(const char *name, const std::function<void(int)> &key)
{
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < keysPerRun; ++i)
        key(i);
    const std::chrono::duration<double, std::micro> spent
        = std::chrono::steady_clock::now() - start;
    const double perKey = spent.count() / keysPerRun;
    const bool met = perKey < goalMicroseconds;
    std::printf("%-34s %10.2f us/key  %s\n", name, perKey, met ? "ok" : "TOO SLOW");
    return met;
}

} // namespace

int main()
{
    auto machine = std::make_shared<RecordingPlatform>();
    machine->setLocale(QStringLiteral("nl_BE"));
    Platform::install(machine);
    clsqorGenLib lib;
    TextBox box;
    const char typed[] = "1234,56789";
    bool met = true;
    met &= report("KeyGetal, digits and separator", [&](int i) {
        if (i % 10 == 0) {
            box.setText(QString());
            machine->clearRecords();
        }
        short ka = typed[i % 10];
        QVariant decimals = 2;
        bool negNumber = false;
        bool flexgrid = false;
        const int code = lib.KeyGetal(&box, ka, decimals, negNumber, flexgrid).toInt();
        if (code != 0) {
            box.setText(box.text() + QChar(code));
            box.setSelStart(int(box.text().size()));
        }
    });
    met &= report("KeyEuro, digits and separator", [&](int i) {
        if (i % 10 == 0) {
            box.setText(QString());
            machine->clearRecords();
        }
        short ka = typed[i % 10];
        QVariant decimals = 2;
        bool negNumber = false;
        const int code = lib.KeyEuro(&box, ka, decimals, negNumber).toInt();
        if (code != 0)
            box.setText(box.text() + QChar(code));
    });
    met &= report("KeyPress, letters upper-cased", [&](int i) {
        if (i % 100 == 0)
            machine->clearRecords();
        short ka = short('a' + i % 26);
        QString allowed = QStringLiteral("H");
        lib.KeyPress(ka, allowed);
    });
    CalculatorEngine engine({ 100, 2100, 600, false, machine->regionalSettings() });
    engine.setBeep([] {});
    const QString keys = QStringLiteral("12+3x4,5-6/7=");
    met &= report("calculator engine", [&](int i) {
        engine.press(QString(keys.at(i % keys.size())));
        (void)engine.view();
    });
    return met ? 0 : 1;
}
