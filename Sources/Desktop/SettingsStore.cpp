#include "SettingsStore.h"

#include "SettingsFile.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qfile.h>
#include <QtCore/qlockfile.h>
#include <QtCore/qsavefile.h>

#include <algorithm>

namespace TQFoundation {
namespace {

bool isTextFile(const QSettings &settings)
{
#if defined(Q_OS_DARWIN) || defined(Q_OS_WIN)
    return settings.format() == QSettings::IniFormat;
#else
    static_cast<void>(settings);
    return true;
#endif
}

// Whether a value can be a line of its own under a key that QSettings writes unchanged.
bool isPlain(const QString &key, const QVariant &value)
{
    const auto isPlainCharacter = [](QChar c) { return c < QChar(0x80) && c.isLetterOrNumber(); };
    return value.typeId() == QMetaType::Bool && !key.isEmpty() && std::ranges::all_of(key, isPlainCharacter);
}

// Locks the file as QSettings does.
void writeLine(QSettings &settings, const QString &key, bool value)
{
    settings.sync(); // writes the host's changes first
    QFile file(settings.fileName());
    QLockFile lock(file.fileName() + u".lock");
    if (!lock.lock() || !file.open(QIODevice::ReadOnly))
        return;
    const QByteArray content = file.readAll();
    file.close(); // some systems replace no open file
    const QByteArray changed = settingsFileWith(content, key.toLatin1(), value);
    QSaveFile written(file.fileName());
    if (changed != content && written.open(QIODevice::WriteOnly) && written.write(changed) == changed.size())
        written.commit();
    lock.unlock();
    settings.sync();
}

} // namespace

SettingsStore::~SettingsStore()
{
    delete m_settings;
}

QVariant SettingsStore::value(const QString &key) const
{
    if (const auto set = m_set.constFind(key); set != m_set.cend())
        return *set;
    const QSettings *stored = settings();
    if (!stored)
        return {};
    QVariant value = stored->value(key);
    if (isTextFile(*stored) && value.typeId() == QMetaType::QString) {
        if (value.toString() == u"true")
            return true;
        if (value.toString() == u"false")
            return false;
    }
    return value;
}

void SettingsStore::setValue(const QString &key, const QVariant &value)
{
    m_set.insert(key, value);
    QSettings *stored = settings();
    if (!stored)
        return;
    if (isTextFile(*stored) && isPlain(key, value) && QFile::exists(stored->fileName()))
        writeLine(*stored, key, value.toBool());
    else
        stored->setValue(key, value);
}

QSettings *SettingsStore::settings() const
{
    if (!m_settings && QCoreApplication::instance()) {
        m_settings =
            new QSettings(QSettings::defaultFormat(), QSettings::UserScope, QCoreApplication::organizationName(),
                          QCoreApplication::applicationName(), QCoreApplication::instance());
        m_settings->setFallbacksEnabled(false);
    }
    return m_settings;
}

} // namespace TQFoundation
