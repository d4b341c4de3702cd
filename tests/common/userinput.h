#pragma once

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace qor::test {

// Runs an action on the next modal window once it is active; with a name, on
// the next one of that object name.
inline void whenModalIsActive(const QString &name, std::function<void(QWidget *)> action)
{
    QTimer::singleShot(0, [name, action] {
        QTRY_VERIFY(QApplication::activeModalWidget()
            && (name.isEmpty() || QApplication::activeModalWidget()->objectName() == name));
        QWidget *window = QApplication::activeModalWidget();
        QVERIFY(QTest::qWaitForWindowActive(window));
        action(window);
        // A window the action should have closed but did not is closed a
        // little later, so that the test fails on what it returns instead of
        // waiting for its timeout.
        QTimer::singleShot(2000, window, [window] {
            if (window->isVisible())
                window->close();
        });
    });
}

inline void whenModalIsActive(std::function<void(QWidget *)> action)
{
    whenModalIsActive(QString(), std::move(action));
}

// Types a key sequence into a widget as a user types it. A character is the
// key that types it; a name in braces is that key: {Enter}, {Esc}, {BS}, {Up},
// {Down}, {Home}, {CtrlA}; {Zhe} is a Cyrillic letter, as a keyboard with that
// layout types it.
inline void typeKeys(QWidget *widget, const QString &keys)
{
    static const QHash<QString, QPair<Qt::Key, Qt::KeyboardModifiers>> named {
        { "Enter", { Qt::Key_Return, Qt::NoModifier } },
        { "Esc", { Qt::Key_Escape, Qt::NoModifier } },
        { "BS", { Qt::Key_Backspace, Qt::NoModifier } },
        { "Up", { Qt::Key_Up, Qt::NoModifier } },
        { "Down", { Qt::Key_Down, Qt::NoModifier } },
        { "Home", { Qt::Key_Home, Qt::NoModifier } },
        { "CtrlA", { Qt::Key_A, Qt::ControlModifier } },
    };
    for (qsizetype i = 0; i < keys.size(); ++i) {
        const qsizetype close
            = keys.at(i) == QLatin1Char('{') ? keys.indexOf(QLatin1Char('}'), i) : -1;
        if (close < 0) {
            const QChar c = keys.at(i);
            const Qt::Key key
                = c.unicode() < 128 ? Qt::Key(c.toUpper().unicode()) : Qt::Key_unknown;
            QTest::sendKeyEvent(QTest::Press, widget, key, QString(c), Qt::NoModifier);
            QTest::sendKeyEvent(QTest::Release, widget, key, QString(c), Qt::NoModifier);
            continue;
        }
        const QString name = keys.mid(i + 1, close - i - 1);
        if (name == QLatin1String("Zhe")) {
            QKeyEvent event(
                QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QStringLiteral("\u0416"));
            QApplication::sendEvent(widget, &event);
        } else {
            QVERIFY2(named.contains(name), qPrintable(name));
            QTest::keyClick(widget, named.value(name).first, named.value(name).second);
        }
        i = close;
    }
}

} // namespace qor::test
