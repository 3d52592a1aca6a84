#include "ScenePicture.h"

#include "EBEnvironment.h"
#include "EBKit.h"
#include "FakePlatform.h"
#include "GalleryLook.h"
#include "Scene.h"
#include "SceneTable.h"
#include "ViewEngine.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QStyleHints>

#include <cmath>

namespace {

QSize extentOf(const QQuickItem &item)
{
    return {int(std::ceil(item.implicitWidth())), int(std::ceil(item.implicitHeight()))};
}

}

ScenePicture::ScenePicture(QQmlEngine &engine, FakePlatform &platform, const GalleryLook &look)
    : m_engine(engine), m_look(look)
{
    platform.look.setReduceMotion(true);
    QStyleHints *hints = QGuiApplication::styleHints();
    hints->setCursorFlashTime(0);
    // An offscreen screen has no pointer unless it is told of one.
    hints->setUseHoverEffects(true);
}

QImage ScenePicture::draw(const SceneEntry &entry)
{
    QQuickWindow window;
    window.setColor(EBKit::paper().current());
    const std::unique_ptr<Scene> scene(ViewEngine::make<Scene>(m_engine, entry.source.toString()));
    EBEnvironment::of(scene.get())->setEbApp(m_look.app());
    scene->setParentItem(window.contentItem());
    window.resize(extentOf(*scene));
    window.show();
    window.requestActivate();
    QCoreApplication::processEvents();

    // The first drawing lays the scene out; only then is its size known, and where its items are.
    window.grabWindow();
    window.resize(extentOf(*scene));
    scene->strikePose();
    QCoreApplication::processEvents();
    m_animations.finishAnimations();
    QCoreApplication::processEvents();
    // The pose may have changed the size.
    window.resize(extentOf(*scene));
    QCoreApplication::processEvents();
    // A pixel that the window covers only in part belongs to what lies behind it.
    const QSizeF pixels = QSizeF(window.size()) * window.devicePixelRatio();
    const QImage picture = window.grabWindow();
    return picture.copy(QRect(0, 0, int(pixels.width()), int(pixels.height())) & picture.rect());
}
