#include "SettingsFile.h"

#include <QtCore/qdatastream.h>
#include <QtCore/qhashfunctions.h>
#include <QtCore/qiodevice.h>
#include <QtCore/qstringconverter.h>
#include <QtCore/qvariant.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

namespace TQFoundation {
namespace {

QStringView trimmedBlanks(QStringView text)
{
    const auto isBlank = [](QChar character) { return character == u' ' || character == u'\t'; };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

bool isHexDigit(QChar character)
{
    return (character >= u'0' && character <= u'9') || (character >= u'A' && character <= u'F')
        || (character >= u'a' && character <= u'f');
}

// Appends the name of a group or key with "/" between its parts. QSettings writes "%" and two or "%U" and four digits
// for characters other than letters and digits; others that it can read are accepted too. False for names that it
// would change: it drops empty parts.
bool appendName(QStringView text, std::u16string &key)
{
    key.reserve(key.size() + static_cast<std::size_t>(text.size()) + 1);
    for (qsizetype next = 0; next < text.size(); ++next) {
        QChar character = text[next];
        if (character < u' ' || character > u'~' || character == u'"' || character == u';')
            return false;
        if (character == u'\\') {
            character = u'/';
        } else if (character == u'%') {
            const bool isLong = text.sliced(next + 1).startsWith(u'U');
            const QStringView digits = text.mid(next + (isLong ? 2 : 1), isLong ? 4 : 2);
            if (digits.size() != (isLong ? 4 : 2) || !std::ranges::all_of(digits, isHexDigit))
                return false;
            character = QChar(digits.toUShort(nullptr, 16));
            next += isLong ? 5 : 2;
        }
        if (character == u'/' && (key.empty() || key.back() == u'/'))
            return false;
        key += character.unicode();
    }
    return !key.empty() && key.back() != u'/';
}

// Removes an escape code, without its backslash, from the start of the text. QSettings drops unknown codes.
std::optional<QChar> takeEscape(QStringView &text)
{
    static constexpr QStringView codes = u"abfnrtv\"?'\\";
    static constexpr QStringView characters = u"\a\b\f\n\r\t\v\"?'\\";
    if (text.isEmpty())
        return std::nullopt;
    const QChar code = text.front();
    text = text.sliced(1);
    if (const qsizetype index = codes.indexOf(code); index >= 0)
        return characters[index];
    qsizetype digits = 0;
    while (digits < text.size() && isHexDigit(text[digits]))
        ++digits;
    if (code == u'0' && digits == 0)
        return QChar(u'\0');
    if (code != u'x' || digits == 0 || digits > 4)
        return std::nullopt;
    const QChar character(text.first(digits).toUShort(nullptr, 16));
    text = text.sliced(digits);
    return character;
}

// The end of the first element of a list; nothing if a quote is not closed.
std::optional<qsizetype> elementEnd(QStringView text)
{
    bool isInQuotes = false;
    for (qsizetype end = 0; end < text.size(); ++end) {
        if (text[end] == u'\\')
            ++end;
        else if (text[end] == u'"')
            isInQuotes = !isInQuotes;
        else if (text[end] == u',' && !isInQuotes)
            return end;
    }
    return isInQuotes ? std::nullopt : std::optional(text.size());
}

// The text of one element. QSettings loses a byte order mark unless other text comes before it in the line.
std::optional<QString> parseElement(QStringView element, bool &isAfterText)
{
    const bool isQuoted = element.size() > 1 && element.startsWith(u'"') && element.endsWith(u'"');
    if (isQuoted)
        element = element.sliced(1).chopped(1);
    const auto isReadable = [isQuoted](QChar c) { return c >= u' ' && c != u'"' && (c != u';' || isQuoted); };
    QString text;
    for (;;) {
        const qsizetype backslash = element.indexOf(u'\\');
        const QStringView plain = element.first(backslash < 0 ? element.size() : backslash);
        if (!std::ranges::all_of(plain, isReadable) || (plain.startsWith(QChar::ByteOrderMark) && !isAfterText))
            return std::nullopt;
        isAfterText = isAfterText || !plain.isEmpty();
        text += plain;
        if (backslash < 0)
            return text.isValidUtf16() ? std::optional(text) : std::nullopt;
        element = element.sliced(backslash + 1);
        const auto escaped = takeEscape(element);
        if (!escaped || (*escaped == QChar::ByteOrderMark && !isAfterText))
            return std::nullopt;
        // QSettings writes such characters without an escape.
        isAfterText = isAfterText || *escaped >= QChar(0x80);
        text += *escaped;
    }
}

// The types that QSettings writes as text. It writes all others with QDataStream.
constexpr std::array textTypes{
    QMetaType::UnknownType, QMetaType::QByteArray, QMetaType::QString, QMetaType::QKeySequence, QMetaType::Bool,
    QMetaType::LongLong,    QMetaType::ULongLong,  QMetaType::Int,     QMetaType::UInt,         QMetaType::Double,
    QMetaType::QRect,       QMetaType::QSize,      QMetaType::QPoint};

// Lists are written as text too, except for nested lists and lists of one value.
bool isWrittenAsText(const QVariant &value, bool isInList)
{
    const bool isList = value.typeId() == QMetaType::QStringList
        || (value.typeId() == QMetaType::QVariantList && value.toList().size() != 1);
    return std::ranges::count(textTypes, value.typeId()) > 0 || (isList && !isInList);
}

QVariant readStreamed(const QByteArray &bytes, QDataStream::Version version)
{
    QVariant value;
    QDataStream stream(bytes);
    stream.setVersion(version);
    stream >> value;
    return stream.status() == QDataStream::Ok ? value : QVariant();
}

// Whether a value that QDataStream wrote is the same after reading and writing it. It is lost if its type is not
// registered in this process.
bool canRewriteStreamed(const QByteArray &bytes, QDataStream::Version version, bool isInList)
{
    const QVariant value = readStreamed(bytes, version);
    if (isWrittenAsText(value, isInList))
        return false;
    QByteArray written;
    QDataStream stream(&written, QIODevice::WriteOnly);
    version = value.typeId() == QMetaType::QDateTime ? QDataStream::Qt_5_6 : QDataStream::Qt_4_0;
    stream.setVersion(version);
    stream << value;
    // Some types have no operator==, and the bytes of a hash have a random order.
    return written == bytes || readStreamed(written, version) == value;
}

bool areIntegers(QStringView text, qsizetype count)
{
    const auto numbers = text.split(u' ');
    return numbers.size() == count
        && std::ranges::all_of(numbers, [](QStringView number) { return number == QString::number(number.toInt()); });
}

// Whether QSettings would write the decoded text again: "@" begins its own forms, and "@@" any other text.
bool canRewriteText(const QString &text, bool isInList)
{
    if (!text.startsWith(u'@') || text.startsWith(u"@@"))
        return true;
    const qsizetype end = text.indexOf(u'(') + 1;
    if (end == 0 || !text.endsWith(u')'))
        return false;
    const QStringView type = QStringView(text).first(end);
    const QStringView argument = QStringView(text).sliced(end).chopped(1);
    const bool isLatin1 = std::ranges::all_of(argument, [](QChar character) { return character <= QChar(0xFF); });
    if (type == u"@ByteArray(")
        return isLatin1;
    if (type == u"@Variant(")
        return isLatin1 && canRewriteStreamed(argument.toLatin1(), QDataStream::Qt_4_0, isInList);
    if (type == u"@DateTime(")
        return isLatin1 && canRewriteStreamed(argument.toLatin1(), QDataStream::Qt_5_6, isInList);
    if (type == u"@Rect(")
        return areIntegers(argument, 4);
    if (type == u"@Size(" || type == u"@Point(")
        return areIntegers(argument, 2);
    return type == u"@String(" || text == u"@Invalid()";
}

bool canRewriteValue(QStringView value)
{
    bool isAfterText = false;
    for (bool isInList = false;;) {
        const auto end = elementEnd(value);
        if (!end)
            return false;
        isInList = isInList || *end < value.size();
        const auto text = parseElement(trimmedBlanks(value.first(*end)), isAfterText);
        if (!text || !canRewriteText(*text, isInList))
            return false;
        if (*end == value.size())
            return true;
        value = value.sliced(*end + 1);
    }
}

// The prefix of the keys below a line "[name]".
std::optional<std::u16string> parseGroup(QStringView line)
{
    if (line.indexOf(u']') != line.size() - 1)
        return std::nullopt;
    const QStringView name = trimmedBlanks(line.sliced(1).chopped(1));
    std::u16string group;
    if (name.compare(u"General", Qt::CaseInsensitive) == 0)
        return group;
    if (name == u"%General")
        return u"General/";
    return appendName(name, group) ? std::optional(group + u'/') : std::nullopt;
}

// Whether QSettings can rewrite the line of one key, which is appended to \a keys as a hash.
bool canRewriteEntry(QStringView line, const std::u16string &group, std::vector<std::size_t> &keys)
{
    const qsizetype equals = line.indexOf(u'=');
    std::u16string key = group;
    // In other programs, a line that begins with "#" is a comment.
    if (equals < 0 || line.startsWith(u'#') || !appendName(trimmedBlanks(line.first(equals)), key))
        return false;
    // A group that is called "general" in another case is renamed.
    const QStringView name(key);
    if (name.startsWith(u"general/", Qt::CaseInsensitive) && !name.startsWith(u"General/"))
        return false;
#ifdef Q_OS_WIN
    keys.push_back(qHash(name.toString().toLower()));
#else
    keys.push_back(qHash(name));
#endif
    return canRewriteValue(line.sliced(equals + 1));
}

} // namespace

bool canRewriteSettingsFile(const QByteArray &content)
{
    QStringDecoder decode(QStringDecoder::Utf8,
                          QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decode(content);
    if (decode.hasError())
        return false;
    text.replace(u'\r', u'\n');
    std::vector<std::size_t> keys;
    std::u16string group;
    for (QStringView rest = text; !rest.isEmpty();) {
        const qsizetype end = rest.indexOf(u'\n');
        const QStringView line = trimmedBlanks(rest.first(end < 0 ? rest.size() : end));
        rest = rest.sliced(end < 0 ? rest.size() : end + 1);
        if (line.startsWith(u'[')) {
            const auto next = parseGroup(line);
            if (!next)
                return false;
            group = *next;
        } else if (!line.isEmpty() && !canRewriteEntry(line, group, keys)) {
            return false;
        }
    }
    // Only the last value of a repeated key is kept.
    std::ranges::sort(keys);
    return std::ranges::adjacent_find(keys) == keys.end();
}

} // namespace TQFoundation
