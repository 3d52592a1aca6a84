#pragma once

#include <QImage>

class FakePlatform;
class GalleryLook;
class QQmlEngine;
struct SceneEntry;

/// Draws scenes without a display, on one of the `PictureScreens`. From the first picture on nothing in this process
/// moves or blinks any more.
class ScenePicture {
public:
    ScenePicture(QQmlEngine &engine, FakePlatform &platform, const GalleryLook &look);

    /// The scene in its pose, at a scale there is a screen for.
    QImage draw(const SceneEntry &entry, qreal scale) const;

private:
    QQmlEngine &m_engine;
    const GalleryLook &m_look;
};
