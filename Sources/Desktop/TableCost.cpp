#include "TableCost.h"

#include <algorithm>

namespace TQFoundation {

void TableCost::beginTable()
{
    ++m_rows;
    m_rowCells = 0;
    m_isNested = m_isNested || m_open > 0;
    m_maxOpen = std::max(m_maxOpen, ++m_open);
}

void TableCost::endTable()
{
    --m_open;
    m_rowCells = 0;
}

void TableCost::beginRow()
{
    ++m_rows;
    m_rowCells = 0;
}

void TableCost::addCell(int columns, int rows)
{
    m_cells += columns;
    m_rowCells += columns;
    m_maxRowCells = std::max(m_maxRowCells, m_rowCells);
    m_rows += rows - 1;
    m_isNested = m_isNested || rows > 1;
}

std::int64_t TableCost::total() const
{
    const std::int64_t doublings = std::clamp<std::int64_t>(m_maxOpen - 1, 0, 20);
    // 40 microseconds for a cell.
    return cells() * 40 << doublings;
}

} // namespace TQFoundation
