#include "host/menuform.h"

#include "host/frame.h"
#include "host/label.h"
#include "host/monthview.h"
#include "host/shape.h"

namespace qor {

namespace {

const int shapeCount = 8;

} // namespace

MenuForm::MenuForm(QObject *parent)
    : Form(parent)
    , m_frameMenu(new Frame(this))
    , m_monthView(new MonthView(this))
    , m_labelVersie(new Label(this))
{
    for (int i = 0; i < shapeCount; ++i)
        m_shapeMenu.append(QVariant::fromValue<QObject *>(new Shape(this)));
}

QString MenuForm::elementClass(const QString &property) const
{
    static const char *const children[][2] = { { "FrameMenu", "Frame" },
        { "MonthView", "MonthView" }, { "ShapeMenu", "Shape" }, { "LabelVersie", "Label" } };
    for (const auto &child : children) {
        if (property.compare(QLatin1String(child[0]), Qt::CaseInsensitive) == 0)
            return QLatin1String(child[1]);
    }
    return QString();
}

} // namespace qor
