// Arbitrary bytes as a settings file, with QSettings as the oracle. Setting the flag keeps every other entry and value.
// It has an effect unless the flag is in the file already, and always in a file that QSettings wrote.

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

using TQFoundation::settingsFileWith;
using TQFoundation::Fuzzing::require;

namespace {

const QByteArray flagKey = "KeyOfDidShowGuide";
const QString flag = QString::fromLatin1(flagKey);

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

    QVariantMap read() const
    {
        const QSettings settings(m_path, QSettings::IniFormat);
        QVariantMap values;
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys) {
            // QSettings asks for another key than one with empty parts.
            if (!key.split(u'/').contains(QString()))
                values.insert(key, settings.value(key));
        }
        return values;
    }

    /// Lets QSettings write the file and the flag.
    void rewrite() const
    {
        QSettings settings(m_path, QSettings::IniFormat);
        settings.setValue(flag, false);
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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Some types that a file may hold, such as pictures, need the application object.
    static int count = 1;
    static char name[] = "Fuzzer";
    static char *arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments);

    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    // Qt may ask for any amount of memory to read these types.
    if (content.contains("Variant(") || content.contains("DateTime("))
        return -1;
    // QSettings drops blanks before a name, except before the first one behind a byte order mark.
    if (content.startsWith("\xEF\xBB\xBF ") || content.startsWith("\xEF\xBB\xBF\t"))
        return -1;
    QVariantMap values = File(content).read();
    QVariantMap changed = File(settingsFileWith(content, flagKey, true)).read();
    const bool isText = !content.contains('\0') && !content.startsWith("\xEF\xBB\xBF\xEF\xBB\xBF");
    require(!isText || values.contains(flag) || changed.value(flag) == QStringLiteral("true"));
    values.remove(flag);
    changed.remove(flag);
    require(areSame(values, changed));

    const File written(content);
    written.rewrite();
    require(File(settingsFileWith(written.content(), flagKey, true)).read().value(flag) == QStringLiteral("true"));
    return 0;
}
