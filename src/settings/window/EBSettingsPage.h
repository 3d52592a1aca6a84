#pragma once

#include "GlyphName.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

/// One page of the settings window. The window knows of a page what stands here and nothing else.
struct EBSettingsPage {
    /// Stable identifier: the selection, and what the launch environment names.
    QString id;
    /// Sidebar label and page heading.
    QString title;
    GlyphName glyph;
    /// Extra search terms, lower case.
    QStringList keywords;
    /// The view of the page's content, built each time the page is shown.
    QUrl content;
};

/// The pages whose title or keywords contain the search text, in their order. Space around the text does not
/// count, nor does case; an empty text finds every page.
QList<EBSettingsPage> pagesMatching(const QList<EBSettingsPage> &pages, const QString &search);
