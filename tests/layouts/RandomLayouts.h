#pragma once

#include "SavedLayout.h"

#include <QRandomGenerator>

#include <array>
#include <bit>
#include <cmath>

/// Lists of layouts as odd as they come; the same ones for the same seed.
class RandomLayouts {
public:
    explicit RandomLayouts(quint32 seed) : m_random(seed) { }

    QList<SavedLayout> list()
    {
        QList<SavedLayout> layouts;
        for (quint32 i = below(5); i > 0; --i)
            layouts.append(layout());
        return layouts;
    }

private:
    quint32 below(quint32 end) { return m_random.bounded(end); }

    SavedLayout layout()
    {
        SavedLayout layout{id(), text(), {}, number()};
        for (quint32 i = below(4); i > 0; --i)
            layout.windows.append({text(), text(), text(), {number(), number(), number(), number()}, {}});
        for (SavedLayout::Window &window : layout.windows) {
            if (below(2) == 0)
                window.display = text();
        }
        return layout;
    }

    QUuid id()
    {
        QByteArray bytes(16, '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(below(256));
        return QUuid::fromRfc4122(bytes);
    }

    QString text()
    {
        QString text;
        for (quint32 i = below(12); i > 0; --i) {
            const std::array<quint32, 6> ranges = {0x20, 0x80, 0x800, 0xd800, 0x10000, 0x110000};
            char32_t character = below(ranges.at(below(ranges.size())));
            if (character >= 0xd800 && character <= 0xdfff)
                character = U'/';
            text += QString::fromUcs4(&character, 1);
        }
        return text;
    }

    double number()
    {
        switch (below(6)) {
        case 0:
            return std::ldexp(1.0, static_cast<int>(below(110)) - 20) * (below(2) == 0 ? 1 : -1);
        case 1:
            return static_cast<double>(below(4096)) / 4096;
        case 2:
            return static_cast<double>(below(20000)) - 10000;
        case 3:
            return m_random.generateDouble();
        case 4:
            return -0.0;
        default: {
            const auto any = std::bit_cast<double>(m_random.generate64());
            return std::isfinite(any) ? any : 0.0;
        }
        }
    }

    QRandomGenerator m_random;
};
