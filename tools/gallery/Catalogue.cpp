#include "Catalogue.h"

#include "EBApp.h"
#include "EBKit.h"
#include "GlyphName.h"
#include "Platform.h"
#include "SceneTable.h"

Catalogue::Catalogue(QObject *parent) : QObject(parent)
{
    connect(&Platform::current().appearance(), &Appearance::changed, this, &Catalogue::appearanceChanged);
}

QStringList Catalogue::glyphs() const
{
    QStringList names;
    for (const GlyphName glyph : GlyphNames::allCases)
        names.append(GlyphNames::rawValue(glyph));
    return names;
}

QVariantList Catalogue::tokens() const
{
    constexpr std::pair<const char *, const EBKitColor &(*)()> all[] = {
#define EB_TOKEN(token, ...) {#token, &EBKit::token},
        EB_COLOR_TOKENS(EB_TOKEN, EB_TOKEN)
#undef EB_TOKEN
    };
    QVariantList tokens;
    for (const auto &[name, color] : all) {
        tokens.append(QVariantMap{{QStringLiteral("name"), QString::fromLatin1(name)},
                                  {QStringLiteral("color"), color().current()}});
    }
    return tokens;
}

QVariantList Catalogue::apps() const
{
    QVariantList apps;
    for (const EBApp app : EBApps::allCases) {
        apps.append(QVariantMap{{QStringLiteral("value"), EBApps::rawValue(app)},
                                {QStringLiteral("title"), EBApps::displayName(app)}});
    }
    return apps;
}

QList<Zone> Catalogue::calmZones() const
{
    return {{130, 120, 60, 50}, {400, 280, 0, 70}};
}

QVariantList Catalogue::scenes() const
{
    QVariantList entries;
    for (const SceneEntry &scene : SceneTable::all())
        entries.append(QVariant::fromValue(scene));
    return entries;
}
