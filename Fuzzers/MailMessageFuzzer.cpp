// Composes mails of arbitrary texts and parses them by RFC 5322, RFC 2047 and RFC 4648: there is exactly one recipient
// and one of each header, and subject and body equal the input.

#include "MailMessage.h"
#include "Require.h"

#include <algorithm>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <map>
#include <string>
#include <string_view>
#include <vector>

using TQFoundation::composeMail;
using TQFoundation::MailMessage;
using TQFoundation::Fuzzing::require;

namespace {

std::string decodedBase64(std::string_view text)
{
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    require(text.size() % 4 == 0);
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); at += 4) {
        const std::string_view group = text.substr(at, 4);
        const std::size_t present = std::min(group.find('='), group.size());
        require(present >= 2 && (present == 4 || at + 4 == text.size()));
        std::uint32_t bits = 0;
        for (std::size_t digit = 0; digit < 4; ++digit) {
            const std::size_t value = digit < present ? digits.find(group[digit]) : 0;
            require(value < digits.size() && (digit < present || group[digit] == '='));
            bits = bits << 6 | static_cast<std::uint32_t>(value);
        }
        for (std::size_t byte = 0; byte + 1 < present; ++byte)
            bytes += static_cast<char>(bits >> (16 - 8 * byte) & 0xFF);
    }
    return bytes;
}

// The code points of text, with U+FFFD for each invalid byte.
std::vector<char32_t> codePoints(std::string_view text)
{
    std::vector<char32_t> points;
    for (std::size_t at = 0; at < text.size();) {
        const auto byte = [&](std::size_t offset) -> std::uint32_t {
            return at + offset < text.size() ? static_cast<std::uint8_t>(text[at + offset]) : 0U;
        };
        const std::size_t length = byte(0) < 0x80 ? 1
            : byte(0) >> 5 == 6                   ? 2
            : byte(0) >> 4 == 14                  ? 3
            : byte(0) >> 3 == 30                  ? 4
                                                  : 0;
        char32_t point = byte(0) & (length == 1 ? 0x7FU : 0x7FU >> length);
        bool isComplete = length > 0;
        for (std::size_t offset = 1; offset < length; ++offset) {
            isComplete = isComplete && byte(offset) >> 6 == 2;
            point = point << 6 | (byte(offset) & 0x3FU);
        }
        constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
        isComplete = isComplete && point >= smallest[length] && point <= 0x10FFFF && (point < 0xD800 || point > 0xDFFF);
        points.push_back(isComplete ? point : U'\uFFFD');
        at += isComplete ? length : 1;
    }
    return points;
}

// Whether text is valid UTF-8: U+FFFD takes three bytes, so replacing an invalid byte would change the size.
bool isValid(std::string_view text)
{
    std::size_t size = 0;
    const std::vector<char32_t> points = codePoints(text);
    for (const char32_t point : points)
        size += point < 0x80 ? 1 : point < 0x800 ? 2 : point < 0x10000 ? 3 : 4;
    return size == text.size();
}

// The expected code points of a header.
std::vector<char32_t> headerText(std::string_view text)
{
    std::vector<char32_t> points = codePoints(text);
    std::ranges::replace_if(
        points, [](char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == U'\u2028' || c == U'\u2029'; },
        U' ');
    return points;
}

std::string decodedWords(std::string_view value)
{
    constexpr std::string_view opening = "=?UTF-8?B?";
    if (!value.starts_with(opening))
        return std::string(value);
    std::string text;
    for (;;) {
        const std::size_t end = value.find("?=", opening.size());
        require(value.starts_with(opening) && end != std::string_view::npos && end + 2 <= 75);
        const std::string word = decodedBase64(value.substr(opening.size(), end - opening.size()));
        require(isValid(word)); // no code point is split
        text += word;
        value.remove_prefix(end + 2);
        if (value.empty())
            return text;
        require(value.front() == ' ');
        value.remove_prefix(1);
    }
}

struct ParsedMail
{
    std::multimap<std::string, std::string> headers;
    std::string encodedBody;
};

ParsedMail parsed(std::string_view message)
{
    require(std::ranges::all_of(message, [](char c) { return c == '\n' || (c >= 0x20 && c < 0x7F); }));
    const auto nextLine = [&message] {
        const std::size_t end = message.find('\n');
        require(end != std::string_view::npos);
        const std::string line(message.substr(0, end));
        message.remove_prefix(end + 1);
        return line;
    };
    ParsedMail mail;
    auto last = mail.headers.end();
    for (std::string line = nextLine(); !line.empty(); line = nextLine()) {
        require(line.size() <= 998);
        if (line.front() == ' ') {
            require(last != mail.headers.end() && line.size() <= 76);
            last->second += line;
            continue;
        }
        const std::size_t colon = line.find(": ");
        require(colon != std::string::npos);
        last = mail.headers.emplace(line.substr(0, colon), line.substr(colon + 2));
    }
    while (!message.empty()) {
        const std::string line = nextLine();
        require(!line.empty() && line.size() <= 76);
        mail.encodedBody += line;
    }
    return mail;
}

void check(const MailMessage &mail)
{
    const auto composed = composeMail(mail);
    if (!composed)
        return;
    const auto [headers, encodedBody] = parsed(*composed);
    require(headers.size() == 5);
    for (const char *name : {"To", "Subject", "MIME-Version", "Content-Type", "Content-Transfer-Encoding"})
        require(headers.count(name) == 1);
    require(headers.find("To")->second == mail.to);
    require(std::ranges::count(mail.to, '@') == 1);
    require(mail.to.find_first_of(" ,;:<>()[]\\\"\r\n\t") == std::string::npos && mail.to.front() != '-');
    require(codePoints(decodedWords(headers.find("Subject")->second)) == headerText(mail.subject));
    const std::string body = decodedBase64(encodedBody);
    require(codePoints(body) == codePoints(mail.html));
    if (isValid(mail.html))
        require(body == mail.html);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const bool isOrdinary = data.ConsumeBool();
    MailMessage mail;
    mail.to = isOrdinary ? "support@tqstudio.example" : data.ConsumeRandomLengthString(300);
    mail.subject = data.ConsumeRandomLengthString(2000);
    mail.html = data.ConsumeRemainingBytesAsString();
    check(mail);
    return 0;
}
