#include "Accessibility.h"
#include "EBApp.h"
#include "EBKitFonts.h"
#include "EBWindow.h"
#include "FakePlatform.h"
#include "GalleryLook.h"
#include "GalleryOptions.h"
#include "GalleryPlatform.h"
#include "Language.h"
#include "NativePlatform.h"
#include "PictureFile.h"
#include "PictureScreen.h"
#include "Scene.h"
#include "ScenePicture.h"
#include "SceneTable.h"
#include "ViewEngine.h"

#include <QApplication>
#include <QFontDatabase>
#include <QQuickView>

#include <cstdio>

namespace {

constexpr int failure = 1;
constexpr int misuse = 2;

int complain(const QString &fault, int exitCode)
{
    std::fprintf(stderr, "corvane-gallery: %s\n", qPrintable(fault));
    return exitCode;
}

int list()
{
    for (const SceneEntry &scene : SceneTable::all())
        std::puts(qPrintable(scene.name));
    return 0;
}

int help(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    std::puts(qPrintable(GalleryOptions::helpText()));
    return 0;
}

/// The application object with everything the scenes need.
struct Gallery {
    Gallery(int &argc, char *argv[], const GalleryOptions &options)
        : application(argc, argv),
          platform(installGalleryPlatform(QGuiApplication::applicationDirPath() + QStringLiteral("/../Resources"))),
          look(platform.look)
    {
        if (!options.font.isEmpty())
            QGuiApplication::setFont(QFont(options.font));
        Language::use(options.language);
        look.setDark(options.dark);
        look.setHighContrast(options.highContrast);
        look.setApp(options.app);
    }

    QApplication application;
    FakePlatform &platform;
    GalleryLook look;
    ViewEngine engine;
};

bool isMissing(const QString &font)
{
    return !font.isEmpty() && !QFontDatabase::hasFamily(font);
}

int render(int argc, char *argv[], const GalleryOptions &options)
{
    const PictureScreen screen(options.scale);
    Gallery gallery(argc, argv, options);
    if (isMissing(options.font))
        return complain(QStringLiteral("There is no font \"%1\".").arg(options.font), misuse);
    ScenePicture picture(gallery.engine, gallery.platform, gallery.look);
    if (!PictureFile::write(picture.draw(*SceneTable::find(options.scene)), options.file))
        return complain(QStringLiteral("\"%1\" cannot be written.").arg(options.file), failure);
    return 0;
}

void chooseScale(qreal scale)
{
    if (scale != 1)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

int show(int argc, char *argv[], const GalleryOptions &options)
{
    chooseScale(options.scale);
    QApplication application(argc, argv);
    Platform::install(NativePlatform::make());
    EBKitFonts::registerFonts();
    installKitAccessibility();
    if (isMissing(options.font))
        return complain(QStringLiteral("There is no font \"%1\".").arg(options.font), misuse);
    if (!options.font.isEmpty())
        QGuiApplication::setFont(QFont(options.font));

    Language::use(options.language);
    ViewEngine engine;
    auto *scene = ViewEngine::make<Scene>(engine, SceneTable::find(options.scene)->source.toString());
    const QSizeF size(scene->implicitWidth(), scene->implicitHeight());
    EBWindow window(options.app, size.toSize(), {.miniaturizeButtonEnabled = true, .movableByWindowBackground = true});
    window.setTitle(options.scene);
    window.host(scene);
    window.center();
    window.makeKeyAndOrderFront();
    return QGuiApplication::exec();
}

int browse(int argc, char *argv[], const GalleryOptions &options)
{
    chooseScale(options.scale);
    Gallery gallery(argc, argv, options);
    if (isMissing(options.font))
        return complain(QStringLiteral("There is no font \"%1\".").arg(options.font), misuse);
    QQuickView view(&gallery.engine, nullptr);
    view.setTitle(QGuiApplication::translate("Gallery", "Corvane Gallery"));
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setInitialProperties({{QStringLiteral("look"), QVariant::fromValue(&gallery.look)}});
    view.setSource(QUrl(QStringLiteral("qrc:/Corvane/Gallery/Browser.qml")));
    view.resize(1180, 800);
    view.show();
    return QGuiApplication::exec();
}

}

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const auto parsed = GalleryOptions::parse(arguments);
    if (const auto *fault = std::get_if<QString>(&parsed))
        return complain(*fault, misuse);

    const auto &options = *std::get_if<GalleryOptions>(&parsed);
    switch (options.action) {
    case GalleryOptions::Action::list:
        return list();
    case GalleryOptions::Action::help:
        return help(argc, argv);
    case GalleryOptions::Action::render:
        return render(argc, argv, options);
    case GalleryOptions::Action::show:
        return show(argc, argv, options);
    case GalleryOptions::Action::browse:
        break;
    }
    return browse(argc, argv, options);
}
