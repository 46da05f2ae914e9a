#include "TextCost.h"

#include "Scanner.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace TQFoundation {
namespace {

std::int64_t costOf(char16_t c)
{
    struct Range
    {
        char16_t end;
        std::int64_t cost;
    };
    // Control characters, tabs, combining and invisible characters and surrogates take the toolkit longest.
    constexpr Range ranges[] = {
        {0x0A, 30},  {0x0B, 12},   {0x0C, 30},  {0x0E, 1},   {0x20, 30},   {0x7F, 1},
        {0xA0, 30},  {0x300, 2},   {0x370, 30}, {0x590, 3},  {0x900, 8},   {0x2010, 6},
        {0x2028, 3}, {0x2070, 30}, {0x2E80, 8}, {0xD800, 3}, {0xE000, 30}, {0xFFFF, 15},
    };
    const auto *const range = std::ranges::upper_bound(ranges, c, {}, &Range::end);
    return range == std::end(ranges) ? 15 : range->cost;
}

} // namespace

void TextCost::Run::add(char16_t c)
{
    ++size;
    isAscii = isAscii && c < 0x80;
}

std::int64_t TextCost::Run::end()
{
    const Run ended = std::exchange(*this, {});
    // Runs that mix directions are the most expensive ones.
    return ended.size * ended.size / (ended.isAscii ? 8000 : 400);
}

// A fallback font takes up to 15 ms to load. Characters without any font make the toolkit try them all.
void TextCost::addFontOf(char16_t c)
{
    const bool isHighSurrogate = c >= 0xD800 && c < 0xDC00;
    const bool isLowSurrogate = c >= 0xDC00 && c < 0xE000;
    const auto block = static_cast<std::size_t>(c >> 8);
    if (block < 0x05 || block == 0x20 || isLowSurrogate)
        return;
    std::size_t font = block;
    if (isHighSurrogate)
        font = 256U + (c - 0xD800U);
    else if (block >= 0x2E && block < 0xAC)
        font = 0x4E; // one font for Chinese and Japanese
    else if (block >= 0xAC && block < 0xD8)
        font = 0xAC; // one font for Korean
    if (!m_fonts[font])
        m_cost += 8000;
    m_fonts[font] = true;
}

void TextCost::add(char16_t c)
{
    ++m_size;
    m_cost += costOf(c);
    addFontOf(c);
    if (!Scanner::isBlank(c)) {
        const bool isLatin = c < 0x300;
        m_cost += isLatin == m_isLatin ? 0 : 10; // text is shaped and drawn script by script
        m_isLatin = isLatin;
    }
    m_run.add(c);
    m_line.add(c);
    if (c == u'\n')
        endLine();
    else if (Scanner::isBlank(c) || (c >= 0x2E80 && c < 0xD800))
        m_runCost += m_run.end();
}

void TextCost::endLine()
{
    m_runCost += m_run.end();
    m_lineCost += m_line.end();
}

} // namespace TQFoundation
