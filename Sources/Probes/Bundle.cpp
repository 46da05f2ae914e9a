#include "Bundle.h"

#include "LanguageTags.h"
#include "TQFoundation/Platform.h"
#include "Url.h"

#include <QtCore/qfile.h>
#include <QtCore/qlocale.h>
#include <QtCore/qmutex.h>
#include <QtCore/qtranslator.h>
#include <QtGui/qimagereader.h>

#include <map>

namespace TQFoundation {
namespace {

void load(QTranslator &table, const QString &root)
{
    static const QStringList names = tableNames(QLocale().uiLanguages());
    for (const QString &name : names) {
        const QString path = root + u"/Translations/TQFoundation_" + name + u".qm";
        // Without this check QTranslator would shorten the name until it finds some file.
        if (QFile::exists(path) && table.load(path))
            return;
    }
}

QString lookUp(const QString &root, const char *context, const char *text)
{
    // Held during the look-up, because newer QTranslators find nothing while another thread translates with them.
    static QMutex mutex;
    // Never destroyed, because other threads may translate while the process exits.
    static auto &tables = *new std::map<QString, QTranslator>;
    const QMutexLocker lock(&mutex);
    const auto [entry, isNew] = tables.try_emplace(root);
    if (isNew)
        load(entry->second, root);
    return entry->second.translate(context, text);
}

QString translated(const QString &root, const char *context, const QString &key)
{
    // QTranslator takes a C string and would look up the part before a NUL; UTF-8 may leave out half a character.
    if (key.contains(QChar::Null) || !key.isValidUtf16())
        return key;
    const QString entry = lookUp(root, context, key.toUtf8().constData());
    return entry.isNull() ? key : entry;
}

QImage readPng(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // Detection would load the plugins of all other formats.
    QImageReader reader(&file, "png");
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

} // namespace

QImage Bundle::image(const QString &name, int side) const
{
    for (const int stored : {36, 72, 108}) {
        if (stored % side != 0)
            continue;
        if (QImage image = readPng(imagePath(QString::number(stored) + u'/' + name)); !image.isNull())
            return image;
    }
    return readPng(imagePath(name));
}

QUrl Bundle::imageUrl(const QString &name) const
{
    return urlOfFile(imagePath(name));
}

QString Bundle::localizedString(const QString &key) const
{
    return translated(m_root, "TQFoundation", key);
}

QString Bundle::interfaceString(const QString &key) const
{
    return translated(m_root, "TQFoundationInterface", key);
}

Bundle libraryBundle()
{
    return Bundle(platform().resourceRoot());
}

QString localizedInLibrary(const QString &text)
{
    return libraryBundle().localizedString(text);
}

} // namespace TQFoundation
