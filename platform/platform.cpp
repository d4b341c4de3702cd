#include "platform/platform.h"

#include "platform/coreplatform.h"

namespace qor {

namespace {

// What the calling thread sees of the machine: a whole platform, and the roles
// installed on their own in front of it.
struct ThreadMachine
{
    std::shared_ptr<Platform> platform;
    std::shared_ptr<Clock> clock;
    std::shared_ptr<DialogPresenter> dialogs;
    std::shared_ptr<Sound> sound;
    std::shared_ptr<FileSystem> files;
    std::shared_ptr<Processes> processes;
    std::shared_ptr<Desktop> desktop;
    std::shared_ptr<Keyboard> keyboard;
};

ThreadMachine &threadMachine()
{
    thread_local ThreadMachine machine;
    return machine;
}

// The role installed on its own, else the platform playing it.
template <class Role> Role &roleOrPlatform(const std::shared_ptr<Role> &own)
{
    if (own)
        return *own;
    return Platform::current();
}

template <class Role>
std::shared_ptr<Role> replace(std::shared_ptr<Role> &slot, std::shared_ptr<Role> role)
{
    std::shared_ptr<Role> previous = std::move(slot);
    slot = std::move(role);
    return previous;
}

} // namespace

Clock::~Clock() = default;
DialogPresenter::~DialogPresenter() = default;
Sound::~Sound() = default;
FileSystem::~FileSystem() = default;
Processes::~Processes() = default;
Desktop::~Desktop() = default;
Keyboard::~Keyboard() = default;
Platform::~Platform() = default;

Platform &Platform::current()
{
    auto &installed = threadMachine().platform;
    if (!installed)
        installed = std::make_shared<CorePlatform>();
    return *installed;
}

std::shared_ptr<Platform> Platform::install(std::shared_ptr<Platform> platform)
{
    return replace(threadMachine().platform, std::move(platform));
}

Clock &Clock::current()
{
    return roleOrPlatform(threadMachine().clock);
}
std::shared_ptr<Clock> Clock::install(std::shared_ptr<Clock> clock)
{
    return replace(threadMachine().clock, std::move(clock));
}

DialogPresenter &DialogPresenter::current()
{
    return roleOrPlatform(threadMachine().dialogs);
}
std::shared_ptr<DialogPresenter> DialogPresenter::install(
    std::shared_ptr<DialogPresenter> presenter)
{
    return replace(threadMachine().dialogs, std::move(presenter));
}

Sound &Sound::current()
{
    return roleOrPlatform(threadMachine().sound);
}
std::shared_ptr<Sound> Sound::install(std::shared_ptr<Sound> sound)
{
    return replace(threadMachine().sound, std::move(sound));
}

FileSystem &FileSystem::current()
{
    return roleOrPlatform(threadMachine().files);
}
std::shared_ptr<FileSystem> FileSystem::install(std::shared_ptr<FileSystem> files)
{
    return replace(threadMachine().files, std::move(files));
}

Processes &Processes::current()
{
    return roleOrPlatform(threadMachine().processes);
}
std::shared_ptr<Processes> Processes::install(std::shared_ptr<Processes> processes)
{
    return replace(threadMachine().processes, std::move(processes));
}

Desktop &Desktop::current()
{
    return roleOrPlatform(threadMachine().desktop);
}
std::shared_ptr<Desktop> Desktop::install(std::shared_ptr<Desktop> desktop)
{
    return replace(threadMachine().desktop, std::move(desktop));
}

Keyboard &Keyboard::current()
{
    return roleOrPlatform(threadMachine().keyboard);
}
std::shared_ptr<Keyboard> Keyboard::install(std::shared_ptr<Keyboard> keyboard)
{
    return replace(threadMachine().keyboard, std::move(keyboard));
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
