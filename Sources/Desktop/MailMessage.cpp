#include "MailMessage.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace TQFoundation {
namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD"; // U+FFFD

constexpr bool isLetterOrDigit(char c) noexcept
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

constexpr std::uint8_t byteAt(std::string_view text, std::size_t index) noexcept
{
    return index < text.size() ? static_cast<std::uint8_t>(text[index]) : std::uint8_t{0};
}

// Size in bytes of the first code point of text; 0 if it is invalid UTF-8 (Unicode 15, table 3-7).
constexpr std::size_t codePointSize(std::string_view text) noexcept
{
    const auto isIn = [text](std::size_t index, int lowest, int highest) {
        return byteAt(text, index) >= lowest && byteAt(text, index) <= highest;
    };
    const std::uint8_t first = byteAt(text, 0);
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return isIn(1, 0x80, 0xBF) ? 2 : 0;
    if (first >= 0xE0 && first <= 0xEF)
        return isIn(1, first == 0xE0 ? 0xA0 : 0x80, first == 0xED ? 0x9F : 0xBF) && isIn(2, 0x80, 0xBF) ? 3 : 0;
    if (first >= 0xF0 && first <= 0xF4)
        return isIn(1, first == 0xF0 ? 0x90 : 0x80, first == 0xF4 ? 0x8F : 0xBF) && isIn(2, 0x80, 0xBF)
                && isIn(3, 0x80, 0xBF)
            ? 4
            : 0;
    return 0;
}

// C0, DEL, C1, and the line and paragraph separators: they end lines or control terminals.
constexpr bool isControl(std::string_view codePoint) noexcept
{
    const std::uint8_t first = byteAt(codePoint, 0);
    return first < 0x20 || first == 0x7F || (first == 0xC2 && byteAt(codePoint, 1) < 0xA0)
        || codePoint == "\xE2\x80\xA8" || codePoint == "\xE2\x80\xA9";
}

// Calls visit with each code point of text, and with U+FFFD for each invalid byte.
template <typename Visitor>
void forEachCodePoint(std::string_view text, const Visitor &visit)
{
    while (!text.empty()) {
        const std::size_t size = codePointSize(text);
        visit(size > 0 ? text.substr(0, size) : replacement);
        text.remove_prefix(std::max<std::size_t>(size, 1));
    }
}

std::string validText(std::string_view text)
{
    std::string valid;
    valid.reserve(text.size());
    forEachCodePoint(text, [&valid](std::string_view codePoint) { valid += codePoint; });
    return valid;
}

std::string headerText(std::string_view text)
{
    std::string value;
    value.reserve(text.size());
    forEachCodePoint(text, [&value](std::string_view codePoint) { value += isControl(codePoint) ? " " : codePoint; });
    return value;
}

void appendBase64(std::string &out, std::string_view bytes)
{
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    for (std::size_t index = 0; index < bytes.size(); index += 3) {
        const auto group = static_cast<std::uint32_t>(byteAt(bytes, index) << 16 | byteAt(bytes, index + 1) << 8
                                                      | byteAt(bytes, index + 2));
        const std::size_t present = std::min<std::size_t>(bytes.size() - index, 3);
        for (std::size_t digit = 0; digit < 4; ++digit)
            out += digit <= present ? digits[group >> (18 - 6 * digit) & 63] : '=';
    }
}

// Whether the text can be written into a line with that many free bytes without encoding.
bool isPlain(std::string_view text, std::size_t freeBytes)
{
    return text.size() <= freeBytes && !text.starts_with(' ') && !text.ends_with(' ')
        && text.find("=?") == std::string_view::npos
        && std::ranges::all_of(text, [](char c) { return c >= 0x20 && c < 0x7F; });
}

// A header field, in encoded words (RFC 2047) if necessary. Its lines have at most 76 bytes.
void appendTextField(std::string &out, std::string_view name, const std::string &text)
{
    constexpr std::string_view opening = "=?UTF-8?B?";
    constexpr std::string_view closing = "?=";
    constexpr std::size_t maxLineSize = 76;
    out += name;
    out += ": ";
    std::size_t used = name.size() + 2;
    if (isPlain(text, maxLineSize - used)) {
        out += text;
        out += '\n';
        return;
    }
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::size_t maxWordBytes = (maxLineSize - used - opening.size() - closing.size()) / 4 * 3;
        std::size_t taken = 0;
        for (std::size_t next = 0; taken < rest.size(); taken += next) {
            next = codePointSize(rest.substr(taken));
            if (taken + next > maxWordBytes)
                break;
        }
        out += opening;
        appendBase64(out, rest.substr(0, taken));
        out += closing;
        out += '\n';
        rest.remove_prefix(taken);
        if (!rest.empty())
            out += ' ';
        used = 1;
    }
}

void appendBody(std::string &out, std::string_view body)
{
    constexpr std::size_t bytesPerLine = 57; // 76 base64 digits
    for (; !body.empty(); body.remove_prefix(std::min(bytesPerLine, body.size()))) {
        appendBase64(out, body.substr(0, bytesPerLine));
        out += '\n';
    }
}

bool isLocalPart(std::string_view name) noexcept
{
    if (name.empty() || name.size() > 64 || name.starts_with('.') || name.ends_with('.') || name.starts_with('-')
        || name.find("..") != std::string_view::npos)
        return false;
    return std::ranges::all_of(
        name, [](char c) { return isLetterOrDigit(c) || std::string_view("._+-'").find(c) != std::string_view::npos; });
}

bool isLabel(std::string_view label) noexcept
{
    return !label.empty() && label.size() <= 63 && !label.starts_with('-') && !label.ends_with('-')
        && std::ranges::all_of(label, [](char c) { return isLetterOrDigit(c) || c == '-'; });
}

} // namespace

bool isMailAddress(std::string_view text) noexcept
{
    const std::size_t at = text.find('@');
    if (text.size() > 254 || at == std::string_view::npos || !isLocalPart(text.substr(0, at)))
        return false;
    std::string_view host = text.substr(at + 1);
    for (;;) {
        const std::size_t dot = host.find('.');
        if (!isLabel(host.substr(0, dot)))
            return false;
        if (dot == std::string_view::npos)
            return true;
        host.remove_prefix(dot + 1);
    }
}

std::optional<std::string> composeMail(const MailMessage &message)
{
    if (!isMailAddress(message.to))
        return std::nullopt;
    std::string out;
    out.reserve(message.html.size() / 3 * 4 + message.html.size() / 57 + 2 * message.subject.size() + 512);
    out += "To: " + message.to + '\n';
    appendTextField(out, "Subject", headerText(message.subject));
    out += "MIME-Version: 1.0\n"
           "Content-Type: text/html; charset=utf-8\n"
           "Content-Transfer-Encoding: base64\n"
           "\n";
    appendBody(out, validText(message.html));
    return out;
}

} // namespace TQFoundation
