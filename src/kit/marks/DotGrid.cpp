#include "DotGrid.h"

#include "Mulberry32.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

int count(double length, double cell)
{
    const double cells = std::floor(length / cell);
    if (!(std::abs(cells) <= std::numeric_limits<int>::max()))
        qFatal("A dot field cannot be %g cells long", cells);
    return std::max(int(cells), 0);
}

double distance(const Zone &zone, double px, double py)
{
    const double dx = std::max(std::abs(px - zone.x) - zone.a, 0.0);
    const double dy = py - zone.y;
    return std::sqrt(dx * dx + dy * dy) - zone.r;
}

}

DotGrid::DotGrid(const QSizeF &size, double cell, double density)
    : m_columns(count(size.width(), cell)),
      m_rows(count(size.height(), cell)),
      m_cell(cell),
      m_left((size.width() - cell * m_columns) / 2),
      m_top((size.height() - cell * m_rows) / 2),
      m_free(std::size_t(stride()) * (std::size_t(m_rows) + 1)),
      m_chances(std::size_t(m_columns) * std::size_t(m_rows), Mulberry32::multipleWithin(density))
{
    for (int row = 0; row < m_rows; ++row)
        std::fill_n(free(row), m_columns, 1);
}

// The columns whose centres lie closer than `reach` to the zone's segment, `dy` away from it, and as many more at
// either end as `widening` says.
DotGrid::Columns DotGrid::within(const Zone &zone, double reach, double dy, int widening) const
{
    if (!(std::abs(dy) < reach))
        return {0, 0};
    const double half = zone.a + std::sqrt(reach * reach - dy * dy);
    const auto column = [this](double at) { return at > 0 ? int(std::min(at, double(m_columns))) : 0; };
    const double first = std::ceil((zone.x - half - m_left) / m_cell - 0.5);
    const double last = std::floor((zone.x + half - m_left) / m_cell - 0.5);
    return {column(first - widening), column(last + 1 + widening)};
}

// Distances take a root each, so they are only looked at where they decide: around the ends of each zone's columns in a
// row. Farther in a cell is closed, farther out the zone does not touch it.
void DotGrid::calm(const QList<Zone> &zones, double ramp, double margin, double density)
{
    struct Touch {
        const Zone *zone;
        Columns columns;
    };
    std::vector<Touch> touching;
    for (int row = 0; row < m_rows; ++row) {
        const double py = y(row);
        touching.clear();
        for (const Zone &zone : zones) {
            const double slack = 1e-9 * (std::abs(zone.r) + std::abs(margin) + std::abs(ramp));
            const double reach = ramp >= 0 ? zone.r + margin + ramp + slack : std::numeric_limits<double>::infinity();
            const Columns columns = within(zone, reach, py - zone.y, 1);
            if (columns.begin < columns.end)
                touching.push_back({&zone, columns});
        }
        std::uint8_t *open = free(row);
        std::uint32_t *chance = m_chances.data() + row * std::ptrdiff_t(m_columns);
        const auto weigh = [&](int begin, int end) {
            for (int column = begin; column < end; ++column) {
                double nearest = std::numeric_limits<double>::infinity();
                for (const Touch &touch : touching)
                    nearest = std::min(nearest, distance(*touch.zone, x(column), py));
                if (nearest < margin)
                    open[column] = 0;
                else
                    chance[column] = Mulberry32::multipleWithin(density * std::min((nearest - margin) / ramp, 1.0));
            }
        };
        for (const auto &[zone, columns] : touching) {
            Columns closed = within(*zone, zone->r + margin, py - zone->y, -1);
            if (closed.begin >= closed.end)
                closed = {columns.begin, columns.begin};
            weigh(columns.begin, closed.begin);
            std::fill(open + closed.begin, open + closed.end, 0);
            weigh(closed.end, columns.end);
        }
    }
}
