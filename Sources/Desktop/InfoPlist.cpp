#include "InfoPlist.h"

#include <QtCore/qdatetime.h>
#include <QtCore/qxmlstream.h>

#include <optional>

namespace TQFoundation {
namespace {

constexpr int maximumDepth = 64;

std::optional<QVariant> readValue(QXmlStreamReader &xml, int depth);

// Moves to the next child element. False at the parent's end; raises an error at stray text.
bool nextElement(QXmlStreamReader &xml)
{
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::EndElement:
            return false;
        case QXmlStreamReader::Characters:
            if (!xml.isWhitespace())
                xml.raiseError();
            break;
        case QXmlStreamReader::EntityReference:
            xml.raiseError();
            break;
        default:
            break;
        }
    }
    return false;
}

std::optional<QVariant> readDictionary(QXmlStreamReader &xml, int depth)
{
    QVariantMap dictionary;
    while (nextElement(xml)) {
        if (xml.name() != u"key")
            return std::nullopt;
        const QString key = xml.readElementText();
        if (!nextElement(xml))
            return std::nullopt;
        auto value = readValue(xml, depth);
        if (!value)
            return std::nullopt;
        dictionary.insert(key, *std::move(value));
    }
    return dictionary;
}

std::optional<QVariant> readArray(QXmlStreamReader &xml, int depth)
{
    QVariantList array;
    while (nextElement(xml)) {
        auto value = readValue(xml, depth);
        if (!value)
            return std::nullopt;
        array.append(*std::move(value));
    }
    return array;
}

std::optional<QVariant> readBoolean(QXmlStreamReader &xml, bool value)
{
    if (!xml.readElementText().trimmed().isEmpty())
        return std::nullopt;
    return value;
}

template <typename Number>
std::optional<QVariant> numberOf(Number number, bool parsed)
{
    return parsed ? std::optional<QVariant>(number) : std::nullopt;
}

// Reads the current element to its end.
std::optional<QVariant> readValue(QXmlStreamReader &xml, int depth)
{
    if (depth >= maximumDepth)
        return std::nullopt;
    const QString type = xml.name().toString();
    if (type == u"dict")
        return readDictionary(xml, depth + 1);
    if (type == u"array")
        return readArray(xml, depth + 1);
    if (type == u"true" || type == u"false")
        return readBoolean(xml, type == u"true");

    const QString text = xml.readElementText();
    if (type == u"string")
        return text;
    bool parsed = false;
    if (type == u"integer") {
        const qlonglong number = text.trimmed().toLongLong(&parsed, 0);
        return numberOf(number, parsed);
    }
    if (type == u"real") {
        const double number = text.trimmed().toDouble(&parsed);
        return numberOf(number, parsed);
    }
    if (type == u"date") {
        const QDateTime date = QDateTime::fromString(text.trimmed(), Qt::ISODate);
        return date.isValid() ? std::optional<QVariant>(date) : std::nullopt;
    }
    if (type == u"data")
        return QByteArray::fromBase64(text.toLatin1());
    return std::nullopt;
}

std::optional<QVariant> readDocument(QXmlStreamReader &xml)
{
    while (!xml.atEnd() && !xml.isStartElement()) {
        xml.readNext();
        // Property lists need no entities, and a few bytes of them can expand to gigabytes.
        if (xml.isDTD() && !xml.entityDeclarations().isEmpty())
            return std::nullopt;
    }
    if (xml.name() != u"plist" || !nextElement(xml))
        return std::nullopt;
    auto root = readValue(xml, 0);
    if (nextElement(xml))
        return std::nullopt;
    while (!xml.atEnd())
        xml.readNext();
    return root;
}

} // namespace

QVariantMap parseInfoPlist(const QByteArray &xml)
{
    if (xml.size() > largestInfoPlist)
        return {};
    QXmlStreamReader reader(xml);
    const auto root = readDocument(reader);
    if (!root || reader.hasError())
        return {};
    return root->toMap();
}

} // namespace TQFoundation
