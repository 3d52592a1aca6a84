#include "WarmUp.h"

#include "DconfDatabase.h"

#include <QFontDatabase>

#include <fontconfig/fontconfig.h>

std::future<void> WarmUp::begin(std::function<void()> views)
{
    return std::async(std::launch::async, [views = std::move(views)] {
        FcInit();
        views();
    });
}

std::future<void> WarmUp::listFonts(std::shared_future<void> beginning)
{
    return std::async(std::launch::async, [beginning = std::move(beginning)] {
        beginning.wait();
        // The first question makes the list.
        QFontDatabase::families();
    });
}

std::future<void> WarmUp::loadStore()
{
    return std::async(std::launch::async, [] { DconfDatabase::make(); });
}
