#include "EBSettingsPage.h"

#include <algorithm>

namespace {

/// Spaces and tabs; a line end is part of what was typed.
bool isWhitespace(QChar character)
{
    return character == u'\t' || character.category() == QChar::Separator_Space;
}

QString queryOf(const QString &search)
{
    const auto first = std::find_if_not(search.begin(), search.end(), isWhitespace);
    const auto last = std::find_if_not(search.rbegin(), std::reverse_iterator(first), isWhitespace).base();
    return QString(first, last - first).toLower();
}

bool matches(const EBSettingsPage &page, const QString &query)
{
    const auto contains = [&](const QString &text) { return text.toLower().contains(query); };
    return contains(page.title) || std::any_of(page.keywords.begin(), page.keywords.end(), contains);
}

}

QList<EBSettingsPage> pagesMatching(const QList<EBSettingsPage> &pages, const QString &search)
{
    const QString query = queryOf(search);
    if (query.isEmpty())
        return pages;
    QList<EBSettingsPage> shown;
    std::copy_if(pages.begin(), pages.end(), std::back_inserter(shown),
                 [&](const EBSettingsPage &page) { return matches(page, query); });
    return shown;
}
