#pragma once

/// The palette, declared once: every token with its light and its dark value, sRGB components in 0…1.
/// ADAPTIVE(name, light r, g, b, a, dark r, g, b, a) follows the appearance, FIXED(name, r, g, b, a) does not.
#define EB_COLOR_TOKENS(ADAPTIVE, FIXED)                                                                               \
    ADAPTIVE(paper, 0.9686, 0.9647, 0.9490, 1, 0.0510, 0.0510, 0.0549, 1)                                              \
    ADAPTIVE(surface, 1, 1, 1, 1, 0.1059, 0.1059, 0.1137, 1)                                                           \
    ADAPTIVE(sunk, 0.9373, 0.9294, 0.9098, 1, 0.0824, 0.0824, 0.0902, 1)                                               \
    ADAPTIVE(ink, 0.0667, 0.0706, 0.0784, 1, 0.9569, 0.9569, 0.9490, 1)                                                \
    ADAPTIVE(inkMuted, 0.4039, 0.4078, 0.4314, 1, 0.6392, 0.6392, 0.6588, 1)                                           \
    ADAPTIVE(onInk, 1, 1, 1, 1, 0.0667, 0.0706, 0.0784, 1)                                                             \
    ADAPTIVE(line, 0.0667, 0.0706, 0.0784, 0.08, 1, 1, 1, 0.085)                                                       \
    ADAPTIVE(lineStrong, 0.0667, 0.0706, 0.0784, 0.22, 1, 1, 1, 0.24)                                                  \
    ADAPTIVE(chip, 0.0667, 0.0706, 0.0784, 0.055, 1, 1, 1, 0.08)                                                       \
    ADAPTIVE(track, 0.4706, 0.4706, 0.5020, 0.20, 0.4706, 0.4706, 0.5020, 0.32)                                        \
    FIXED(knob, 1, 1, 1, 1)                                                                                            \
    ADAPTIVE(segOn, 1, 1, 1, 1, 1, 1, 1, 0.18)                                                                         \
    ADAPTIVE(coral, 0.9686, 0.3412, 0.2039, 1, 1.0, 0.4157, 0.2824, 1)                                                 \
    ADAPTIVE(indigo, 0.3529, 0.3608, 0.9490, 1, 0.4824, 0.4902, 1.0, 1)                                                \
    ADAPTIVE(teal, 0.0549, 0.6275, 0.5725, 1, 0.1333, 0.7647, 0.6980, 1)                                               \
    ADAPTIVE(onCoral, 1, 1, 1, 1, 0.0667, 0.0706, 0.0784, 1)                                                           \
    ADAPTIVE(onIndigo, 1, 1, 1, 1, 0.0667, 0.0706, 0.0784, 1)                                                          \
    ADAPTIVE(onTeal, 1, 1, 1, 1, 0.0667, 0.0706, 0.0784, 1)                                                            \
    FIXED(loudCoral, 1.0, 0.3529, 0.2118, 1)                                                                           \
    FIXED(loudIndigo, 0.3529, 0.3608, 0.9490, 1)                                                                       \
    FIXED(loudTeal, 0.0549, 0.6314, 0.5765, 1)                                                                         \
    FIXED(onLoudCoral, 0.0667, 0.0706, 0.0784, 1)                                                                      \
    FIXED(onLoudIndigo, 1, 1, 1, 1)                                                                                    \
    FIXED(onLoudTeal, 0.0667, 0.0706, 0.0784, 1)                                                                       \
    FIXED(loudCoralDot, 0.8, 0.2824, 0.1686, 1)                                                                        \
    FIXED(loudIndigoDot, 0.2824, 0.2902, 0.7608, 1)                                                                    \
    FIXED(loudTealDot, 0.0431, 0.5176, 0.4745, 1)                                                                      \
    ADAPTIVE(ok, 0.1216, 0.5412, 0.2980, 1, 0.2980, 0.8157, 0.4902, 1)
