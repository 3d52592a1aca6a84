#include "DotLayout.h"

#include "DotGrid.h"
#include "Mulberry32.h"

#include <algorithm>

namespace {

/// Draws in the generator's order, made many at a time, which takes far less time than one by one.
class Draws {
public:
    Draws(quint32 seed, int longestPeek) : m_generator(seed), m_numbers(std::size_t(longestPeek) + 4096)
    {
        m_next = m_numbers.size();
    }

    /// The next draws, at least `count` of them.
    const std::uint32_t *peek(int count)
    {
        if (m_numbers.size() - m_next < std::size_t(count)) {
            const auto fresh =
                std::copy(m_numbers.begin() + std::ptrdiff_t(m_next), m_numbers.end(), m_numbers.begin());
            std::generate(fresh, m_numbers.end(), [this] { return m_generator.nextMultiple(); });
            m_next = 0;
        }
        return m_numbers.data() + m_next;
    }

    /// Goes on behind those that were used.
    void skipTo(const std::uint32_t *next) { m_next = std::size_t(next - m_numbers.data()); }

private:
    Mulberry32 m_generator;
    std::vector<std::uint32_t> m_numbers;
    std::size_t m_next;
};

// A draw below 0.2 asks for an upright bar, one below 0.34 for a level one, and a bar is long with a further draw below
// 0.3. None of the three is a multiple of the generator, so these are the largest ones below.
constexpr std::uint32_t upright = Mulberry32::multipleWithin(0.2);
constexpr std::uint32_t anyBar = Mulberry32::multipleWithin(0.34);
constexpr std::uint32_t longBar = Mulberry32::multipleWithin(0.3);

/// How many further cells a bar takes that begins at `cell` and runs in steps of `step`; the cells become taken. The
/// next cell is free, so there is one behind it.
int takeBar(std::uint8_t *cell, std::ptrdiff_t step, std::uint32_t draw)
{
    const int more = draw <= longBar && cell[2 * step] ? 2 : 1;
    for (int i = 1; i <= more; ++i)
        cell[i * step] = 0;
    return more;
}

/// Draws the marks that begin in a row.
void layRow(DotGrid &grid, int row, Draws &draws, QList<QRectF> &marks)
{
    const double cell = grid.cell();
    const double top = grid.y(row) - 0.3 * cell;
    const std::uint32_t *chance = grid.chances(row);
    const std::uint32_t *draw = draws.peek(3 * grid.columns());
    std::uint8_t *free = grid.free(row);
    for (int column = 0; column < grid.columns(); ++column) {
        if (!free[column] || *draw++ > chance[column])
            continue;
        const std::uint32_t kind = *draw++;
        int down = 0;
        int across = 0;
        if (kind <= anyBar) {
            if (kind <= upright && free[column + grid.stride()])
                down = takeBar(free + column, grid.stride(), *draw++);
            else if (free[column + 1])
                across = takeBar(free + column, 1, *draw++);
        }
        marks.emplaceBack(grid.x(column) - 0.3 * cell, top, 0.6 * cell + cell * across, 0.6 * cell + cell * down);
    }
    draws.skipTo(draw);
}

}

QList<QRectF> DotLayout::layout(const QSizeF &size, double cell, quint32 seed, double density, double ramp,
                                double margin, const QList<Zone> &calm)
{
    DotGrid grid(size, cell, density);
    grid.calm(calm, ramp, margin, density);
    Draws draws(seed, 3 * grid.columns());
    QList<QRectF> marks;
    marks.reserve(qsizetype(grid.columns()) * grid.rows() / 2);
    for (int row = 0; row < grid.rows(); ++row)
        layRow(grid, row, draws, marks);
    return marks;
}
