#include "NativePlatform.h"

#include "AutostartLoginItem.h"
#include "FreedesktopPlatform.h"
#include "SessionBus.h"
#include "StandardStreams.h"
#include "StartEnvironment.h"
#include "WarmUp.h"

#include <malloc.h>

void NativePlatform::secureStreams()
{
    StandardStreams::secure();
}

std::unique_ptr<Platform> NativePlatform::make()
{
    return makeFreedesktopPlatform();
}

std::future<void> NativePlatform::warmUp(std::function<void()> views)
{
    SessionBus::instance().begin();
    return WarmUp::begin(std::move(views));
}

std::future<void> NativePlatform::prepareServices(std::shared_future<void> warmUp)
{
    SessionBus::instance().connectAhead();
    return WarmUp::listFonts(std::move(warmUp));
}

std::future<void> NativePlatform::loadStore()
{
    return WarmUp::loadStore();
}

std::shared_ptr<void> NativePlatform::prepareEnvironment()
{
    return std::make_shared<StartEnvironment>();
}

// Setting the one limit keeps the C library from moving both, so the other is set where it would come to be.
void NativePlatform::keepLargeBlocksApart()
{
    constexpr int mebibyte = 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, mebibyte);
    mallopt(M_TRIM_THRESHOLD, 4 * mebibyte);
}

// The C library keeps ever larger blocks once one of them was freed, unless it is told a size.
void NativePlatform::giveMemoryBack()
{
    malloc_trim(0);
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
}

std::unique_ptr<LoginItem> NativePlatform::makeLoginItem(const LoginItem::Program &program, bool needsApproval)
{
    return std::make_unique<AutostartLoginItem>(program, needsApproval);
}
