#pragma once

#include <QtCore/qhash.h>
#include <QtCore/qpointer.h>
#include <QtCore/qsettings.h>
#include <QtCore/qvariant.h>

namespace TQFoundation {

/// The user defaults of the application: its own QSettings, without the fallbacks to the organisation's and the
/// system's, which other applications share. GUI thread only.
///
/// Opens the settings on first use, with the organisation and application names of that moment. Without an application
/// object nothing is read or stored.
class SettingsStore
{
public:
    SettingsStore() = default;
    SettingsStore(const SettingsStore &) = delete;
    SettingsStore &operator=(const SettingsStore &) = delete;
    ~SettingsStore();

    /// The value of \a key; the one that was set here last, if any. Invalid if it is missing or cannot be read.
    ///
    /// Settings in a text file have no types: there exactly the texts "true" and "false" are booleans.
    QVariant value(const QString &key) const;

    /// Sets \a key. The value is on disk once control is back in the event loop. A file that is not text, or that
    /// cannot be read or written, stays as it is.
    ///
    /// Booleans are written with settingsFileWith(), so that comments stay in the file. All other values are written by
    /// QSettings, which loses them.
    void setValue(const QString &key, const QVariant &value);

private:
    QSettings *settings() const;

    QHash<QString, QVariant> m_set; // outlives a file that cannot be written
    mutable QPointer<QSettings> m_settings; // a child of the application object, whose destruction writes it out
};

} // namespace TQFoundation
