#include "system/desktop.h"

#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "platform/clock.h"
#include "platform/dialogpresenter.h"
#include "runtime/callbyname.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"

#include <QDateTime>

namespace qor {

namespace {

constexpr double white = 0xFFFFFF;
constexpr double buttonFace = qint32(0x8000000F);
constexpr int shapeCount = 8;

RegionalSettings regional()
{
    return Clock::current().regionalSettings();
}

void set(QObject *object, const char *name, const QVariant &value)
{
    setProperty(object, name, value, regional());
}

double number(QObject *object, const char *name)
{
    return toDouble(getProperty(object, name), regional());
}

QObject *child(QObject *form, const char *name)
{
    QObject *object = getProperty(form, name).value<QObject *>();
    if (!object)
        throw RuntimeError::objectNotSet();
    return object;
}

QObject *shape(QObject *form, int index)
{
    const QVariant shapes = getProperty(form, "ShapeMenu");
    const QVariantList list = shapes.toList();
    if (shapes.typeId() != QMetaType::QVariantList || index >= list.size())
        throw RuntimeError::subscriptOutOfRange();
    QObject *object = list.at(index).value<QObject *>();
    if (!object)
        throw RuntimeError::objectNotSet();
    return object;
}

struct DesignSetting
{
    const char *property;
    QVariant required;
    const char *message;
};

// A setting differs when its value, compared as a number, is not the required one.
bool differs(QObject *form, const DesignSetting &setting)
{
    const double actual = toDouble(getProperty(form, setting.property), regional());
    return actual != toDouble(setting.required, regional());
}

void checkDesign(QObject *form)
{
    static const DesignSetting settings[] = {
        { "BorderStyle", 2, "FrmMenu.BorderStyle property should be :  2 - Sizable" },
        { "ControlBox", true, "FrmMenu.ControlBox property should be :  True" },
        { "MaxButton", false, "FrmMenu.MaxButton property should be :  False" },
        { "MinButton", true, "FrmMenu.MinButton property should be :  True" },
        { "Moveable", false, "FrmMenu.Moveable property should be :  False" },
        { "ShowInTaskbar", true, "FrmMenu.ShowInTaskbar property should be :  True" },
        { "StartUpPosition", 2, "FrmMenu.StartupPosition property should be :  2 - CenterScreen" },
    };
    for (const DesignSetting &setting : settings) {
        if (differs(form, setting))
            DialogPresenter::current().systemMessageBox(
                { QString::fromLatin1(setting.message), MessageBoxStyle::OK, QString() });
    }
}

void move(QObject *control, const QVariantList &placement)
{
    callOperation(control, "Move", placement);
}

void dressFrame(QObject *frame)
{
    set(frame, "BorderStyle", 0);
    set(frame, "Caption", QString());
    move(frame, { 6120.0, 3060.0 });
}

void dressMonthView(QObject *monthView, double titleColour)
{
    set(monthView, "BackColor", white);
    set(monthView, "BorderStyle", 0);
    set(monthView, "Day", 1);
    set(monthView, "ForeColor", 0);
    set(monthView, "MonthBackColor", white);
    set(monthView, "MonthColumns", 1);
    set(monthView, "MonthRows", 1);
    move(monthView, { 2590.0, 4700.0 });
    set(monthView, "TitleForeColor", white);
    set(monthView, "TitleBackColor", titleColour);
    set(monthView, "TrailingForeColor", buttonFace);
    set(monthView, "ShowWeekNumbers", true);
    set(monthView, "Value", Clock::current().now().date());
    set(monthView, "Visible", true);
}

void dressShapes(QObject *form, QObject *frame, const DeskTopColours &colours)
{
    const double frameWidth = number(frame, "Width");
    const double frameHeight = number(frame, "Height");
    const struct
    {
        double left, top, width, height, border, fill;
    } placements[shapeCount] = {
        { 4040, 720, 7100, 7100, colours.first, colours.first },
        { 4400, 1200, 1095, 1095, colours.second, colours.second },
        { 5720, 1200, 1095, 1095, colours.second, colours.second },
        { 7040, 1200, 1095, 1095, colours.second, colours.second },
        { 8360, 1200, 1095, 1095, colours.second, colours.second },
        { 9680, 1200, 1095, 1095, colours.second, colours.second },
        { 2580, 4680, 2450, 2340, colours.first, white }, // around the month view
        { 6000, 3000, frameWidth + 245, frameHeight + 125, colours.first, white }, // the frame
    };
    for (int i = 0; i < shapeCount; ++i) {
        QObject *s = shape(form, i);
        const auto &p = placements[i];
        set(s, "BorderStyle", 1);
        set(s, "FillStyle", 0);
        move(s, { p.left, p.top, p.width, p.height });
        set(s, "BorderColor", p.border);
        set(s, "FillColor", p.fill);
        callOperation(s, "ZOrder", { 0 });
    }
}

// The host's version as kept by StartUp; 0.0 Rev. 0 without an application.
QString versionCaption()
{
    qint32 parts[3] = { 0, 0, 0 };
    if (QObject *application = modGenLib().application) {
        const char *names[] = { "Major", "Minor", "Revision" };
        for (int i = 0; i < 3; ++i)
            parts[i] = toLong(getProperty(application, names[i]), regional());
    }
    return QStringLiteral("Versie %1.%2 Rev. %3").arg(parts[0]).arg(parts[1]).arg(parts[2]);
}

void dressVersionLabel(QObject *label, QObject *outline, double colour)
{
    set(label, "Alignment", 1);
    set(label, "AutoSize", true);
    set(label, "Caption", versionCaption());
    set(label, "ForeColor", colour);
    const double left = number(outline, "Left") + number(outline, "Width") - number(label, "Width");
    const double top = number(outline, "Top") + number(outline, "Height") + 60;
    move(label, { left, top });
}

} // namespace

DeskTopColours deskTopColours(const QString &schemeCode)
{
    if (val(schemeCode) == 17)
        return { 4358911, 12440575 };
    return { 12030497, 15187546 };
}

void setDeskTop(QObject *formMenu)
{
    const DeskTopColours colours = deskTopColours(modGenLib().deskTopScheme);
    checkDesign(formMenu);
    set(formMenu, "WindowState", 2);
    QObject *frame = child(formMenu, "FrameMenu");
    dressFrame(frame);
    dressMonthView(child(formMenu, "MonthView"), colours.first);
    dressShapes(formMenu, frame, colours);
    dressVersionLabel(child(formMenu, "LabelVersie"), shape(formMenu, 7), colours.first);
}

} // namespace qor
