#include "SettingsStore.h"

#include "SettingsFile.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qfile.h>

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

bool canRewrite(const QSettings &settings)
{
    QFile file(settings.fileName());
    if (!isTextFile(settings) || !file.exists())
        return true;
    return file.open(QIODevice::ReadOnly) && canRewriteSettingsFile(file.readAll());
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
    if (stored && canRewrite(*stored))
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
