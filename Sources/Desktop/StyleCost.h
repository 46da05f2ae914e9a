#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>

namespace TQFoundation {

/// The styles' share of layoutCost(), in microseconds: fonts to be loaded, and rules to be compared with every tag.
/// Also finds out how large the layout may become.
///
/// Refers to the markup. The functions that return false have met a style of unknown cost. Any thread.
class StyleCost
{
public:
    /// Adds the content of a style element. False for selectors with combinators, for which the toolkit searches all
    /// ancestors of each tag.
    bool addSheet(std::u16string_view sheet);

    /// Adds the properties of a rule or of an attribute. False for unknown properties, large fonts and huge numbers.
    bool addProperties(std::u16string_view properties);

    /// Adds a font family, or a list of them. Equal ones count once.
    void addFontFamily(std::u16string_view family) { m_families.insert(std::u16string(family)); }

    /// Adds a font size, by any text that differs from those of other sizes. Equal ones count once.
    void addFontSize(std::u16string_view size) { m_sizes.insert(std::u16string(size)); }

    /// Adds a width, a height or a distance of an attribute. False unless it is a number with a known unit.
    bool addLength(std::u16string_view length);

    /// Lines of preformatted text are not broken at blanks.
    void setPreformatted() { m_isPreformatted = true; }

    /// Whether any part of the message is preformatted.
    bool isPreformatted() const { return m_isPreformatted; }

    /// A bound in points for both sides of a message with \a characters characters in \a boxes blocks and cells.
    std::int64_t extent(std::int64_t characters, std::int64_t boxes) const;

    /// The cost for a message with \a tags tags.
    std::int64_t total(std::int64_t tags) const;

private:
    // Adds one property, whose name is in lower case.
    bool addNumbers(std::u16string_view value);
    bool addProperty(const std::string &property, std::u16string_view value);

    bool m_isPreformatted = false;
    std::int64_t m_sheetSize = 0;
    std::int64_t m_maxFontSize = 25;
    std::int64_t m_maxLength = 0;
    std::set<std::u16string> m_families;
    std::set<std::u16string> m_sizes;
};

} // namespace TQFoundation
