#include "LayoutCost.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace TQFoundation {
namespace {

using View = std::u16string_view;

constexpr std::int64_t maxCost = 150'000; // in microseconds, like all costs
// Works around Qt: layouts of more than 16,777,216 points never end, because fixed-point numbers overflow. Each
// character may be alone on a line of twice 99 points.
constexpr std::int64_t maxSize = 60'000;
constexpr View blanks = u" \t\n\r";
constexpr View nameCharacters = u"abcdefghijklmnopqrstuvwxyz0123456789-";
constexpr View pairedTags = u" a b blockquote body code div em h1 h2 h3 h4 h5 h6 head html i li ol p pre span strong "
                            u"table tbody td th thead title tr u ul ";
constexpr View freeProperties = u" -qt-paragraph-type background-color color font-family font-style font-weight "
                                u"list-style-type text-align text-decoration vertical-align ";
constexpr View lengths = u" -qt-block-indent -qt-list-indent border-width font-size height margin margin-bottom "
                         u"margin-left margin-right margin-top padding text-indent width ";
constexpr View styleSheet =
    u"\np, li { white-space: pre-wrap; }\nhr { height: 1px; border-width: 0; }\n"
    u"li.unchecked::marker { content: \"\\2610\"; }\nli.checked::marker { content: \"\\2612\"; }\n";

// Lists have a blank before and after each word.
bool isIn(View list, View word)
{
    return list.find(u' ' + std::u16string(word) + u' ') != View::npos;
}

View take(View &rest, std::size_t size)
{
    const View taken = rest.substr(0, size);
    rest.remove_prefix(taken.size());
    return taken;
}

bool skip(View &rest, View prefix)
{
    return rest.starts_with(prefix) && take(rest, prefix.size()) == prefix;
}

// Whether \a value consists of lengths, with up to \a maxDigits digits before and after the point.
bool isLength(View value, std::size_t maxDigits)
{
    std::size_t digits = 0;
    return std::ranges::all_of(value, [&](char16_t c) {
        const bool isDigit = c >= u'0' && c <= u'9';
        digits = isDigit ? digits + 1 : 0;
        return digits <= maxDigits && (isDigit || View(u" .%ptx").find(c) != View::npos);
    });
}

// Chinese, Japanese and Korean.
bool isCjk(char16_t c)
{
    return (c >= 0x2E80 && c < 0xA000) || (c >= 0xAC00 && c < 0xD800);
}

std::int64_t costOf(char16_t c)
{
    if (c < 0x80)
        return c >= 0x20 ? 1 : 30;
    if (c >= 0xA0 && c < 0x300)
        return 3;
    // Text from right to left, combining and invisible characters and surrogates take the toolkit longest.
    return isCjk(c) || (c >= 0x370 && c < 0x590) || (c >= 0x900 && c < 0x2028) ? 16 : 30;
}

/// Reads lower-case markup once. The functions that return false have met something that is not known to be cheap.
class Markup
{
public:
    explicit Markup(View html) : m_rest(html) {}

    bool isCheap()
    {
        while (!m_rest.empty()) {
            if (!(skip(m_rest, u"<") ? readTag() : readCharacter()) || cost() > maxCost || m_size > maxSize)
                return false;
        }
        return true;
    }

private:
    struct Element
    {
        View tag;
        bool isNarrow;
    };

    std::int64_t cost() const
    {
        // Each font is loaded once, and at most one for each tag. Bold fonts and those of headings are fonts of their
        // own.
        const auto fonts = static_cast<std::int64_t>((m_fonts.size() + 4) * (m_fonts.size() + 4));
        // Each image is inserted into the text.
        return m_cost + m_tags * (60 + m_tags / 100) + std::min(fonts, m_tags) * 600
            + m_objects * (100 + m_objects / 4 + m_size / 30);
    }

    // To repair other tables, the toolkit nests them, and takes exponential time to lay those out. Text has no tag.
    bool canContain(View tag) const
    {
        const View outer = m_open.back().tag;
        if (isIn(u" td th ", tag))
            return outer == u"tr";
        if (isIn(u" tbody thead tr ", tag))
            return outer == u"table" || (tag == u"tr" && isIn(u" tbody thead ", outer));
        return !isIn(u" table tbody thead tr ", outer) && (tag != u"table" || m_open.size() <= 3);
    }

    bool readTag()
    {
        if (skip(m_rest, u"!doctype "))
            return take(m_rest, m_rest.find_first_of(u"<>")).size() < 200 && skip(m_rest, u">");
        const bool isClosing = skip(m_rest, u"/");
        const View tag = take(m_rest, m_rest.find_first_not_of(nameCharacters));
        const bool isEmpty = isIn(u" br hr img meta ", tag) && !isClosing;
        ++m_tags;
        m_objects += tag == u"img";
        m_isNarrow = m_open.back().isNarrow || isIn(u" blockquote ol table ul ", tag);
        if (!isIn(u" a b code em i img span strong u ", tag))
            m_run = 0;
        if (!readAttributes(tag) || (!(isEmpty && skip(m_rest, u"/>")) && !skip(m_rest, u">")))
            return false;
        if (tag == u"style") {
            m_cost += 30'000; // its rules are compared with each tag
            return styleSheet.find(take(m_rest, m_rest.find(u'<'))) != View::npos && skip(m_rest, u"</style>");
        }
        return isEmpty ? canContain(tag) : isClosing ? close(tag) : open(tag);
    }

    bool readAttributes(View tag)
    {
        while (!take(m_rest, m_rest.find_first_not_of(blanks)).empty() && !m_rest.starts_with(u'/')) {
            const View name = take(m_rest, m_rest.find_first_not_of(nameCharacters));
            if (name.empty())
                break;
            if (!skip(m_rest, u"="))
                return false;
            const View quote = skip(m_rest, u"'") ? u"'" : skip(m_rest, u"\"") ? u"\"" : u"";
            const View ends = quote.empty() ? u" \t\n\r\"'&<=>" : quote == u"'" ? u"'<>" : u"\"<>";
            const View value = take(m_rest, m_rest.find_first_of(ends));
            if (!skip(m_rest, quote) || !addAttribute(tag, name, value))
                return false;
            m_cost += static_cast<std::int64_t>(name.size() + value.size());
        }
        return true;
    }

    bool addAttribute(View tag, View name, View value)
    {
        m_objects += name == u"href";
        if (name == u"style")
            return addProperties(value);
        // Images and tables would float.
        if (name == u"align")
            return !isIn(u" img table ", tag);
        return isIn(u" alt bgcolor charset content dir href lang name src title type ", name)
            || (isIn(u" border cellpadding cellspacing height start width ", name) && isLength(value, 3));
    }

    bool addProperties(View properties)
    {
        // Escapes, comments, functions, entities and nested blocks could hide a property.
        bool isKnown = properties.find_first_of(u"\\(/&{") == View::npos;
        while (isKnown && !properties.empty()) {
            View property = take(properties, properties.find(u';'));
            skip(properties, u";");
            take(property, property.find_first_not_of(blanks));
            const View name = take(property, property.find_first_not_of(nameCharacters));
            const bool isNamed = skip(property, u": ") || skip(property, u":");
            isKnown = isNamed ? addProperty(name, property) : name.empty() && property.empty();
        }
        return isKnown;
    }

    bool addProperty(View name, View value)
    {
        const bool isFontSize = name == u"font-size";
        if (isFontSize || name == u"font-family")
            m_fonts.insert(value);
        if (isIn(freeProperties, name) || (name == u"white-space" && value == u"pre-wrap")
            || (isFontSize && isIn(u" small medium large x-large xx-large ", value)))
            return true;
        if (!isIn(u" border-width height margin-bottom margin-top ", name))
            m_isNarrow = m_isNarrow
                || (isFontSize ? value.size() > 3 && value[0] != u'1'
                               : value.find_first_of(u"123456789") != View::npos);
        return isIn(lengths, name) && isLength(value, 2);
    }

    bool open(View tag)
    {
        if (isIn(u" li p ", tag) && m_open.back().tag == tag)
            m_open.pop_back();
        if (!canContain(tag) || !isIn(pairedTags, tag))
            return false;
        m_open.push_back({tag, m_isNarrow});
        m_columns = tag == u"tr" ? 0 : m_columns + isIn(u" td th ", tag);
        m_cost += tag == u"tr" ? 400 : 0; // for ten cells
        return m_open.size() <= 15 && m_columns <= 10;
    }

    bool close(View tag)
    {
        while (isIn(u" li p ", m_open.back().tag) && m_open.back().tag != tag)
            m_open.pop_back();
        if (m_open.back().tag != tag || tag.empty())
            return false;
        m_open.pop_back();
        return true;
    }

    bool readCharacter()
    {
        const char16_t c = take(m_rest, 1).front();
        const bool isBlank = blanks.find(c) != View::npos;
        ++m_size;
        m_cost += costOf(c);
        // A fallback font takes up to 15 ms to load. Characters without any font make the toolkit try them all.
        const bool isSurrogate = c >= 0xD800 && c < 0xE000;
        const int block = isCjk(c) ? c > 0xA000 : isSurrogate ? c : c >> 8;
        if (c >= 0x500 && block != 0x20 && m_fallbackFonts.insert(block).second)
            m_cost += 8000;
        // Text is shaped and drawn script by script.
        if (!isBlank && std::exchange(m_isLatin, c < 0x300) != (c < 0x300))
            m_cost += 20;
        // Each character may be alone on a line.
        m_cost += m_open.back().isNarrow ? 12 : 0;
        if (c == u'&') {
            // Names stand for symbols of up to five blocks.
            m_cost += m_fallbackFonts.insert(-1).second ? 40'000 : 30;
            if (skip(m_rest, u"#") && take(m_rest, m_rest.find_first_not_of(nameCharacters)).size() > 3)
                return false;
        }
        // Runs that cannot be broken into lines take quadratic time.
        const bool isPreformatted = std::ranges::count(m_open, u"pre", &Element::tag) > 0;
        m_run = c == u'\n' || (!isPreformatted && (isBlank || isCjk(c))) ? 0 : m_run + 1;
        return m_run <= 500 && (isBlank || canContain({}));
    }

    View m_rest;
    std::vector<Element> m_open{{}}; // from a parent of all to the innermost
    std::set<View> m_fonts; // families and sizes
    std::set<int> m_fallbackFonts; // blocks of characters
    std::int64_t m_cost = 0; // of characters, attributes and table rows
    std::int64_t m_size = 0; // number of characters
    std::int64_t m_run = 0; // characters since the last opportunity for a line break
    std::int64_t m_tags = 0;
    std::int64_t m_objects = 0; // images and links
    int m_columns = 0; // of the current row
    bool m_isLatin = true; // the last character that is not blank
    bool m_isNarrow = false; // whether few characters may fit on a line of the current tag
};

} // namespace

bool isCheapToLayOut(View html)
{
    // Each character costs at least one microsecond.
    if (html.size() > std::size_t{maxCost})
        return false;
    std::u16string lowerCase(html);
    for (char16_t &c : lowerCase)
        c = c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c - u'A' + u'a') : c;
    return Markup(lowerCase).isCheap();
}

} // namespace TQFoundation
