#pragma once

#include "host/application.h"
#include "lib/frame/modgenlib.h"
#include "platform/qt/qtplatform.h"
#include "tests/common/userinput.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

namespace qor::test {

// The Qt platform with a pinned screen of 1024 by 768 pixels at 15 twips per
// pixel; sounds and plain message boxes are recorded instead of played or shown.
class DialogTestPlatform : public QtPlatform
{
public:
    ScreenInfo screen() const override { return ScreenInfo {}; }
    void playSound(const QString &file, bool) override { sounds.append(file); }
    int systemMessageBox(const SystemMessageBoxRequest &request) override
    {
        notices.append(request.title);
        return 1;
    }

    QStringList sounds;
    QStringList notices;
};

// The font shipped for the tests, so that layouts are the same on every machine.
inline void useTestFont()
{
    const int id
        = QFontDatabase::addApplicationFont(QStringLiteral(QOR_TEST_FONT_DIR "/DejaVuSans.ttf"));
    QVERIFY2(id >= 0, "the test font is missing (fonts-dejavu-core)");
    QApplication::setFont(QFont(QFontDatabase::applicationFontFamilies(id).value(0), 9));
}

// An application whose folder holds the five type sounds.
class SoundFolder
{
public:
    SoundFolder()
    {
        QDir(m_folder.path()).mkpath(QStringLiteral("app/MultiMedia"));
        for (const char *name :
            { "Critical", "Exclamation", "Information", "Question", "Message" }) {
            QFile file(m_folder.filePath(
                QStringLiteral("app/MultiMedia/%1.wav").arg(QLatin1String(name))));
            file.open(QIODevice::WriteOnly);
        }
        m_application.setProperty("Path", m_folder.filePath(QStringLiteral("app")));
    }
    QString systemDirectory() const { return m_folder.filePath(QStringLiteral("system")); }
    void install() { modGenLib().application = &m_application; }
    // The full name the library builds for a sound of the folder.
    QString soundPath(const QString &file) const
    {
        return m_folder.filePath(QStringLiteral("app")) + QStringLiteral("\\MultiMedia\\") + file;
    }

private:
    QTemporaryDir m_folder;
    Application m_application;
};

} // namespace qor::test
