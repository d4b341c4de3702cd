#include "platform/platform.h"

#include "platform/coreplatform.h"

namespace qor {

namespace {

std::shared_ptr<Platform> &threadPlatform()
{
    thread_local std::shared_ptr<Platform> installed;
    return installed;
}

} // namespace

Platform::~Platform() = default;

CalculatorSession::~CalculatorSession() = default;

QStringList CalculatorHelpCard::lines() const
{
    QStringList all { callLine, heading };
    for (const auto &key : keys)
        all.append(key.second);
    all.append(movingLine);
    all.append(vatLine);
    return all;
}

Platform &Platform::current()
{
    auto &installed = threadPlatform();
    if (!installed)
        installed = std::make_shared<CorePlatform>();
    return *installed;
}

std::shared_ptr<Platform> Platform::install(std::shared_ptr<Platform> platform)
{
    auto &installed = threadPlatform();
    std::shared_ptr<Platform> previous = std::move(installed);
    installed = std::move(platform);
    return previous;
}

QRect ScreenInfo::workArea() const
{
    QRect area(origin, QSize(width, height));
    if (!taskbar)
        return area;
    const QRect bar = *taskbar & area;
    if (bar.isEmpty())
        return area;
    if (bar.width() >= area.width()) {
        if (bar.top() <= area.top())
            area.setTop(bar.bottom() + 1);
        else
            area.setBottom(bar.top() - 1);
    } else if (bar.height() >= area.height()) {
        if (bar.left() <= area.left())
            area.setLeft(bar.right() + 1);
        else
            area.setRight(bar.left() - 1);
    }
    return area;
}

} // namespace qor
