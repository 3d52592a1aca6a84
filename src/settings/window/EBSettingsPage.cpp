#include "EBSettingsPage.h"

#include "Whitespace.h"

#include <algorithm>

namespace {

bool matches(const EBSettingsPage &page, const QString &query)
{
    const auto contains = [&](const QString &text) { return text.toLower().contains(query); };
    return contains(page.title) || std::any_of(page.keywords.begin(), page.keywords.end(), contains);
}

}

QList<EBSettingsPage> pagesMatching(const QList<EBSettingsPage> &pages, const QString &search)
{
    const QString query = trimmedWhitespace(search).toString().toLower();
    if (query.isEmpty())
        return pages;
    QList<EBSettingsPage> shown;
    std::copy_if(pages.begin(), pages.end(), std::back_inserter(shown),
                 [&](const EBSettingsPage &page) { return matches(page, query); });
    return shown;
}
