#pragma once

#include <cstdint>
#include <string_view>

namespace TQFoundation {

/// Messages whose layoutCost() is higher are not shown in the editor. In microseconds.
constexpr std::int64_t maxLayoutCost = 150'000;

/// Estimates how long QTextDocument and the editor take to parse, lay out and draw \a html for the first time, in
/// microseconds of a desktop's processor. Pessimistic, because the message is not trusted: 950 characters can ask for
/// 100,000 table cells.
///
/// Counts characters by the price of their script, fonts, tags, table cells, style rules, images, and the squares of
/// numbers that the toolkit takes quadratic time for. Understands only plain markup. Anything that could be read in two
/// ways, or whose price is unknown, costs the maximum of the type: for example "<" in an attribute, entities in
/// interpreted attributes, unknown style properties, numbers with more than four digits.
///
/// Stops once the result exceeds maxLayoutCost, so larger results are not exact. Any thread.
std::int64_t layoutCost(std::u16string_view html);

} // namespace TQFoundation
