#include "LayoutCost.h"

#include "Scanner.h"
#include "StyleCost.h"
#include "TableCost.h"
#include "TextCost.h"

#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <limits>
#include <string>
#include <vector>

namespace TQFoundation {
namespace {

using View = Scanner::View;

constexpr std::int64_t unknownCost = std::numeric_limits<std::int64_t>::max();

// Works around Qt: layouts of more than 16,777,216 points never end, because fixed-point numbers overflow.
constexpr std::int64_t maxExtent = 8'000'000;

bool isAnyOf(std::string_view name, std::initializer_list<std::string_view> names)
{
    return std::ranges::find(names, name) != names.end();
}

// The code point of a numeric entity, whose "&" has been read; that of a combining character for all others.
std::uint32_t codePointOf(Scanner entity)
{
    if (!entity.skip(u"#"))
        return 0x300;
    const bool isHex = entity.skip(u"x") || entity.skip(u"X");
    const View digits = entity.rest().substr(0, 8);
    const std::string bytes(digits.begin(), std::ranges::find_if_not(digits, Scanner::isNameCharacter));
    return static_cast<std::uint32_t>(std::strtoul(bytes.c_str(), nullptr, isHex ? 16 : 10));
}

/// Reads the markup once. The functions that return false have met markup of unknown cost.
class Markup
{
public:
    explicit Markup(View html) : m_scanner(html) {}

    bool read();
    std::int64_t cost() const;

private:
    void readText();
    bool readTag();
    bool readDeclaration();
    bool readAttributes(const std::string &tag);
    bool addAttribute(const std::string &tag, const std::string &name, View value);
    bool addLength(const std::string &name, View value);
    bool readStyleSheet();
    bool nest(const std::string &name, bool isClosing);
    void addTag(const std::string &name, bool isClosing);

    Scanner m_scanner;
    TextCost m_text;
    TableCost m_tables;
    StyleCost m_styles;
    std::int64_t m_tags = 0;
    std::int64_t m_objects = 0; // images, links and floats
    std::int64_t m_attributeSize = 0;
    std::vector<std::string> m_open; // the tables and the tags in them, without their rows and cells
    int m_columns = 1; // of the current cell
    int m_rows = 1;
};

std::int64_t Markup::cost() const
{
    // Each image is inserted into the text.
    const std::int64_t objects = m_objects * (50 + m_objects / 8 + m_text.size() / 60);
    if (m_styles.extent(m_text.size(), m_tags + m_tables.cells()) > maxExtent)
        return unknownCost;
    return m_text.total(m_styles.isPreformatted()) + m_tables.total() + m_styles.total(m_tags) + m_attributeSize
        + m_tags * 30 + m_tags * m_tags / 100 + objects;
}

bool Markup::read()
{
    while (!m_scanner.isAtEnd()) {
        readText();
        if (cost() > maxLayoutCost || (!m_scanner.isAtEnd() && !readTag()))
            return false;
    }
    m_text.endLine();
    return true;
}

void Markup::readText()
{
    Scanner text(m_scanner.takeUntil(u"<"));
    while (!text.isAtEnd() && m_text.total(false) <= maxLayoutCost) {
        const char16_t c = text.takeOne();
        m_text.add(c);
        if (c != u'&')
            continue;
        const std::uint32_t entity = codePointOf(text);
        if (entity > 0xFFFF)
            m_text.add(static_cast<char16_t>(0xD7C0U + (entity >> 10 & 0x3FFU)));
        m_text.add(static_cast<char16_t>(entity & 0xFFFFU));
    }
}

bool Markup::readTag()
{
    m_scanner.skip(u"<");
    if (m_scanner.skip(u"!"))
        return readDeclaration();
    const bool isClosing = m_scanner.skip(u"/");
    const std::string name = m_scanner.takeName();
    m_columns = 1;
    m_rows = 1;
    if (name.empty() || name == "nobr" || !readAttributes(name))
        return false;
    const bool isEmpty = m_scanner.skip(u"/");
    if (!m_scanner.skip(u">"))
        return false;
    if (!nest(name, isClosing))
        return false;
    addTag(name, isClosing);
    return isClosing || name != "style" || (!isEmpty && readStyleSheet());
}

// Supports no comments that contain tags.
bool Markup::readDeclaration()
{
    const bool isComment = m_scanner.skip(u"--");
    const View declaration = m_scanner.takeUntil(u"<>");
    m_attributeSize += static_cast<std::int64_t>(declaration.size());
    return m_scanner.skip(u">") && (!isComment || declaration.ends_with(u"--"));
}

bool Markup::readAttributes(const std::string &tag)
{
    for (;;) {
        const View blanks = m_scanner.skipBlanks();
        if (m_scanner.rest().starts_with(u'>') || m_scanner.rest().starts_with(u'/'))
            return true;
        const std::string name = m_scanner.takeName();
        if (blanks.empty() || name.empty())
            return false;
        View value = u"1";
        if (m_scanner.skip(u"=")) {
            const View quote = m_scanner.skip(u"'") ? u"'" : m_scanner.skip(u"\"") ? u"\"" : u"";
            value = m_scanner.takeUntil(quote.empty() ? u" \t\n\r\f\"'&<=>" : quote == u"'" ? u"'<>" : u"\"<>");
            if (!m_scanner.skip(quote))
                return false;
        }
        m_attributeSize += static_cast<std::int64_t>(name.size() + value.size());
        if (m_attributeSize > maxLayoutCost || !addAttribute(tag, name, value))
            return false;
    }
}

bool Markup::addAttribute(const std::string &tag, const std::string &name, View value)
{
    if (name == "style")
        return m_styles.addProperties(value);
    if (name == "face")
        m_styles.addFontFamily(value);
    if (name == "href" || (name == "align" && isAnyOf(tag, {"img", "table"})))
        ++m_objects;
    if (isAnyOf(name,
                {"border", "cellpadding", "cellspacing", "colspan", "height", "hspace", "rowspan", "size", "start",
                 "vspace", "width"}))
        return addLength(name, value);
    return true;
}

bool Markup::addLength(const std::string &name, View value)
{
    if (name == "size") {
        m_styles.addFontSize(value);
        return value.size() <= 2 && value.find(u'&') == View::npos;
    }
    if (!isAnyOf(name, {"colspan", "rowspan"}))
        return m_styles.addLength(value);
    Scanner scanner(value);
    const int span = scanner.takeNumber(3);
    (name == "colspan" ? m_columns : m_rows) = span;
    return span > 0 && scanner.isAtEnd();
}

bool Markup::readStyleSheet()
{
    const View sheet = m_scanner.takeUntil(u"<&");
    Scanner next = m_scanner;
    return sheet.size() <= maxLayoutCost && next.skip(u"</") && next.takeName() == "style" && m_styles.addSheet(sheet);
}

// Tables must be complete. To repair others, the toolkit nests tables, and takes exponential time to lay those out.
bool Markup::nest(const std::string &name, bool isClosing)
{
    const bool isTable = name == "table";
    if ((m_open.empty() && isTable && isClosing) || name == "caption")
        return false;
    if (isAnyOf(name, {"tbody", "td", "tfoot", "th", "thead", "tr"}))
        return !m_open.empty() && m_open.back() == "table";
    if ((m_open.empty() && !isTable) || isAnyOf(name, {"br", "hr", "img", "li", "p"}))
        return true;
    if (!isClosing) {
        m_open.push_back(name);
        return true;
    }
    const bool isMatch = m_open.back() == name;
    m_open.pop_back();
    return isMatch;
}

void Markup::addTag(const std::string &name, bool isClosing)
{
    ++m_tags;
    if (isAnyOf(name, {"blockquote", "br", "center", "dd", "div", "dl",  "dt",    "h1", "h2", "h3", "h4", "h5",
                       "h6",         "hr", "li",     "ol", "p",   "pre", "table", "td", "th", "tr", "ul"}))
        m_text.endLine();
    if (name == "table")
        isClosing ? m_tables.endTable() : m_tables.beginTable();
    if (isClosing)
        return;
    if (name == "tr")
        m_tables.beginRow();
    else if (isAnyOf(name, {"td", "th"}))
        m_tables.addCell(m_columns, m_rows);
    else if (name == "img")
        ++m_objects;
    else if (name == "pre")
        m_styles.setPreformatted();
    if (isAnyOf(name,
                {"big", "code", "h1", "h2", "h3", "h4", "h5", "h6", "kbd", "pre", "samp", "small", "sub", "sup", "tt"}))
        m_styles.addFontSize(std::u16string(name.begin(), name.end()));
}

} // namespace

std::int64_t layoutCost(View html)
{
    Markup markup(html);
    return markup.read() ? markup.cost() : unknownCost;
}

} // namespace TQFoundation
