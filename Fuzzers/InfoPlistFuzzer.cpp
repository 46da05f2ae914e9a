// Arbitrary bytes as a host's property list. The values have only the documented types, and are the same if they are
// serialised and parsed again.

#include "InfoPlist.h"
#include "Require.h"

#include <QtCore/qdatetime.h>

#include <cmath>
#include <cstdint>

using TQFoundation::parseInfoPlist;
using TQFoundation::Fuzzing::require;

namespace {

QByteArray escaped(const QString &text)
{
    QString safe = text.toHtmlEscaped();
    // XML readers turn an unescaped carriage return into a line feed.
    return safe.replace(u'\r', QStringLiteral("&#13;")).toUtf8();
}

QByteArray serialised(const QVariant &value);

QByteArray serialised(const QVariantMap &dictionary)
{
    QByteArray xml = "<dict>";
    for (auto entry = dictionary.begin(); entry != dictionary.end(); ++entry)
        xml += "<key>" + escaped(entry.key()) + "</key>" + serialised(entry.value());
    return xml + "</dict>";
}

QByteArray serialised(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return "<string>" + escaped(value.toString()) + "</string>";
    case QMetaType::LongLong:
        return "<integer>" + QByteArray::number(value.toLongLong()) + "</integer>";
    case QMetaType::Double:
        return "<real>" + QByteArray::number(value.toDouble(), 'g', 17) + "</real>";
    case QMetaType::Bool:
        return value.toBool() ? "<true/>" : "<false/>";
    case QMetaType::QByteArray:
        return "<data>" + value.toByteArray().toBase64() + "</data>";
    case QMetaType::QDateTime:
        require(value.toDateTime().isValid());
        return "<date>2001-02-03T04:05:06Z</date>";
    case QMetaType::QVariantList: {
        QByteArray xml = "<array>";
        const QVariantList values = value.toList();
        for (const QVariant &element : values)
            xml += serialised(element);
        return xml + "</array>";
    }
    case QMetaType::QVariantMap:
        return serialised(value.toMap());
    default:
        require(false);
        return {};
    }
}

bool areSame(const QVariant &one, const QVariant &other)
{
    if (one.typeId() != other.typeId())
        return false;
    switch (one.typeId()) {
    case QMetaType::QDateTime:
        return true;
    case QMetaType::Double:
        return one.toDouble() == other.toDouble() || (std::isnan(one.toDouble()) && std::isnan(other.toDouble()));
    case QMetaType::QVariantList: {
        const QVariantList ones = one.toList();
        const QVariantList others = other.toList();
        return std::equal(ones.begin(), ones.end(), others.begin(), others.end(), areSame);
    }
    case QMetaType::QVariantMap: {
        const QVariantMap ones = one.toMap();
        const QVariantMap others = other.toMap();
        return ones.keys() == others.keys()
            && std::equal(ones.begin(), ones.end(), others.begin(), others.end(), areSame);
    }
    default:
        return one == other;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray xml(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QVariantMap read = parseInfoPlist(xml);
    require(areSame(read, parseInfoPlist(xml)));
    if (!read.isEmpty()) {
        const QByteArray again = "<plist>" + serialised(read) + "</plist>";
        require(again.size() > TQFoundation::largestInfoPlist || areSame(read, parseInfoPlist(again)));
    }
    return 0;
}
