#include "GalleryOptions.h"

#include "Language.h"
#include "SceneTable.h"

#include <QCommandLineParser>

namespace {

constexpr qreal smallestScale = 0.5;
constexpr qreal largestScale = 4;

const QString list = QStringLiteral("list");
const QString render = QStringLiteral("render");
const QString show = QStringLiteral("show");
const QString out = QStringLiteral("out");
const QString dark = QStringLiteral("dark");
const QString highContrast = QStringLiteral("high-contrast");
const QString app = QStringLiteral("app");
const QString scale = QStringLiteral("scale");
const QString font = QStringLiteral("font");
const QString language = QStringLiteral("language");
const QString help = QStringLiteral("help");

void declareOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(QStringLiteral(
        "Shows every glyph, token, control and screen. Unless told otherwise it opens a window to browse them."));
    parser.addOptions({
        {list, QStringLiteral("Print the names of the scenes, one a line.")},
        {render, QStringLiteral("Draw one scene without a display."), QStringLiteral("name")},
        {show, QStringLiteral("Open one scene alone, on the real desktop and its store."), QStringLiteral("name")},
        {out, QStringLiteral("The PNG file to draw into."), QStringLiteral("file")},
        {dark, QStringLiteral("The dark appearance.")},
        {highContrast, QStringLiteral("The appearance of high contrast.")},
        {app, QStringLiteral("quiller, corvane (unless named) or parcelo."), QStringLiteral("name")},
        {scale, QStringLiteral("Device pixels a point, from 0.5 to 4; 1 unless named."), QStringLiteral("number")},
        {font, QStringLiteral("The font that stands in for that of the desktop."), QStringLiteral("family")},
        {language, QStringLiteral("The language of the texts, by its code; English unless named."),
         QStringLiteral("code")},
        {help, QStringLiteral("Print this.")},
    });
}

GalleryOptions::Action actionOf(const QCommandLineParser &parser)
{
    if (parser.isSet(help))
        return GalleryOptions::Action::help;
    if (parser.isSet(list))
        return GalleryOptions::Action::list;
    if (parser.isSet(show))
        return GalleryOptions::Action::show;
    return parser.isSet(render) ? GalleryOptions::Action::render : GalleryOptions::Action::browse;
}

QString sceneOf(const QCommandLineParser &parser)
{
    return parser.value(parser.isSet(show) ? show : render);
}

/// What is wrong with the options as a whole; empty when nothing is.
QString faultOf(const QCommandLineParser &parser)
{
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("\"%1\" is no option.").arg(parser.positionalArguments().constFirst());
    if (parser.isSet(render) && parser.isSet(show))
        return QStringLiteral("--render and --show exclude each other.");
    if ((parser.isSet(render) || parser.isSet(show)) && !SceneTable::find(sceneOf(parser)))
        return QStringLiteral("There is no scene \"%1\"; --list names them all.").arg(sceneOf(parser));
    if (parser.isSet(show) && (parser.isSet(dark) || parser.isSet(highContrast)))
        return QStringLiteral("--show takes its appearance from the desktop.");
    if (parser.isSet(render) && parser.value(out).isEmpty())
        return QStringLiteral("--render needs the file to draw into: --out FILE.");
    if (parser.isSet(out) && !parser.isSet(render))
        return QStringLiteral("--out needs the scene to draw: --render NAME.");
    return {};
}

QString readApp(const QCommandLineParser &parser, GalleryOptions &options)
{
    if (!parser.isSet(app))
        return {};
    const auto product = EBApps::fromRawValue(parser.value(app));
    if (!product)
        return QStringLiteral("\"%1\" is no product; there are quiller, corvane and parcelo.").arg(parser.value(app));
    options.app = *product;
    return {};
}

QString readScale(const QCommandLineParser &parser, GalleryOptions &options)
{
    if (!parser.isSet(scale))
        return {};
    bool isNumber = false;
    options.scale = parser.value(scale).toDouble(&isNumber);
    if (!isNumber || !(options.scale >= smallestScale && options.scale <= largestScale))
        return QStringLiteral("\"%1\" is no scale; it is a number from 0.5 to 4.").arg(parser.value(scale));
    return {};
}

QString readLanguage(const QCommandLineParser &parser, const GalleryOptions &options)
{
    if (parser.isSet(language) && Language::chosen({options.language}) != options.language)
        return QStringLiteral("There are no texts in \"%1\".").arg(options.language);
    return {};
}

}

std::variant<GalleryOptions, QString> GalleryOptions::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    declareOptions(parser);
    if (!parser.parse(arguments))
        return parser.errorText();

    GalleryOptions options{.action = actionOf(parser),
                           .scene = sceneOf(parser),
                           .file = parser.value(out),
                           .dark = parser.isSet(::dark),
                           .highContrast = parser.isSet(::highContrast),
                           .font = parser.value(::font),
                           .language = parser.value(::language)};
    for (const QString &fault :
         {faultOf(parser), readApp(parser, options), readScale(parser, options), readLanguage(parser, options)}) {
        if (!fault.isEmpty())
            return fault;
    }
    return options;
}

QString GalleryOptions::helpText()
{
    QCommandLineParser parser;
    declareOptions(parser);
    return parser.helpText();
}
