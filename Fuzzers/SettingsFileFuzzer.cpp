// Arbitrary bytes as a settings file, with QSettings as the oracle. A file that the library allows to be rewritten
// keeps every entry and value. A file that QSettings wrote is allowed, unless QSettings reads it differently itself.

#include "Require.h"
#include "SettingsFile.h"

#include <QtCore/qdatastream.h>
#include <QtCore/qfile.h>
#include <QtCore/qsettings.h>
#include <QtCore/qtemporarydir.h>
#include <QtCore/qvariant.h>
#include <QtGui/qguiapplication.h>

#include <algorithm>
#include <cstdint>
#include <utility>

using TQFoundation::canRewriteSettingsFile;
using TQFoundation::Fuzzing::require;

namespace {

const QString flag = QStringLiteral("KeyOfDidShowGuide");

QByteArray streamed(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

bool isList(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
}

// Some types have no equality, a NaN is not equal to itself, and the order of a hash is random. QSettings reads some
// lists of texts as lists of values.
bool areSame(const QVariant &one, const QVariant &other)
{
    if (isList(one) && isList(other)) {
        const QVariantList ones = one.toList();
        const QVariantList others = other.toList();
        return std::ranges::equal(ones, others,
                                  [](const auto &left, const auto &right) { return areSame(left, right); });
    }
    return one.typeId() == other.typeId() && (streamed(one) == streamed(other) || one == other);
}

bool areSame(const QVariantMap &ones, const QVariantMap &others)
{
    return ones.keys() == others.keys()
        && std::equal(ones.begin(), ones.end(), others.begin(),
                      [](const QVariant &one, const QVariant &other) { return areSame(one, other); });
}

/// A settings file with a name of its own, because QSettings parses a file once per process.
class File
{
public:
    explicit File(const QByteArray &content)
    {
        QFile file(m_path);
        require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;
    ~File() { QFile::remove(m_path); }

    QByteArray content() const
    {
        QFile file(m_path);
        require(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    /// All values, and whether there was no error.
    std::pair<QVariantMap, bool> read() const
    {
        const QSettings settings(m_path, QSettings::IniFormat);
        QVariantMap values;
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys)
            values.insert(key, settings.value(key));
        return {values, settings.status() == QSettings::NoError};
    }

    /// Stores the flag.
    void rewrite() const
    {
        QSettings settings(m_path, QSettings::IniFormat);
        settings.setValue(flag, true);
        settings.sync();
    }

private:
    static QString newPath()
    {
        static const QTemporaryDir folder;
        static quint64 count = 0;
        return folder.filePath(QString::number(++count) + u".ini");
    }

    const QString m_path = newPath();
};

// The lines of entries, counted without their syntax.
qsizetype entryCount(const QByteArray &content)
{
    const QList<QByteArray> lines = QByteArray(content).replace('\r', '\n').split('\n');
    return std::ranges::count_if(
        lines, [](const QByteArray &line) { return !line.trimmed().isEmpty() && !line.trimmed().startsWith('['); });
}

// Whether an application can store the values: no key has an empty part, and every type can be streamed.
bool canBeStored(const QVariantMap &values)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << values;
    const QStringList keys = values.keys();
    return stream.status() == QDataStream::Ok
        && std::ranges::none_of(keys, [](const QString &key) { return key.split(u'/').contains(QString()); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Some types that a file may hold, such as pictures, need the application object.
    static int count = 1;
    static char name[] = "Fuzzer";
    static char *arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments);

    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const bool isAllowed = canRewriteSettingsFile(content);
    auto [values, isWhole] = File(content).read();
    require(!isAllowed || (isWhole && values.size() == entryCount(content)));

    const File once(content);
    once.rewrite();
    const QVariantMap kept = File(once.content()).read().first;
    values.insert(flag, QStringLiteral("true"));
    require(!isAllowed || areSame(values, kept));

    const File twice(once.content());
    twice.rewrite();
    const bool isStable = twice.content() == once.content();
    require(!isStable || !canBeStored(kept) || canRewriteSettingsFile(once.content()));
    return 0;
}
