// Fuzz target for urlFromString(): arbitrary UTF-16 as a link. The encoded form of a URL is printable ASCII without
// blanks, and parses to the same URL.

#include "Require.h"
#include "Url.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

using TQFoundation::urlFromString;
using TQFoundation::Fuzzing::require;

namespace {

void check(const QString &text)
{
    const auto url = urlFromString(text);
    if (!url)
        return;
    require(url->isValid() && !url->isEmpty());
    const QByteArray encoded = url->toEncoded();
    require(!encoded.isEmpty() && std::ranges::all_of(encoded, [](char c) { return c > 0x20 && c < 0x7F; }));
    const auto again = urlFromString(QString::fromLatin1(encoded));
    require(again && again->toEncoded() == encoded);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    check(QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    // Lone surrogates and other text that UTF-8 cannot encode.
    QString text(static_cast<qsizetype>(size / 2), u'\0');
    if (size >= 2)
        std::memcpy(text.data(), data, size / 2 * 2);
    check(text);
    return 0;
}
