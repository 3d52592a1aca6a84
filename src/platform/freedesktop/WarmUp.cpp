#include "WarmUp.h"

#include "DconfDatabase.h"

#include <fontconfig/fontconfig.h>

std::future<void> WarmUp::begin(std::function<void()> views)
{
    return std::async(std::launch::async, [views = std::move(views)] {
        FcInit();
        views();
        DconfDatabase::make();
    });
}
