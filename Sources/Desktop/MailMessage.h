#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace TQFoundation {

/// One mail to one recipient, as UTF-8 texts. None of them is trusted: composeMail() checks and encodes them.
struct MailMessage
{
    std::string to; ///< the recipient's address
    std::string subject;
    std::string html; ///< the body, of the media type text/html
};

/// Whether \a text is one plain address "name@host": a name of 1 to 64 letters, digits and ". _ + - '", a host of
/// labels as in RFC 1123, all ASCII, at most 254 characters. Stricter than RFC 5322 on purpose: quotes, comments,
/// routes, and characters that a mail program could take for an option or a command are rejected. Any thread.
bool isMailAddress(std::string_view text) noexcept;

/// The message in the format of RFC 5322 and MIME, as input for a sendmail program. Lines end in "\n" and have at most
/// 78 bytes, except for one with a longer address. All of it is ASCII.
///
/// Sender and date are missing, because the mail program adds them. `std::nullopt` if `to` fails isMailAddress(). In
/// the subject, control characters and line separators become blanks. Invalid UTF-8 becomes U+FFFD, one for each byte;
/// all other text is preserved byte for byte. Any thread.
std::optional<std::string> composeMail(const MailMessage &message);

} // namespace TQFoundation
