#pragma once

#include <QList>
#include <QTemporaryDir>

class QScreen;

/// Screens that nobody sees, one for each scale, to draw pictures on: large enough that no window is cut to fit.
/// To be made before the application object, and kept until that is made.
class PictureScreens {
public:
    /// Scales are device pixels a point, above 0.
    explicit PictureScreens(const QList<qreal> &scales);

    /// The screen of that scale; null when there is none.
    static QScreen *ofScale(qreal scale);

private:
    QTemporaryDir m_folder;
};
