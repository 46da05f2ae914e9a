#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace TQFoundation {

/// Reads a text from its beginning to its end, in pieces that the caller asks for.
///
/// A plain value, which refers to the text and must not outlive it. A copy reads ahead without moving the original. Any
/// thread.
class Scanner
{
public:
    using View = std::u16string_view;

    explicit Scanner(View text) : m_rest(text) {}

    /// The text that has not been read yet.
    View rest() const { return m_rest; }

    /// Whether all of the text has been read.
    bool isAtEnd() const { return m_rest.empty(); }

    /// Whether \a c is white space in HTML and CSS.
    static constexpr bool isBlank(char16_t c) noexcept
    {
        return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
    }

    /// Whether \a c is a digit of ASCII.
    static constexpr bool isDigit(char16_t c) noexcept { return c >= u'0' && c <= u'9'; }

    /// Whether \a c is a letter, digit, "-" or "_" of ASCII.
    static constexpr bool isNameCharacter(char16_t c) noexcept
    {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || isDigit(c) || c == u'-' || c == u'_';
    }

    /// Reads all characters up to the first for which \a isMember is false.
    template <typename Predicate>
    View take(const Predicate &isMember)
    {
        const auto end = std::find_if_not(m_rest.begin(), m_rest.end(), isMember);
        const View taken = m_rest.substr(0, static_cast<std::size_t>(end - m_rest.begin()));
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    /// Reads up to the first of the characters \a ends, or all.
    View takeUntil(View ends)
    {
        const View taken = m_rest.substr(0, m_rest.find_first_of(ends));
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    /// Reads one character; not at the end.
    char16_t takeOne()
    {
        const char16_t c = m_rest.front();
        m_rest.remove_prefix(1);
        return c;
    }

    /// Reads \a prefix. False, and nothing is read, if something else comes next.
    bool skip(View prefix)
    {
        const bool isNext = m_rest.starts_with(prefix);
        m_rest.remove_prefix(isNext ? prefix.size() : 0);
        return isNext;
    }

    /// Reads all blanks that come next.
    View skipBlanks() { return take(isBlank); }

    /// Reads a name and returns it in lower case; empty if none comes next.
    std::string takeName()
    {
        std::string lowerCase;
        for (const char16_t c : take(isNameCharacter))
            lowerCase += static_cast<char>(c >= u'A' && c <= u'Z' ? c - u'A' + u'a' : c);
        return lowerCase;
    }

    /// Reads digits and returns their value; -1 without digits or with more than \a maxDigits, which is at most 9.
    int takeNumber(std::size_t maxDigits)
    {
        const View digits = take(isDigit);
        int value = digits.empty() || digits.size() > maxDigits ? -1 : 0;
        for (std::size_t index = 0; value >= 0 && index < digits.size(); ++index)
            value = 10 * value + (digits[index] - u'0');
        return value;
    }

private:
    View m_rest;
};

} // namespace TQFoundation
