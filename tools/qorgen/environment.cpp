#include "tools/qorgen/environment.h"

#include "platform/recordingplatform.h"
#include "tools/qorgen/requesterror.h"
#include "tools/qorgen/valuecodec.h"

#include <QLocale>

#include <cmath>
#include <limits>

namespace qor {

namespace {

RequestError badField(const QString &field, const QString &what)
{
    return RequestError::unreadable(QStringLiteral("env.%1: %2").arg(field, what));
}

QString text(const JsonValue &json, const QString &field)
{
    if (!json.isString())
        throw badField(field, QStringLiteral("a string is wanted, not %1").arg(json.kindName()));
    return json.toString();
}

// A whole number from minimum to the largest int; the range is tested before
// anything is converted, so that no value (1e300, -1e300) can wrap.
int whole(const JsonValue &json, const QString &field, int minimum)
{
    const double number = json.toDouble();
    if (!json.isNumber() || !(number >= minimum && number <= std::numeric_limits<int>::max())
        || number != std::trunc(number))
        throw badField(
            field, QStringLiteral("a whole number of at least %1 is wanted").arg(minimum));
    return int(number);
}

QRect taskbarRect(const JsonValue &json)
{
    if (!json.isObject() || json.size() != 4)
        throw badField(QStringLiteral("screen.taskbar"),
            QStringLiteral("null or {\"left\", \"top\", \"right\", \"bottom\"} is wanted"));
    int edge[4];
    const char16_t *names[] = { u"left", u"top", u"right", u"bottom" };
    for (int i = 0; i < 4; ++i) {
        const JsonValue *value = json.member(names[i]);
        if (!value)
            throw badField(QStringLiteral("screen.taskbar"),
                QStringLiteral("\"%1\" is missing").arg(QString::fromUtf16(names[i])));
        edge[i] = whole(*value, QStringLiteral("screen.taskbar.") + QString::fromUtf16(names[i]),
            std::numeric_limits<int>::min());
    }
    // Right and bottom are the first pixel past the edge, as the system reports them;
    // the strip's size must be a pixel count too.
    const qint64 width = qint64(edge[2]) - edge[0];
    const qint64 height = qint64(edge[3]) - edge[1];
    if (width < 0 || width > std::numeric_limits<int>::max())
        throw badField(QStringLiteral("screen.taskbar.right"),
            QStringLiteral("from left to at most %1 pixels right of it is wanted")
                .arg(std::numeric_limits<int>::max()));
    if (height < 0 || height > std::numeric_limits<int>::max())
        throw badField(QStringLiteral("screen.taskbar.bottom"),
            QStringLiteral("from top to at most %1 pixels below it is wanted")
                .arg(std::numeric_limits<int>::max()));
    return QRect(edge[0], edge[1], int(width), int(height));
}

QPoint cursorPoint(const JsonValue &json)
{
    if (!json.isArray() || json.size() != 2)
        throw badField(QStringLiteral("screen.cursor"), QStringLiteral("[x, y] is wanted"));
    const auto &xy = json.toArray();
    return QPoint(whole(xy[0], QStringLiteral("screen.cursor"), std::numeric_limits<int>::min()),
        whole(xy[1], QStringLiteral("screen.cursor"), std::numeric_limits<int>::min()));
}

} // namespace

Environment Environment::fromJson(const JsonValue &env)
{
    if (!env.isObject())
        throw RequestError::unreadable(
            QStringLiteral("env: an object is wanted, not %1").arg(env.kindName()));
    Environment result;
    for (const auto &[field, value] : env.toObject()) {
        if (field == QLatin1String("locale"))
            result.setLocale(text(value, field));
        else if (field == QLatin1String("now"))
            result.setNow(value.isObject() && value.member(u"$date")
                    ? value.member(u"$date")->toString()
                    : text(value, field));
        else if (field == QLatin1String("systemDir"))
            result.m_systemDir = text(value, field);
        else if (field == QLatin1String("devSoundDir"))
            result.m_devSoundDir = text(value, field);
        else if (field == QLatin1String("screen"))
            result.readScreen(value);
        else if (field == QLatin1String("sound") && value.isBool())
            result.m_sound = value.toBool();
        else if (field == QLatin1String("sound"))
            throw badField(field, QStringLiteral("true or false is wanted"));
        else
            throw RequestError::unreadable(
                QStringLiteral("env: unknown field \"%1\" (known: locale, now, systemDir, "
                               "screen, sound, devSoundDir)")
                    .arg(field));
    }
    return result;
}

void Environment::setLocale(const QString &name)
{
    const QLocale locale(name);
    if (locale.language() == QLocale::C && name != QLatin1String("C"))
        throw badField(
            QStringLiteral("locale"), QStringLiteral("no locale is called \"%1\"").arg(name));
    m_locale = name;
}

void Environment::setNow(const QString &isoDateTime)
{
    const auto now = ValueCodec::readDate(isoDateTime);
    if (!now)
        throw badField(QStringLiteral("now"),
            QStringLiteral("\"yyyy-mm-ddThh:mm:ss\" is wanted, not \"%1\"").arg(isoDateTime));
    m_now = now;
}

void Environment::readScreen(const JsonValue &screen)
{
    if (!screen.isObject())
        throw badField(QStringLiteral("screen"), QStringLiteral("an object is wanted"));
    for (const auto &[field, value] : screen.toObject()) {
        const QString name = QStringLiteral("screen.") + field;
        if (field == QLatin1String("width"))
            m_width = whole(value, name, 0);
        else if (field == QLatin1String("height"))
            m_height = whole(value, name, 0);
        else if (field == QLatin1String("twipsPerPixelX"))
            m_twipsPerPixelX = whole(value, name, 1);
        else if (field == QLatin1String("twipsPerPixelY"))
            m_twipsPerPixelY = whole(value, name, 1);
        else if (field == QLatin1String("taskbar"))
            m_taskbar = value.isNull() ? std::optional<QRect>()
                                       : std::optional<QRect>(taskbarRect(value));
        else if (field == QLatin1String("cursor"))
            m_cursor = cursorPoint(value);
        else
            throw badField(name,
                QStringLiteral("unknown field (known: width, height, twipsPerPixelX, "
                               "twipsPerPixelY, taskbar, cursor)"));
    }
}

void Environment::applyTo(RecordingPlatform &platform) const
{
    if (m_locale)
        platform.setLocale(*m_locale);
    if (m_now)
        platform.setNow(*m_now);
    if (m_systemDir)
        platform.setSystemDirectory(*m_systemDir);
    if (m_devSoundDir)
        platform.setDevelopmentSoundDirectory(*m_devSoundDir);
    ScreenInfo screen = platform.screen();
    screen.width = m_width.value_or(screen.width);
    screen.height = m_height.value_or(screen.height);
    screen.twipsPerPixelX = m_twipsPerPixelX.value_or(screen.twipsPerPixelX);
    screen.twipsPerPixelY = m_twipsPerPixelY.value_or(screen.twipsPerPixelY);
    if (m_taskbar)
        screen.taskbar = *m_taskbar;
    screen.cursor = m_cursor.value_or(screen.cursor);
    platform.setScreen(screen);
}

} // namespace qor
