#pragma once

#include "qorgenlib_export.h"

#include "calculator/calculatorpresenter.h"
#include "platform/coreplatform.h"

#include <memory>

namespace qor {

/// The machine of a host with a screen: the dialogs as real modal windows, the
/// system beep, wave sounds, the screen's size and resolution, the mouse
/// pointer, and keys posted to the widget that has the focus. Needs a
/// QApplication.
class QORGENLIB_WIDGETS_EXPORT QtPlatform : public CorePlatform, public CalculatorPresenter
{
public:
    QtPlatform();
    ~QtPlatform() override;

    int messageBoxE(const MessageBoxERequest &request) override;
    int systemMessageBox(const SystemMessageBoxRequest &request) override;
    InputBoxEAnswer inputBoxE(const InputBoxERequest &request) override;
    void beep() override;
    void processEvents() override;
    /// The calculator window and the VAT note (calculator/qt).
    CalculatorAnswer presentCalculator(
        double start, const std::shared_ptr<CalculatorSession> &session) override;
    void showNote(const NoteRequest &note) override;
    void playSound(const QString &file, bool continuous) override;
    void stopSound() override;
    void shutDown() override;
    void keepOnTop(QObject *form, qint64 windowHandle) override;
    ScreenInfo screen() const override;
    void setMousePointer(int pointer) override;
    void keyEvent(int virtualKey, int scanCode, int flags) override;

    /// The taskbar as the largest strip of the screen outside its available area.
    static std::optional<QRect> taskbarOf(const QRect &full, const QRect &available);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace qor
