#pragma once

#include "DotLayout.h"

#include <cstdint>
#include <vector>

/// The cells of a dot field: where each stands, whether it is free, and how likely a mark begins there. A column and a
/// row that are never free stand behind the last ones, so that no bar has to look for the edge.
class DotGrid {
public:
    DotGrid(const QSizeF &size, double cell, double density);

    int columns() const { return m_columns; }
    int rows() const { return m_rows; }
    double cell() const { return m_cell; }
    /// The centre of a column or a row, in points.
    double x(int column) const { return m_left + m_cell * (column + 0.5); }
    double y(int row) const { return m_top + m_cell * (row + 0.5); }

    /// Whether the cells of a row are open and not taken: 1 or 0 each. The next row begins `stride` further on.
    std::uint8_t *free(int row) { return m_free.data() + row * stride(); }
    std::ptrdiff_t stride() const { return std::ptrdiff_t(m_columns) + 1; }

    /// The largest random number that begins a mark, for each cell of a row, as the generator's integer.
    const std::uint32_t *chances(int row) const { return m_chances.data() + row * std::ptrdiff_t(m_columns); }

    /// Closes what lies within `margin` of the zones, and lowers the chances within `ramp` around that.
    void calm(const QList<Zone> &zones, double ramp, double margin, double density);

private:
    struct Columns {
        int begin;
        int end;
    };
    Columns within(const Zone &zone, double reach, double dy, int widening) const;

    int m_columns;
    int m_rows;
    double m_cell;
    double m_left;
    double m_top;
    std::vector<std::uint8_t> m_free;
    std::vector<std::uint32_t> m_chances;
};
