#include "SettingsFile.h"

#include <QtCore/qstringbuilder.h>

#include <algorithm>

namespace TQFoundation {
namespace {

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

// Whether QSettings reads the next line as part of this one: a quote is open, or the line break is escaped.
bool isContinued(QByteArrayView line)
{
    bool isInQuotes = false;
    for (qsizetype index = 0; index < line.size(); ++index) {
        if (line[index] == '"')
            isInQuotes = !isInQuotes;
        else if (line[index] == '\\' && ++index == line.size())
            return true;
    }
    return isInQuotes && !line.startsWith(';');
}

} // namespace

QByteArray settingsFileWith(const QByteArray &content, const QByteArray &key, bool value)
{
    const QByteArray prefix = key + '=';
    const QByteArray entry = prefix + (value ? "true" : "false");
    const qsizetype begin = content.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
    // The first name may begin with another byte order mark, which QSettings would drop in any other line.
    if (content.contains('\0') || content.sliced(begin).startsWith(byteOrderMark))
        return content;
    QByteArrayView old; // the last line of the key, which counts
    bool isInGroup = false;
    for (QByteArrayView rest = QByteArrayView(content).sliced(begin); !rest.isEmpty();) {
        const auto *const newline = std::ranges::find_first_of(rest, QByteArrayView("\n\r"));
        const QByteArrayView line = rest.first(newline - rest.begin());
        if (isContinued(line))
            break;
        if (line.startsWith('['))
            isInGroup = line != QByteArrayView("[General]");
        else if (!isInGroup && line.startsWith(prefix))
            old = line;
        rest = rest.sliced(std::min(line.size() + 1, rest.size()));
    }
    QByteArray changed = content;
    return old.isEmpty() ? changed.insert(begin, QByteArray(entry + '\n'))
                         : changed.replace(old.begin() - content.begin(), old.size(), entry);
}

} // namespace TQFoundation
