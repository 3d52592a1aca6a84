#include "OnboardingStep.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

/// How a step's screen is laid out: all in the product's loud colour, beside a panel in that colour, or without it.
enum class Screen { loud, step, stage };

struct Row {
    OnboardingStep step;
    const char *word;
    Screen screen;
};

constexpr std::array rows = {
    Row{OnboardingStep::welcome, QT_TRANSLATE_NOOP("OnboardingStep", "Welcome"), Screen::loud},
    Row{OnboardingStep::tryIt, QT_TRANSLATE_NOOP("OnboardingStep", "Try it"), Screen::stage},
    Row{OnboardingStep::access, QT_TRANSLATE_NOOP("OnboardingStep", "Permission"), Screen::step},
    Row{OnboardingStep::customize, QT_TRANSLATE_NOOP("OnboardingStep", "Make it yours"), Screen::stage},
    Row{OnboardingStep::done, QT_TRANSLATE_NOOP("OnboardingStep", "All set"), Screen::loud},
};
static_assert(rows.size() == OnboardingSteps::allCases.size());

const Row &row(OnboardingStep step)
{
    return rows[static_cast<std::size_t>(step)];
}

QString twoDigits(std::size_t number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString place(OnboardingStep step)
{
    return twoDigits(static_cast<std::size_t>(step) + 1);
}

bool isDecimal(QStringView text)
{
    if (text.startsWith(u'+') || text.startsWith(u'-'))
        text = text.sliced(1);
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar character) {
        return character >= u'0' && character <= u'9';
    });
}

}

std::optional<OnboardingStep> OnboardingSteps::fromText(QStringView text)
{
    bool fits = false;
    const int rawValue = isDecimal(text) ? text.toInt(&fits) : 0;
    return fits ? fromRawValue(rawValue) : std::nullopt;
}

QString OnboardingSteps::word(OnboardingStep step)
{
    return QCoreApplication::translate("OnboardingStep", row(step).word);
}

QString OnboardingSteps::counter(OnboardingStep step)
{
    return place(step) + QStringLiteral(" / ") + twoDigits(rows.size());
}

QString OnboardingSteps::kicker(OnboardingStep step)
{
    if (row(step).screen == Screen::loud)
        return word(step) + QStringLiteral(" · ") + counter(step);
    return QCoreApplication::translate("OnboardingStep", "Step %1 · %2").arg(place(step), word(step));
}

bool OnboardingSteps::hasLoudCorner(OnboardingStep step)
{
    return row(step).screen != Screen::stage;
}
