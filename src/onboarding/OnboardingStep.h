#pragma once

#include "CaseNames.h"

/// The steps of the onboarding, in the order of the flow. The raw value is the position.
enum class OnboardingStep : int { welcome, tryIt, access, customize, done };

struct OnboardingSteps : NumberedCases<OnboardingStep> {
    /// The step that a text names by its raw value, a decimal integer with an optional sign; none for anything else.
    static std::optional<OnboardingStep> fromText(QStringView text);

    /// What the step is called, "Welcome".
    static QString word(OnboardingStep step);

    /// "01 / 05": the step's place and how many there are.
    static QString counter(OnboardingStep step);

    /// The line over the screen's title, "Step 03 · Permission"; on the first and the last screen "Welcome · 01 / 05".
    static QString kicker(OnboardingStep step);

    /// Whether the screen has the product's loud colour where the window's buttons stand.
    static bool hasLoudCorner(OnboardingStep step);
};
