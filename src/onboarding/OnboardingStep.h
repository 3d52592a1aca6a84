#pragma once

#include <QString>

#include <array>
#include <optional>

/// The steps of the onboarding, in the order of the flow. The raw value is the position.
enum class OnboardingStep : int { welcome, tryIt, access, customize, done };

namespace OnboardingSteps {

inline constexpr std::array allCases = {OnboardingStep::welcome, OnboardingStep::tryIt, OnboardingStep::access,
                                        OnboardingStep::customize, OnboardingStep::done};

/// The step at that place; none for any other integer.
std::optional<OnboardingStep> fromRawValue(int rawValue);

/// The step that a text names by its raw value, a decimal integer with an optional sign; none for anything else.
std::optional<OnboardingStep> fromText(QStringView text);

/// "welcome", "tryIt" …, by which a view names the step.
QString caseName(OnboardingStep step);
std::optional<OnboardingStep> fromCaseName(QStringView caseName);

/// What the step is called, "Welcome".
QString word(OnboardingStep step);

/// "01 / 05": the step's place and how many there are.
QString counter(OnboardingStep step);

/// The line over the screen's title, "Step 03 · Permission"; on the first and the last screen "Welcome · 01 / 05".
QString kicker(OnboardingStep step);

}
