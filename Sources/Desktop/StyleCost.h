#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>

namespace TQFoundation {

/// The styles' share of layoutCost(), in microseconds: fonts to be loaded, and rules to be compared with every tag.
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

    void addFontFamily(std::u16string_view family) { m_families.insert(std::u16string(family)); }

    /// Adds a font size by a text that differs from those of other sizes.
    void addFontSize(std::u16string_view size) { m_sizes.insert(std::u16string(size)); }

    /// Lines of preformatted text are not broken at blanks.
    void setPreformatted() { m_isPreformatted = true; }
    bool isPreformatted() const { return m_isPreformatted; }

    /// The cost for a message with \a tags tags.
    std::int64_t total(std::int64_t tags) const;

private:
    bool addProperty(const std::string &property, std::u16string_view value);

    bool m_isPreformatted = false;
    std::int64_t m_sheetSize = 0;
    std::set<std::u16string> m_families;
    std::set<std::u16string> m_sizes;
};

} // namespace TQFoundation
