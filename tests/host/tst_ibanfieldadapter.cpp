#include "host/qt/ibanfieldadapter.h"
#include "lib/clsqorgenlib.h"
#include "tests/common/recordingmachine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace qor;

// A real QLineEdit made an IBAN field, typed into as a user types.
class TestIbanFieldAdapter : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> m_machine;
    clsqorGenLib *m_lib = nullptr;
    QLineEdit *m_field = nullptr;

private slots:
    void init()
    {
        m_machine = test::installRecordingPlatform(QStringLiteral("nl_BE"));
        m_lib = new clsqorGenLib;
        m_field = new QLineEdit;
        QVERIFY(IbanFieldAdapter::attach(m_field, m_lib));
        m_field->show();
        m_field->setFocus();
    }
    void cleanup()
    {
        delete m_field;
        delete m_lib;
    }

    void typing_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("cursorAfter");
        // clang-format off
        QTest::newRow("groups of four in upper case") << "" << 0 << "be71096" << "BE71 096" << 8;
        QTest::newRow("inserted in the middle: cursor after it") << "BE71 0961" << 2 << "x" << "BEX7 1096 1" << 3;
        QTest::newRow("inserted before a group's first character") << "BE71 0961" << 5 << "5" << "BE71 5096 1" << 6;
        // clang-format on
    }
    void typing()
    {
        QFETCH(QString, before);
        QFETCH(int, cursor);
        QFETCH(QString, keys);
        m_field->setText(before);
        m_field->setCursorPosition(cursor);
        QTest::keyClicks(m_field, keys);
        QTEST(m_field->text(), "shown");
        QTEST(m_field->cursorPosition(), "cursorAfter");
    }

    void leaving_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("signalled");
        QTest::addColumn<int>("messages");
        // clang-format off
        QTest::newRow("right IBAN in print form") << "be71096123456769" << "BE71 0961 2345 6769" << "BE71 0961 2345 6769" << 0;
        QTest::newRow("wrong IBAN kept for correcting, with the message") << "BE72096123456769" << "BE72096123456769" << "" << 1;
        QTest::newRow("blank: nothing said") << "" << "" << "" << 0;
        // clang-format on
    }
    void leaving()
    {
        QFETCH(QString, keys);
        QSignalSpy checked(m_field->findChild<IbanFieldAdapter *>(), &IbanFieldAdapter::checked);
        QTest::keyClicks(m_field, keys);
        QTest::keyClick(m_field, Qt::Key_Return);
        QTEST(m_field->text(), "shown");
        QCOMPARE(checked.size(), 1);
        QTEST(checked.first().first().toString(), "signalled");
        QTEST(int(m_machine->shown().size()), "messages");
    }

    // The field with the bank's BIC beside it, for the documentation.
    void screenshot()
    {
        QWidget form;
        auto *layout = new QFormLayout(&form);
        auto *field = new QLineEdit;
        field->setMinimumWidth(200);
        auto *bic = new QLabel;
        layout->addRow(QStringLiteral("IBAN :"), field);
        layout->addRow(QStringLiteral("BIC :"), bic);
        IbanFieldAdapter::attach(field, m_lib);
        form.show();
        field->setFocus();
        QTest::keyClicks(field, QStringLiteral("be71096123456769"));
        bic->setText(m_lib->GetBIC(field->text()));
        const QString folder
            = QCoreApplication::applicationDirPath() + QStringLiteral("/screenshots");
        QDir().mkpath(folder);
        QVERIFY(form.grab().save(folder + QStringLiteral("/iban-field.png")));
        QCOMPARE(bic->text(), QStringLiteral("GKCCBEBB"));
    }
};

QTEST_MAIN(TestIbanFieldAdapter)
#include "tst_ibanfieldadapter.moc"
