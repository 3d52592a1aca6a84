#pragma once

#include "Appearance.h"

/// An appearance that is whatever it was last set to: light, with motion, until then.
class FakeAppearance : public Appearance {
public:
    std::optional<AppearanceName> bestMatch() const override { return m_name; }
    bool shouldReduceMotion() const override { return m_reduceMotion; }

    /// None stands for an appearance that matches none of the four names.
    void setName(std::optional<AppearanceName> name)
    {
        if (m_name == name)
            return;
        m_name = name;
        emit changed();
    }

    void setReduceMotion(bool reduceMotion)
    {
        if (m_reduceMotion == reduceMotion)
            return;
        m_reduceMotion = reduceMotion;
        emit changed();
    }

private:
    std::optional<AppearanceName> m_name = AppearanceName::Aqua;
    bool m_reduceMotion = false;
};
