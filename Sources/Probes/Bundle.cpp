#include "Bundle.h"

#include "LanguageTags.h"
#include "TQFoundation/Platform.h"

#include <QtCore/qfile.h>
#include <QtCore/qlocale.h>
#include <QtCore/qtranslator.h>

namespace TQFoundation {
namespace {

/// The table of one bundle for the user's language; empty where there is none. Immutable, so any thread may read it.
class StringsTable
{
public:
    explicit StringsTable(const QString &root) : m_root(root)
    {
        static const QStringList names = tableNames(QLocale().uiLanguages());
        for (const QString &name : names) {
            const QString path = root + u"/Translations/TQFoundation_" + name + u".qm";
            // Asked first, because the translator would cut the name short until it finds some file.
            if (QFile::exists(path) && m_translator.load(path))
                break;
        }
    }

    const QString &root() const { return m_root; }

    QString entry(const char *context, const QString &key) const
    {
        // The look-up takes a C string and would find the entry of what stands before a NUL.
        if (key.contains(QChar::Null))
            return key;
        const QString entry = m_translator.translate(context, key.toUtf8().constData());
        return entry.isNull() ? key : entry;
    }

private:
    QString m_root;
    QTranslator m_translator;
};

} // namespace

QImage Bundle::image(const QString &name) const
{
    return QImage(m_root + u"/Icons/" + name + u".png");
}

QString Bundle::localizedString(const QString &key) const
{
    return entry("TQFoundation", key);
}

QString Bundle::interfaceString(const QString &key) const
{
    return entry("TQFoundationInterface", key);
}

QString Bundle::entry(const char *context, const QString &key) const
{
    static const StringsTable first(m_root);
    if (m_root == first.root())
        return first.entry(context, key);
    return StringsTable(m_root).entry(context, key);
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
