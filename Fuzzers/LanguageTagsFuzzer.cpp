// Fuzz target for tableNames(): arbitrary lines as language tags. Each name is valid and unique, and the names of the
// first tag come first.

#include "LanguageTags.h"
#include "Require.h"

#include <algorithm>
#include <cstdint>

using TQFoundation::tableNames;
using TQFoundation::Fuzzing::require;

namespace {

bool isName(const QString &name)
{
    const auto isLetterOrDigit = [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
    };
    const QStringList parts = name.split(u'_');
    return parts.size() <= 2 && std::ranges::all_of(parts, [&](const QString &part) {
               return part.size() >= 2 && std::ranges::all_of(part, isLetterOrDigit);
           });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QStringList tags = text.split(u'\n');
    const QStringList names = tableNames(tags);
    require(QStringList(names).removeDuplicates() == 0);
    require(std::ranges::all_of(names, isName));
    require(names.size() <= 3 * tags.size());
    const QStringList first = tableNames({tags.first()});
    require(names.first(first.size()) == first);
    return 0;
}
