#include "TableCost.h"

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

TableCost table(int rows, int columns)
{
    TableCost cost;
    cost.beginTable();
    for (int row = 0; row < rows; ++row) {
        cost.beginRow();
        for (int column = 0; column < columns; ++column)
            cost.addCell(1, 1);
    }
    cost.endTable();
    return cost;
}

TEST(TableCost, MultipliesRowsByLongestRow)
{
    EXPECT_EQ(TableCost().total(), 0);
    TableCost cost = table(8, 3);
    EXPECT_EQ(cost.total(), (8 + 1) * 3 * 40);
    cost.beginTable();
    cost.addCell(5, 1);
    EXPECT_EQ(cost.total(), (8 + 2) * 5 * 40);
}

TEST(TableCost, CountsAllCellsAsColumnsIfNested)
{
    TableCost cost;
    for (int depth = 0; depth < 2; ++depth) {
        cost.beginTable();
        cost.beginRow();
        cost.addCell(1, 1);
        cost.addCell(1, 1);
    }
    EXPECT_EQ(cost.total(), 4 * 4 * 40 * 2);
}

TEST(TableCost, AddsSpannedRows)
{
    TableCost cost;
    cost.beginTable();
    cost.beginRow();
    cost.addCell(1, 10);
    EXPECT_EQ(cost.total(), 11 * 40);
}

} // namespace
} // namespace TQFoundation
