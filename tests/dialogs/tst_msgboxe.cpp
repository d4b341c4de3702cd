#include "dialogs/boxes.h"
#include "lib/frame/messageboxlogic.h"

#include "tests/common/userinput.h"
#include "tests/dialogs/dialogtestplatform.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace qor;

namespace {

// What the user sees of a box: its visible buttons left to right as
// "name=caption", and the index of its visible icon.
struct Seen
{
    QString caption;
    QStringList buttons;
    int icon = -1;
    QString label;
    QRect geometry;
};

Seen look(QWidget *window)
{
    Seen seen;
    seen.caption = window->windowTitle();
    seen.geometry = window->geometry();
    QList<QPushButton *> buttons;
    for (QPushButton *button : window->findChildren<QPushButton *>()) {
        if (button->isVisible())
            buttons << button;
    }
    std::sort(buttons.begin(), buttons.end(),
        [](QPushButton *a, QPushButton *b) { return a->x() < b->x(); });
    for (QPushButton *button : buttons)
        seen.buttons << button->objectName() + QLatin1Char('=') + button->text();
    for (QLabel *icon : window->findChildren<QLabel *>(QStringLiteral("Img"))) {
        if (icon->isVisible())
            seen.icon = icon->property("Index").toInt();
    }
    seen.label = window->findChild<QLabel *>(QStringLiteral("Label"))->text();
    return seen;
}

// Pictures of the boxes for the documentation, in the build folder.
QString screenshotPath(const QString &name)
{
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/screenshots");
    QDir().mkpath(folder);
    return folder + QLatin1Char('/') + name + QStringLiteral(".png");
}

const QString identityTitle = QStringLiteral("Controle Nummer Identiteitskaart");
const QString number = QStringLiteral("591234567890");

} // namespace

class TestMsgBoxE : public QObject
{
    Q_OBJECT

    std::shared_ptr<test::DialogTestPlatform> machine;
    std::unique_ptr<test::SoundFolder> sounds;

private slots:
    void initTestCase() { test::useTestFont(); }
    void init()
    {
        ModGenLib::reset();
        machine = std::make_shared<test::DialogTestPlatform>();
        sounds = std::make_unique<test::SoundFolder>();
        machine->setSystemDirectory(sounds->systemDirectory());
        Platform::install(machine);
        sounds->install();
    }

    // Which button answers which key is decided by the message box logic; these
    // rows prove each path a key takes through the real window, and what it shows.
    void answers_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<int>("icon");
        QTest::addColumn<QString>("sound");
        QTest::addColumn<QString>("notice");
        const QStringList ok { "cmdOK=OK" };
        const QStringList okCancel { "cmdOK=OK", "cmdCancel=Annuleren" };
        const QStringList yesNo { "cmdYes=Ja", "cmdNo=Nee" };
        const QStringList identity { "cmdOK=Vreemd", "cmdCancel=TypeFout" };
        const QStringList identityFr { "cmdOK=Étranger", "cmdCancel=Erreur de frappe" };
        const QString frIdentityTitle = QStringLiteral("Contrôle du numéro de carte d'identité");
        // clang-format off
        QTest::newRow("plain, Enter") << 0 << 0 << "" << "{Enter}" << 1 << "Bericht :" << ok << 4 << "Message.wav" << "";
        QTest::newRow("plain, N chooses nothing") << 0 << 0 << "" << "nax{Enter}" << 1 << "Bericht :" << ok << 4 << "Message.wav" << "";
        QTest::newRow("question, Escape") << 0 << 36 << "" << "{Esc}" << 7 << "Vraag ?" << yesNo << 3 << "Question.wav" << "";
        QTest::newRow("critical, own title, A") << 0 << 17 << "Eigen titel" << "a" << 2 << "Eigen titel" << okCancel << 0 << "Critical.wav" << "";
        QTest::newRow("exclamation") << 0 << 48 << "   " << "{Enter}" << 1 << "Opgelet !" << ok << 1 << "Exclamation.wav" << "";
        QTest::newRow("information") << 0 << 64 << "" << "{Enter}" << 1 << "Ter Info :" << ok << 2 << "Information.wav" << "";
        QTest::newRow("scan OK answers Yes") << 0 << 36 << "" << "%[OK]" << 6 << "Vraag ?" << yesNo << 3 << "Question.wav" << "";
        QTest::newRow("scan ANN with OK alone waits") << 0 << 0 << "" << "%[ANN]{Enter}" << 1 << "Bericht :" << ok << 4 << "Message.wav" << "";
        QTest::newRow("wrong scan shows its notice") << 0 << 4 << "" << "%[12]{Enter}" << 6 << "Bericht :" << yesNo << 4 << "Message.wav" << "Scan Barcode - Magnetic Card";
        QTest::newRow("scanned letters are no answers") << 0 << 36 << "" << "%[J{Esc}" << 7 << "Vraag ?" << yesNo << 3 << "Question.wav" << "";
        QTest::newRow("identity, T") << 0 << -1 << "" << "t" << 2 << identityTitle << identity << 1 << "Exclamation.wav" << "";
        QTest::newRow("French identity, É") << 10000 << -1 << "" << "é" << 1 << frIdentityTitle << identityFr << 1 << "Exclamation.wav" << "";
        // Closed by its close button, a box answers as Escape, never with an earlier answer.
        QTest::newRow("close button, Yes and No") << 0 << 4 << "" << "{Close}" << 7 << "Bericht :" << yesNo << 4 << "Message.wav" << "";
        // clang-format on
    }
    void answers()
    {
        QFETCH(int, offset);
        QFETCH(int, style);
        QFETCH(QString, title);
        QFETCH(QString, keys);
        QFETCH(QString, sound);
        Seen seen;
        bool closedByTheKeys = false;
        if (keys == QLatin1String("{Close}"))
            modGenLib().msgBoxResult = 6;
        test::whenModalIsActive([&](QWidget *window) {
            seen = look(window);
            if (keys == QLatin1String("{Close}"))
                window->close();
            else
                test::typeKeys(window, keys);
            closedByTheKeys = !window->isVisible();
        });
        QTEST(msgBoxE(number, style, title, offset), "result");
        QTEST(modGenLib().msgBoxResult, "result");
        QTEST(seen.caption, "caption");
        QTEST(seen.buttons, "buttons");
        QTEST(seen.icon, "icon");
        QCOMPARE(machine->sounds, QStringList { sounds->soundPath(sound) });
        QVERIFY(seen.label.contains(number));
        QVERIFY(QRect(0, 0, 1024, 768).contains(seen.geometry));
        QTEST(machine->notices.join(QLatin1Char('|')), "notice");
        QVERIFY(closedByTheKeys);
    }

    // The widgets a host's code finds by name, here on an identity number box.
    void formWidgets()
    {
        QString formTag;
        QString labelTag;
        QString label;
        bool scannerHidden = false;
        test::whenModalIsActive([&](QWidget *window) {
            formTag = window->property("Tag").toString();
            labelTag
                = window->findChild<QLabel *>(QStringLiteral("Label"))->property("Tag").toString();
            label = window->findChild<QLabel *>(QStringLiteral("Label"))->text();
            auto *scanner = window->findChild<QLineEdit *>(QStringLiteral("TextScanBM"));
            scannerHidden = scanner && !scanner->isVisible();
            QCOMPARE(window->findChildren<QLabel *>(QStringLiteral("Img")).size(), 5);
            QVERIFY(window->findChild<QWidget *>(QStringLiteral("Frame")));
            test::typeKeys(window, QStringLiteral("t"));
        });
        msgBoxE(number, -1, QString(), 0);
        const QString text = MessageBoxLogic::identityNumberText(number);
        QCOMPARE(formTag, QStringLiteral("-1"));
        QCOMPARE(labelTag, text);
        // Laid out in lines: the paragraph break and the wrap are line breaks.
        QCOMPARE(label.replace(QLatin1Char('\n'), QLatin1Char(' ')),
            QString(text).replace(QLatin1Char('\r'), QLatin1Char(' ')));
        QVERIFY(scannerHidden);
    }

    void inputBox_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("defaultValue");
        QTest::addColumn<int>("maxLength");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("result");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("cancelCaption");
        // clang-format off
        QTest::newRow("default, Enter") << 0 << "Naam" << "Jan" << 250 << "{Enter}" << "Jan" << "Naam" << "Annuleren";
        QTest::newRow("typed and trimmed") << 0 << "Naam" << "" << 250 << "  abc  {Enter}" << "abc" << "Naam" << "Annuleren";
        QTest::newRow("Escape cancels") << 0 << "Naam" << "Jan" << 250 << "x{Esc}" << "-9999" << "Naam" << "Annuleren";
        QTest::newRow("maximum length") << 0 << "Naam" << "" << 5 << "abcdefgh{Enter}" << "abcde" << "Naam" << "Annuleren";
        QTest::newRow("no limit") << 0 << "Naam" << "" << -3 << "abcdefgh{Enter}" << "abcdefgh" << "Naam" << "Annuleren";
        QTest::newRow("French, blank title") << 10000 << "   " << "" << 250 << "{Esc}" << "-9999" << "?" << "Annuler";
        QTest::newRow("OK button") << 0 << "Naam" << " Jan " << 250 << "cmdOK" << "Jan" << "Naam" << "Annuleren";
        QTest::newRow("Cancel button") << 0 << "Naam" << "Jan" << 250 << "cmdCancel" << "-9999" << "Naam" << "Annuleren";
        QTest::newRow("close button") << 0 << "Naam" << "Jan" << 250 << "close" << "-9999" << "Naam" << "Annuleren";
        // clang-format on
    }
    void inputBox()
    {
        QFETCH(int, offset);
        QFETCH(QString, title);
        QFETCH(QString, defaultValue);
        QFETCH(int, maxLength);
        QFETCH(QString, keys);
        QString caption;
        QString cancelCaption;
        test::whenModalIsActive([&](QWidget *window) {
            caption = window->windowTitle();
            cancelCaption = window->findChild<QPushButton *>(QStringLiteral("cmdCancel"))->text();
            auto *text = window->findChild<QLineEdit *>(QStringLiteral("Text"));
            QCOMPARE(QApplication::focusWidget(), text);
            text->selectAll();
            if (keys.startsWith(QLatin1String("cmd")))
                QTest::mouseClick(window->findChild<QPushButton *>(keys), Qt::LeftButton);
            else if (keys == QLatin1String("close"))
                window->close();
            else
                test::typeKeys(text, keys);
        });
        QTEST(inputBoxE(QStringLiteral("Uw naam ?"), title, defaultValue, maxLength, offset),
            "result");
        QTEST(modGenLib().inputBoxResult, "result");
        QTEST(caption, "caption");
        QTEST(cancelCaption, "cancelCaption");
        QCOMPARE(
            machine->sounds, QStringList { sounds->soundPath(QStringLiteral("Question.wav")) });
    }

    void screenshots_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("prompt");
        QTest::addColumn<int>("style");
        const QString question = QStringLiteral(
            "Wilt u deze factuur definitief afsluiten en afdrukken?\r\rEen afgesloten factuur "
            "kan niet meer gewijzigd worden; een correctie gebeurt met een creditnota.");
        // clang-format off
        QTest::newRow("yes no") << "msgboxe-yesno" << question << 36;
        QTest::newRow("identity number") << "msgboxe-identitynumber" << number << -1;
        // clang-format on
    }
    void screenshots()
    {
        QFETCH(QString, name);
        QFETCH(QString, prompt);
        QFETCH(int, style);
        const QString path = screenshotPath(name);
        test::whenModalIsActive([&](QWidget *window) {
            QVERIFY(window->grab().save(path));
            test::typeKeys(window, QStringLiteral("{Esc}"));
        });
        msgBoxE(prompt, style, QString(), 0);
        QVERIFY(QFileInfo(path).size() > 0);
    }
};

QTEST_MAIN(TestMsgBoxE)
#include "tst_msgboxe.moc"
