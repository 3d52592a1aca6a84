#pragma once

#include "AnimationClock.h"

#include <QImage>

class FakePlatform;
class GalleryLook;
class QQmlEngine;
struct SceneEntry;

/// Draws scenes without a display, on the `PictureScreen` and at its scale. Once it is made nothing in this process
/// moves or blinks any more.
class ScenePicture {
public:
    ScenePicture(QQmlEngine &engine, FakePlatform &platform, const GalleryLook &look);

    /// The scene in its pose.
    QImage draw(const SceneEntry &entry);

private:
    QQmlEngine &m_engine;
    const GalleryLook &m_look;
    AnimationClock m_animations;
};
