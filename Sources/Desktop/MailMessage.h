#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace TQFoundation {

/// One mail to one person, as plain values in UTF-8. All of it may come from outside.
struct MailMessage
{
    std::string to; ///< the recipient's address
    std::string subject;
    std::string html; ///< the body, a text of the type text/html
};

/// Whether \a text is one plain address "name@host" and nothing else: a name of 1 to 64 letters, digits and ". _ + -
/// '", a host of labels as RFC 1123 allows them, 254 characters at most, all of them ASCII. Stricter than RFC 5322 on
/// purpose: no quotes, comments, routes, or characters that a mail program could take for an option or a command. Any
/// thread.
bool isMailAddress(std::string_view text) noexcept;

/// The message as RFC 5322 and MIME write it and as a sendmail program reads it: lines end in "\n", none is longer than
/// 78 bytes before that (unless an address makes it so), and all is ASCII.
///
/// Who sends it and when, the program adds, which knows the user's address. There is exactly one recipient: nothing
/// where `to` is no address by isMailAddress(). In headers every control character and line separator becomes a blank;
/// what is no valid UTF-8 becomes U+FFFD everywhere; all else arrives byte for byte. Any thread.
std::optional<std::string> composeMail(const MailMessage &message);

} // namespace TQFoundation
