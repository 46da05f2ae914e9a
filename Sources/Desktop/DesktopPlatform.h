#pragma once

#include "TQFoundation/Platform.h"

#include <QtCore/qelapsedtimer.h>
#include <QtCore/qpointer.h>
#include <QtCore/qsettings.h>

namespace TQFoundation {

/// The platform of a desktop, and what a phone's platform starts from: everything that Qt itself can answer.
///
/// A host whose system knows more derives from it, overrides what it knows and installs the result; installPlatform().
class TQFOUNDATION_EXPORT DesktopPlatform : public Platform
{
public:
    DesktopPlatform();
    ~DesktopPlatform() override;

    QSizeF screenBounds() const override;
    double screenScale() const override;

    /// A desktop has no storefront: always nothing.
    std::optional<QString> storefrontCountryCode() const override;

    /// From the property list ":/Info.plist" where one is embedded, else from a regular file "Info.plist" beside the
    /// executable (of a bundle: in its Contents). It is read at each call, so nothing is ever stale. Of a list that
    /// cannot be read or parsed every entry is missing.
    ///
    /// A host without any list is described by its application object: "CFBundleDisplayName" and
    /// "CFBundleShortVersionString" where it was given a display name and a version, "CFBundleName" by its
    /// application name, and no build.
    QVariant infoDictionaryValue(const QString &key) const override;

    /// From the application's own settings file, never from its organisation's or from the system's, which other apps
    /// share. An invalid value also where no application object exists.
    ///
    /// Settings files that are texts keep no types: there exactly the texts "true" and "false" are booleans.
    QVariant userDefault(const QString &key) const override;
    void setUserDefault(const QString &key, const QVariant &value) override;

    /// One window scene with the visible top-level windows. Key is the window that has the keyboard focus, or the Qt
    /// Quick window that is drawn into it.
    QList<Scene> connectedScenes() const override;

    void openUrl(const QUrl &url) override;

    /// Whether one of programFolders() holds an executable program called sendmail.
    bool canSendMail() const override;

    /// A sheet that sends through that program, looked for again when the user sends.
    std::shared_ptr<MailComposer> makeMailComposer() override;

    /// A sheet with the web view of Qt WebEngine. Where that is not installed or cannot run, presenting the browser
    /// hands its page to openUrl() instead.
    std::shared_ptr<InAppBrowser> makeInAppBrowser(const QUrl &url) override;

    /// Nothing: a desktop has no haptics.
    void softImpact() override;
    double mediaTime() const override;
    std::shared_ptr<RepeatingTimer> makeTimer(double interval, std::function<void()> tick) override;
    QString resourceRoot() const override;

protected:
    /// Where the sendmail program is looked for, in this order: /usr/sbin, /usr/lib, and the folders of PATH.
    virtual QStringList programFolders() const;

private:
    QSettings *settings() const;

    QElapsedTimer m_clock;
    mutable QPointer<QSettings> m_settings; // a child of the application object, which writes it out when it goes
};

} // namespace TQFoundation
