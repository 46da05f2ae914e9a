#pragma once

#include <cstdint>

namespace TQFoundation {

/// The tables' share of layoutCost(), in microseconds. A table has as many cells as its rows times those of its longest
/// row, and takes twice as long inside of another one.
///
/// Exact for tables that are not nested. Otherwise each cell counts as a column of every row, because cells of an outer
/// table may follow an inner one. Rows and cells must be in a table. A plain value. Any thread.
class TableCost
{
public:
    /// Also begins a row, because the toolkit inserts a missing one.
    void beginTable();

    void endTable();
    void beginRow();

    /// Adds a cell that spans \a columns and \a rows, both at least 1.
    void addCell(int columns, int rows);

    /// An upper bound for the number of cells.
    std::int64_t cells() const { return m_rows * (m_isNested ? m_cells : m_maxRowCells); }

    /// Grows with the product of rows and columns, and doubles with each level of nesting.
    std::int64_t total() const;

private:
    // Depth of nesting.
    std::int64_t m_open = 0;
    std::int64_t m_maxOpen = 0;
    // Also true for spanned rows.
    bool m_isNested = false;
    std::int64_t m_rows = 0; // of all tables
    std::int64_t m_rowCells = 0;
    std::int64_t m_maxRowCells = 0;
    std::int64_t m_cells = 0;
};

} // namespace TQFoundation
