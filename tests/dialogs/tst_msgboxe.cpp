#include "dialogs/boxes.h"
#include "lib/clsqorgenlib.h"

#include "tests/common/userinput.h"
#include "tests/dialogs/dialogtestplatform.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace qor;

namespace {

// Keys as the rows write them: "\r" is Enter, "\x1b" Escape.
void typeInto(QWidget *window, const QString &keys)
{
    QString named = keys;
    named.replace(QLatin1Char('\r'), QLatin1String("{Enter}"));
    named.replace(QChar(27), QLatin1String("{Esc}"));
    test::typeKeys(window, named);
}

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
        const QStringList ok { "cmdOK=OK" };
        const QStringList okCancel { "cmdOK=OK", "cmdCancel=Annuleren" };
        const QStringList yesNo { "cmdYes=Ja", "cmdNo=Nee" };
        const QStringList identity { "cmdOK=Vreemd", "cmdCancel=TypeFout" };
        const QStringList okAnnuler { "cmdOK=OK", "cmdCancel=Annuler" };
        const QStringList ouiNon { "cmdYes=Oui", "cmdNo=Non" };
        const QStringList identityFr { "cmdOK=Étranger", "cmdCancel=Erreur de frappe" };
        const QString frIdentityTitle = QStringLiteral("Contrôle du numéro de carte d'identité");
        // clang-format off
        QTest::newRow("plain, Enter") << 0 << 0 << "" << "\r" << 1 << "Bericht :" << ok << 4 << "Message.wav";
        QTest::newRow("plain, Escape") << 0 << 0 << "" << "\x1b" << 1 << "Bericht :" << ok << 4 << "Message.wav";
        QTest::newRow("plain, O") << 0 << 0 << "" << "o" << 1 << "Bericht :" << ok << 4 << "Message.wav";
        QTest::newRow("plain, N chooses nothing") << 0 << 0 << "" << "nax\r" << 1 << "Bericht :" << ok << 4 << "Message.wav";
        QTest::newRow("question, J") << 0 << 36 << "" << "j" << 6 << "Vraag ?" << yesNo << 3 << "Question.wav";
        QTest::newRow("question, Y") << 0 << 36 << "" << "Y" << 6 << "Vraag ?" << yesNo << 3 << "Question.wav";
        QTest::newRow("question, Enter") << 0 << 36 << "" << "\r" << 6 << "Vraag ?" << yesNo << 3 << "Question.wav";
        QTest::newRow("question, N") << 0 << 36 << "" << "n" << 7 << "Vraag ?" << yesNo << 3 << "Question.wav";
        QTest::newRow("question, Escape") << 0 << 36 << "" << "\x1b" << 7 << "Vraag ?" << yesNo << 3 << "Question.wav";
        QTest::newRow("question, A and O choose nothing") << 0 << 36 << "" << "aon" << 7 << "Vraag ?" << yesNo << 3 << "Question.wav";
        QTest::newRow("critical, own title, A") << 0 << 17 << "Eigen titel" << "a" << 2 << "Eigen titel" << okCancel << 0 << "Critical.wav";
        QTest::newRow("critical, own title, C") << 0 << 17 << "Eigen titel" << "c" << 2 << "Eigen titel" << okCancel << 0 << "Critical.wav";
        QTest::newRow("critical, own title, Escape") << 0 << 17 << "Eigen titel" << "\x1b" << 2 << "Eigen titel" << okCancel << 0 << "Critical.wav";
        QTest::newRow("critical, own title, Enter") << 0 << 17 << "Eigen titel" << "\r" << 1 << "Eigen titel" << okCancel << 0 << "Critical.wav";
        QTest::newRow("critical, J chooses nothing") << 0 << 17 << "" << "jo" << 1 << "Fout !" << okCancel << 0 << "Critical.wav";
        QTest::newRow("exclamation") << 0 << 48 << "   " << "\r" << 1 << "Opgelet !" << ok << 1 << "Exclamation.wav";
        QTest::newRow("information") << 0 << 64 << "" << "\r" << 1 << "Ter Info :" << ok << 2 << "Information.wav";
        QTest::newRow("critical over information") << 0 << 80 << "" << "\r" << 1 << "Fout !" << ok << 0 << "Critical.wav";
        QTest::newRow("style 3 shows OK and Cancel") << 0 << 3 << "" << "\x1b" << 2 << "Bericht :" << okCancel << 4 << "Message.wav";
        QTest::newRow("style 5 shows Yes and No") << 0 << 5 << "" << "\r" << 6 << "Bericht :" << yesNo << 4 << "Message.wav";
        QTest::newRow("style 2 shows OK alone") << 0 << 2 << "" << "\x1b" << 1 << "Bericht :" << ok << 4 << "Message.wav";
        QTest::newRow("every bit set") << 0 << 0x7fffffff << "" << "n" << 7 << "Opgelet !" << yesNo << 1 << "Exclamation.wav";
        QTest::newRow("negative style") << 0 << -2 << "" << "\x1b" << 7 << "Opgelet !" << yesNo << 1 << "Exclamation.wav";
        QTest::newRow("scan OK answers Yes") << 0 << 36 << "" << "%[OK]" << 6 << "Vraag ?" << yesNo << 3 << "Question.wav";
        QTest::newRow("scan ANN answers No") << 0 << 36 << "" << "%[ANN]" << 7 << "Vraag ?" << yesNo << 3 << "Question.wav";
        QTest::newRow("scan ANN answers Cancel") << 0 << 1 << "" << "%[ann]" << 2 << "Bericht :" << okCancel << 4 << "Message.wav";
        QTest::newRow("scan OK answers OK") << 0 << 1 << "" << "%[OK]" << 1 << "Bericht :" << okCancel << 4 << "Message.wav";
        QTest::newRow("scan ANN with OK alone waits") << 0 << 0 << "" << "%[ANN]\r" << 1 << "Bericht :" << ok << 4 << "Message.wav";
        QTest::newRow("scanned letters are no answers") << 0 << 36 << "" << "%[J\x1b" << 7 << "Vraag ?" << yesNo << 3 << "Question.wav";
        QTest::newRow("identity, V") << 0 << -1 << identityTitle << "v" << 1 << identityTitle << identity << 1 << "Exclamation.wav";
        QTest::newRow("identity, T") << 0 << -1 << identityTitle << "T" << 2 << identityTitle << identity << 1 << "Exclamation.wav";
        QTest::newRow("identity, Enter") << 0 << -1 << identityTitle << "\r" << 2 << identityTitle << identity << 1 << "Exclamation.wav";
        QTest::newRow("identity, Escape") << 0 << -1 << identityTitle << "\x1b" << 2 << identityTitle << identity << 1 << "Exclamation.wav";
        QTest::newRow("identity, J and O choose nothing") << 0 << -1 << "" << "jov" << 1 << identityTitle << identity << 1 << "Exclamation.wav";
        QTest::newRow("identity, scan OK") << 0 << -1 << identityTitle << "%[OK]" << 1 << identityTitle << identity << 1 << "Exclamation.wav";
        QTest::newRow("French question, Y") << 10000 << 36 << "" << "y" << 6 << "Question ?" << ouiNon << 3 << "Question.wav";
        QTest::newRow("French question, O chooses nothing") << 10000 << 36 << "" << "o\x1b" << 7 << "Question ?" << ouiNon << 3 << "Question.wav";
        QTest::newRow("French cancel, A") << 10000 << 1 << "" << "a" << 2 << "Message :" << okAnnuler << 4 << "Message.wav";
        QTest::newRow("French critical") << 10000 << 16 << "" << "\r" << 1 << "Erreur !" << ok << 0 << "Critical.wav";
        QTest::newRow("French identity, É") << 10000 << -1 << "" << "é" << 1 << frIdentityTitle << identityFr << 1 << "Exclamation.wav";
        QTest::newRow("French identity, E") << 10000 << -1 << "" << "e" << 2 << frIdentityTitle << identityFr << 1 << "Exclamation.wav";
        // clang-format on
    }
    void answers()
    {
        QFETCH(int, offset);
        QFETCH(int, style);
        QFETCH(QString, title);
        QFETCH(QString, keys);
        Seen seen;
        test::whenModalIsActive([&](QWidget *window) {
            seen = look(window);
            typeInto(window, keys);
        });
        QTEST(msgBoxE(number, style, title, offset), "result");
        QTEST(modGenLib().msgBoxResult, "result");
        QTEST(seen.caption, "caption");
        QTEST(seen.buttons, "buttons");
        QTEST(seen.icon, "icon");
        QFETCH(QString, sound);
        QCOMPARE(machine->sounds, QStringList { sounds->soundPath(sound) });
        QVERIFY(seen.label.contains(number));
        QVERIFY(QRect(0, 0, 1024, 768).contains(seen.geometry));
        QVERIFY(machine->notices.isEmpty());
    }

    void identityNumberText()
    {
        QString label;
        test::whenModalIsActive([&](QWidget *window) {
            label = window->findChild<QLabel *>(QStringLiteral("Label"))->text();
            typeInto(window, QStringLiteral("t"));
        });
        msgBoxE(number, -1, QString(), 0);
        QCOMPARE(label.replace(QLatin1Char('\n'), QLatin1Char(' ')),
            QStringLiteral("Ongeldig Ident-Nr :  591234567890  U heeft een typefout gemaakt of "
                           "het betreft een vreemde nationaliteit."));
    }

    // The identity card check accepts a failing number only as a foreign card.
    void identityCardCheck_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("result");
        QTest::newRow("foreign card") << "v" << number;
        QTest::newRow("typing error") << "t"
                                      << "";
        QTest::newRow("Enter") << "\r"
                               << "";
    }
    void identityCardCheck()
    {
        QFETCH(QString, keys);
        clsqorGenLib library;
        test::whenModalIsActive([&](QWidget *window) { typeInto(window, keys); });
        QString identNr = number;
        QTEST(library.ControleerIdentNr(identNr, true), "result");
    }

    void closeButtonCountsAsEscape_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("result");
        QTest::newRow("OK alone") << 0 << 1;
        QTest::newRow("OK and Cancel") << 1 << 2;
        QTest::newRow("Yes and No") << 4 << 7;
        QTest::newRow("identity number") << -1 << 2;
    }
    void closeButtonCountsAsEscape()
    {
        QFETCH(int, style);
        modGenLib().msgBoxResult = 6; // an earlier box's answer
        test::whenModalIsActive([](QWidget *window) { window->close(); });
        QTEST(msgBoxE(QStringLiteral("Sluiten"), style, QString(), 0), "result");
        QTEST(modGenLib().msgBoxResult, "result");
    }

    void wrongScanShowsItsNotice()
    {
        test::whenModalIsActive([](QWidget *window) {
            typeInto(window, QStringLiteral("%[12]"));
            typeInto(window, QStringLiteral("\r"));
        });
        QCOMPARE(msgBoxE(QStringLiteral("Scan"), 4, QString(), 0), 6);
        QCOMPARE(machine->notices, QStringList { QStringLiteral("Scan Barcode - Magnetic Card") });
    }

    void formWidgets()
    {
        QString formTag;
        QString labelTag;
        bool scannerHidden = false;
        test::whenModalIsActive([&](QWidget *window) {
            formTag = window->property("Tag").toString();
            labelTag
                = window->findChild<QLabel *>(QStringLiteral("Label"))->property("Tag").toString();
            auto *scanner = window->findChild<QLineEdit *>(QStringLiteral("TextScanBM"));
            scannerHidden = scanner && !scanner->isVisible();
            QCOMPARE(window->findChildren<QLabel *>(QStringLiteral("Img")).size(), 5);
            QVERIFY(window->findChild<QWidget *>(QStringLiteral("Frame")));
            typeInto(window, QStringLiteral("\r"));
        });
        msgBoxE(QStringLiteral("Eerste\rTweede"), 36, QString(), 0);
        QCOMPARE(formTag, QStringLiteral("36"));
        QCOMPARE(labelTag, QStringLiteral("Eerste\rTweede"));
        QVERIFY(scannerHidden);
    }

    void soundOff()
    {
        clsqorGenLib library;
        library.SetSound(true);
        test::whenModalIsActive(
            [](QWidget *window) { typeInto(window, QStringLiteral("\r")); });
        library.MsgBoxE(QStringLiteral("Stil"), 16);
        test::whenModalIsActive(
            [](QWidget *window) { typeInto(window, QStringLiteral("\r")); });
        library.InputBoxE(QStringLiteral("Stil"), QString());
        QVERIFY(machine->sounds.isEmpty());
        QVERIFY(machine->notices.isEmpty());
    }

    // Bad prompts and titles: the box stays on the screen and answers.
    void oddPrompts_data()
    {
        QTest::addColumn<QString>("prompt");
        QTest::addColumn<QString>("title");
        QTest::newRow("100000 characters, no blanks") << QString(100000, 'W') << "";
        QTest::newRow("only carriage returns") << QString(5000, '\r') << "";
        QTest::newRow("control characters")
            << QString(300, QChar(1)) + "\t\a\b" << QString(3, QChar(0));
        QTest::newRow("huge title") << "kort" << QString(100000, 'T');
        QTest::newRow("many words") << QString("lang woord ").repeated(5000) << "";
    }
    void oddPrompts()
    {
        QFETCH(QString, prompt);
        QFETCH(QString, title);
        QRect geometry;
        test::whenModalIsActive([&](QWidget *window) {
            geometry = window->geometry();
            typeInto(window, QStringLiteral("\x1b"));
        });
        QCOMPARE(msgBoxE(prompt, 1, title, 0), 2);
        QVERIFY(QRect(0, 0, 1024, 768).contains(geometry));
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
        QTest::newRow("default, Enter") << 0 << "Naam" << "Jan" << 250 << "\r" << "Jan" << "Naam" << "Annuleren";
        QTest::newRow("typed and trimmed") << 0 << "Naam" << "" << 250 << "  abc  \r" << "abc" << "Naam" << "Annuleren";
        QTest::newRow("empty answer") << 0 << "Naam" << "" << 250 << "\r" << "" << "Naam" << "Annuleren";
        QTest::newRow("Escape cancels") << 0 << "Naam" << "Jan" << 250 << "x\x1b" << "-9999" << "Naam" << "Annuleren";
        QTest::newRow("maximum length") << 0 << "Naam" << "" << 5 << "abcdefgh\r" << "abcde" << "Naam" << "Annuleren";
        QTest::newRow("no limit") << 0 << "Naam" << "" << -3 << "abcdefgh\r" << "abcdefgh" << "Naam" << "Annuleren";
        QTest::newRow("blank title") << 0 << "   " << "" << 250 << "\r" << "" << "?" << "Annuleren";
        QTest::newRow("French") << 10000 << "" << "" << 250 << "\x1b" << "-9999" << "?" << "Annuler";
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
            typeInto(text, keys);
        });
        QTEST(inputBoxE(QStringLiteral("Uw naam ?"), title, defaultValue, maxLength, offset),
            "result");
        QTEST(modGenLib().inputBoxResult, "result");
        QTEST(caption, "caption");
        QTEST(cancelCaption, "cancelCaption");
        QCOMPARE(
            machine->sounds, QStringList { sounds->soundPath(QStringLiteral("Question.wav")) });
    }

    void inputBoxButtonsAndClose_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<QString>("result");
        QTest::newRow("OK button") << "cmdOK"
                                   << "Jan";
        QTest::newRow("Cancel button") << "cmdCancel"
                                       << "-9999";
        QTest::newRow("close button") << "close"
                                      << "-9999";
    }
    void inputBoxButtonsAndClose()
    {
        QFETCH(QString, how);
        test::whenModalIsActive([&](QWidget *window) {
            if (how == QLatin1String("close"))
                window->close();
            else
                QTest::mouseClick(window->findChild<QPushButton *>(how), Qt::LeftButton);
        });
        QTEST(inputBoxE(QStringLiteral("Naam ?"), QString(), QStringLiteral(" Jan "), 250, 0),
            "result");
    }

    // Pictures of the boxes for the documentation, in the build folder.
    void screenshots_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("prompt");
        QTest::addColumn<int>("style");
        const QString question = QStringLiteral(
            "Wilt u deze factuur definitief afsluiten en afdrukken?\r\rEen afgesloten factuur "
            "kan niet meer gewijzigd worden; een correctie gebeurt met een creditnota.");
        // clang-format off
        QTest::newRow("ok") << "msgboxe-ok" << "De gegevens zijn bewaard." << 64;
        QTest::newRow("ok cancel") << "msgboxe-okcancel" << "Het bestand wordt overschreven." << 17;
        QTest::newRow("yes no") << "msgboxe-yesno" << question << 36;
        QTest::newRow("style 3 as ok cancel") << "msgboxe-style3" << "Wijzigingen bewaren?" << 3 + 48;
        QTest::newRow("identity number") << "msgboxe-identitynumber" << number << -1;
        // clang-format on
    }
    void screenshots()
    {
        QFETCH(QString, name);
        QFETCH(QString, prompt);
        QFETCH(int, style);
        const QString path = QCoreApplication::applicationDirPath()
            + QStringLiteral("/screenshots/") + name + QStringLiteral(".png");
        QDir().mkpath(QFileInfo(path).absolutePath());
        test::whenModalIsActive([&](QWidget *window) {
            QVERIFY(window->grab().save(path));
            typeInto(window, QStringLiteral("\x1b"));
        });
        msgBoxE(prompt, style, QString(), 0);
        QVERIFY(QFileInfo(path).size() > 0);
    }
    void inputBoxScreenshot()
    {
        const QString path
            = QCoreApplication::applicationDirPath() + QStringLiteral("/screenshots/inputboxe.png");
        QDir().mkpath(QFileInfo(path).absolutePath());
        test::whenModalIsActive([&](QWidget *window) {
            QVERIFY(window->grab().save(path));
            typeInto(window, QStringLiteral("\r"));
        });
        inputBoxE(QStringLiteral("Geef het aantal dozen:"), QStringLiteral("Levering"),
            QStringLiteral("12"), 5, 0);
        QVERIFY(QFileInfo(path).size() > 0);
    }
};

QTEST_MAIN(TestMsgBoxE)
#include "tst_msgboxe.moc"
