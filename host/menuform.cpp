#include "host/menuform.h"

#include "host/control.h"
#include "host/frame.h"

namespace qor {

namespace {

const int shapeCount = 8;

} // namespace

MenuForm::MenuForm(QObject *parent)
    : Form(parent)
    , m_frameMenu(new Frame(this))
    , m_monthView(new Control(this))
    , m_labelVersie(new Control(this))
{
    for (int i = 0; i < shapeCount; ++i)
        m_shapeMenu.append(QVariant::fromValue<QObject *>(new Control(this)));
}

QString MenuForm::elementClass(const QString &property) const
{
    if (property.compare(QLatin1String("FrameMenu"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("Frame");
    for (const char *child : { "MonthView", "ShapeMenu", "LabelVersie" }) {
        if (property.compare(QLatin1String(child), Qt::CaseInsensitive) == 0)
            return QStringLiteral("Control");
    }
    return QString();
}

} // namespace qor
