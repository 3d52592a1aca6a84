#pragma once

#include <QTemporaryDir>

/// An offscreen screen to draw pictures on, large enough that no window is cut to fit. To be made before the
/// application object, and kept until that is made.
class PictureScreen {
public:
    /// `scale` is in device pixels a point, above 0.
    explicit PictureScreen(qreal scale);

private:
    QTemporaryDir m_folder;
};
