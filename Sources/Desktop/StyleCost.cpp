#include "StyleCost.h"

#include "Scanner.h"

#include <algorithm>
#include <string_view>

namespace TQFoundation {
namespace {

using View = Scanner::View;

bool isListOfSimpleSelectors(View selectors)
{
    Scanner scanner(selectors);
    do {
        scanner.skipBlanks();
        const View selector =
            scanner.take([](char16_t c) { return Scanner::isNameCharacter(c) || c == u'.' || c == u'#' || c == u'*'; });
        scanner.skipBlanks();
        if (selector.empty())
            return false;
    } while (scanner.skip(u","));
    return scanner.isAtEnd();
}

bool isKnownProperty(std::string_view property)
{
    constexpr std::string_view known[] = {
        "-qt-paragraph-type", "background",      "background-color", "background-image", "color",
        "font-style",         "font-weight",     "height",           "line-height",      "list-style-type",
        "text-align",         "text-decoration", "text-indent",      "vertical-align",   "width",
    };
    return std::ranges::find(known, property) != std::end(known) || property.starts_with("border")
        || property.starts_with("margin") || property.starts_with("padding");
}

} // namespace

bool StyleCost::addSheet(View sheet)
{
    m_sheetSize += static_cast<std::int64_t>(sheet.size());
    Scanner scanner(sheet);
    for (scanner.skipBlanks(); !scanner.isAtEnd(); scanner.skipBlanks()) {
        // QTextDocument::toHtml() writes these.
        if (scanner.skip(u"li.unchecked::marker { content: \"\\2610\"; }")
            || scanner.skip(u"li.checked::marker { content: \"\\2612\"; }"))
            continue;
        if (scanner.skip(u"@import")) {
            scanner.takeUntil(u";{}");
            if (!scanner.skip(u";"))
                return false;
            continue;
        }
        if (!isListOfSimpleSelectors(scanner.takeUntil(u"{")) || !scanner.skip(u"{")
            || !addProperties(scanner.takeUntil(u"}")) || !scanner.skip(u"}"))
            return false;
    }
    return true;
}

bool StyleCost::addProperties(View properties)
{
    // Escapes, comments and nested blocks could hide a property.
    if (properties.find_first_of(u"\\{&") != View::npos || properties.find(u"/*") != View::npos)
        return false;
    Scanner scanner(properties);
    for (scanner.skipBlanks(); !scanner.isAtEnd(); scanner.skipBlanks()) {
        if (scanner.skip(u";"))
            continue;
        const std::string property = scanner.takeName();
        scanner.skipBlanks();
        if (!scanner.skip(u":"))
            return false;
        scanner.skipBlanks();
        View value = scanner.takeUntil(u";");
        while (!value.empty() && Scanner::isBlank(value.back()))
            value.remove_suffix(1);
        if (!addProperty(property, value))
            return false;
    }
    return true;
}

bool StyleCost::addProperty(const std::string &property, View value)
{
    if (property == "white-space") {
        m_isPreformatted = m_isPreformatted || value == u"pre";
        return value == u"pre" || value == u"pre-wrap" || value == u"normal";
    }
    if (property == "font-family") {
        addFontFamily(value);
        return true;
    }
    if (property == "font-size") {
        addFontSize(value);
        Scanner scanner(value);
        if (value.ends_with(u"small") || value.ends_with(u"medium") || value.ends_with(u"large"))
            return true;
        const int size = scanner.takeNumber(2);
        m_maxFontSize = std::max<std::int64_t>(m_maxFontSize, size);
        return size > 0 && (scanner.rest() == u"px" || scanner.rest() == u"pt");
    }
    if (property == "font-weight")
        return true;
    if (property == "-qt-block-indent" || property == "-qt-list-indent") {
        Scanner scanner(value);
        const int steps = scanner.takeNumber(2);
        m_maxLength = std::max<std::int64_t>(m_maxLength, 10 * steps);
        return steps >= 0 && scanner.isAtEnd();
    }
    return isKnownProperty(property) && addNumbers(value);
}

bool StyleCost::addLength(View length)
{
    Scanner scanner(length);
    const int number = scanner.takeNumber(4);
    m_maxLength = std::max<std::int64_t>(m_maxLength, number);
    const View unit = scanner.rest();
    // Percentages multiply in nested blocks.
    return number >= 0 && (unit.empty() || unit == u"px" || unit == u"pt" || (unit == u"%" && number <= 200));
}

// Colours and addresses are not numbers.
bool StyleCost::addNumbers(View value)
{
    Scanner scanner(value);
    while (!scanner.isAtEnd()) {
        if (scanner.skip(u"#"))
            scanner.take(Scanner::isNameCharacter);
        else if (scanner.skip(u"url("))
            scanner.takeUntil(u")");
        else if (!Scanner::isDigit(scanner.rest().front()))
            scanner.takeOne();
        else if (!addLength(scanner.take([](char16_t c) { return Scanner::isNameCharacter(c) || c == u'%'; })))
            return false;
    }
    return true;
}

// A character may be as high as its line, and each block has up to two distances on either side. Indents are steps of
// 40 points.
std::int64_t StyleCost::extent(std::int64_t characters, std::int64_t boxes) const
{
    return characters * 2 * m_maxFontSize * (100 + m_maxLength) / 100 + boxes * (4 * m_maxLength + 100);
}

std::int64_t StyleCost::total(std::int64_t tags) const
{
    // Each font is loaded once, and at most one for each tag. Bold and italic fonts are fonts of their own.
    const auto fonts = static_cast<std::int64_t>(4 * (m_families.size() + 1) * (m_sizes.size() + 1));
    return std::min(fonts, tags) * 600 + m_sheetSize + m_sheetSize * tags / 7;
}

} // namespace TQFoundation
