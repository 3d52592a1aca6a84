#pragma once

#include <QImage>

/// Pictures that later ones are held against.
namespace GoldenPicture {

/// The largest difference of a channel that counts as none. A stored picture is that coarse.
inline constexpr int sameness = 4;

/// The largest difference of a channel that one pixel may have.
inline constexpr int tolerance = 24;

/// The largest share of pixels that may differ at all.
inline constexpr double share = 0.001;

struct Comparison {
    bool isMatch = false;
    /// In words, for whoever reads the log.
    QString verdict;
    /// The expected picture, pale, with every pixel that differs in full ink.
    QImage difference;
};
Comparison compare(const QImage &expected, const QImage &actual);

}
