#include "WebPage.h"

#include "Platform.h"

void WebPage::open(const QUrl &url)
{
    Platform::current().workspace().open(url);
}
