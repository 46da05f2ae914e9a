#pragma once

#include "TQFoundation/Platform.h"

#include <QtCore/qelapsedtimer.h>

#include <memory>

namespace TQFoundation {

class SettingsStore;

/// The platform of a desktop, and the base class of a phone's: everything that Qt itself can answer.
///
/// If a host knows more about its system, it derives from this class, overrides those functions and installs an object
/// of its class: installPlatform().
class TQFOUNDATION_EXPORT DesktopPlatform : public Platform
{
public:
    DesktopPlatform();
    ~DesktopPlatform() override;

    QSizeF screenBounds() const override;
    double screenScale() const override;

    /// Always empty: the application's palette follows the system, and a host can set it.
    std::optional<Appearance> appearance() const override;

    /// Always empty: a desktop has no storefront.
    std::optional<QString> storefrontCountryCode() const override;

    /// An entry of the embedded property list ":/Info.plist"; without one, of the regular file "Info.plist" beside the
    /// executable (in a bundle: in its Contents). The list is read at each call. If it cannot be read or parsed, every
    /// entry is missing.
    ///
    /// Without a list the application object answers: "CFBundleName" is the application name, "CFBundleDisplayName"
    /// and "CFBundleShortVersionString" are its display name and version if they were set. The build is missing.
    QVariant infoDictionaryValue(const QString &key) const override;

    /// From the application's own QSettings, never from those of its organisation or the system, which other
    /// applications share. Invalid if no application object exists.
    ///
    /// Settings in a text file have no types: there exactly the texts "true" and "false" are booleans.
    QVariant userDefault(const QString &key) const override;
    void setUserDefault(const QString &key, const QVariant &value) override;

    /// One window scene with the visible top-level windows. The key window is the one with the keyboard focus. So is a
    /// Qt Quick window that is rendered into it.
    QList<Scene> connectedScenes() const override;

    void openUrl(const QUrl &url) override;

    /// Whether one of programFolders() holds an executable program called sendmail.
    bool canSendMail() const override;

    /// A sheet that sends through that program, which is looked up again when the user sends.
    std::shared_ptr<MailComposer> makeMailComposer() override;

    /// A sheet with the web view of Qt WebEngine. If that is not installed or cannot run, presenting the browser calls
    /// openUrl() instead.
    std::shared_ptr<InAppBrowser> makeInAppBrowser(const QUrl &url) override;

    /// Does nothing: a desktop has no haptics.
    void softImpact() override;

    /// Seconds of a monotonic clock since this object was made.
    double mediaTime() const override;
    std::shared_ptr<RepeatingTimer> makeTimer(double interval, std::function<void()> tick) override;
    QString resourceRoot() const override;

protected:
    /// The folders that may hold the sendmail program, in the order of the search: /usr/sbin, /usr/lib, and PATH.
    virtual QStringList programFolders() const;

private:
    QElapsedTimer m_clock;
    std::unique_ptr<SettingsStore> m_settings;
};

} // namespace TQFoundation
