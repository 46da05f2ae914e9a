#pragma once

#include <bitset>
#include <cstdint>

namespace TQFoundation {

/// The text's share of layoutCost(), in microseconds: the price of its characters and of the fonts for their scripts,
/// and the squared lengths of the runs that cannot be broken into lines. A plain value. Any thread.
class TextCost
{
public:
    /// Adds one UTF-16 code unit of the text.
    void add(char16_t c);

    /// Ends the line, because a block begins or ends.
    void endLine();

    /// The cost of all lines that have ended. \a isPreformatted means that lines are not broken at blanks.
    std::int64_t total(bool isPreformatted) const { return m_cost + (isPreformatted ? m_lineCost : m_runCost); }

    /// Number of code units.
    std::int64_t size() const { return m_size; }

private:
    // A part of the text that stays on one line.
    struct Run
    {
        std::int64_t size = 0;
        bool isAscii = true;

        void add(char16_t c);
        std::int64_t end();
    };

    void addFontOf(char16_t c);

    std::int64_t m_size = 0;
    std::int64_t m_cost = 0;
    bool m_isLatin = true; // the last character that is not blank
    std::int64_t m_runCost = 0;
    std::int64_t m_lineCost = 0;
    Run m_run; // since the last opportunity for a line break
    Run m_line; // since the last line feed or block
    std::bitset<256 + 1024> m_fonts; // seen upper bytes and high surrogates
};

} // namespace TQFoundation
