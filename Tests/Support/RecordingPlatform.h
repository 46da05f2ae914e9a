#pragma once

#include <TQFoundation/InAppBrowser.h>
#include <TQFoundation/MailComposer.h>
#include <TQFoundation/Platform.h>

#include <QtCore/qmap.h>
#include <QtCore/qstringlist.h>
#include <QtCore/qurl.h>

#include <atomic>
#include <vector>

namespace TQFoundation::Testing {

class RecordingPlatform;
class RecordingTimer;

/// A mail composer that shows nothing and records its calls in a RecordingPlatform.
class RecordingMailComposer final : public MailComposer
{
public:
    /// Makes a composer whose calls are recorded in \a platform, which must outlive it.
    explicit RecordingMailComposer(RecordingPlatform &platform) : m_platform(platform) {}

    void setMailComposeDelegate(const std::shared_ptr<ViewController> &delegate) override;
    void setNavigationBarTintColor(const Color &color) override;
    void setToRecipients(const QStringList &addresses) override;
    void setSubject(const QString &subject) override;
    void setMessageBody(const QString &body, bool isHtml) override;

    /// The delegate that was set last, not owned. A test calls its mailComposeController() to end the composer.
    std::weak_ptr<ViewController> delegate;

protected:
    void appear(QQuickWindow *window) override;
    void disappear() override;

private:
    RecordingPlatform &m_platform;
};

/// An in-app browser that loads and shows nothing and records its calls in a RecordingPlatform.
class RecordingInAppBrowser final : public InAppBrowser
{
public:
    /// Makes a browser whose calls are recorded in \a platform, which must outlive it.
    explicit RecordingInAppBrowser(RecordingPlatform &platform) : m_platform(platform) {}

    void setPreferredControlTintColor(const Color &color) override;
    void setDismissButtonStyle(DismissButtonStyle style) override;
    void setModalPresentationStyle(ModalPresentationStyle style) override;

protected:
    void appear(QQuickWindow *window) override;
    void disappear() override;

private:
    RecordingPlatform &m_platform;
};

/// A fake platform for tests: returns the values that the test sets, records every call in one ordered list, and has a
/// clock that moves only when the test moves it.
///
/// Nothing leaves the process: no browser opens and no setting is stored on disk. GUI thread only, with one exception:
/// while `records` is false, the storefront, the information dictionary, the media time and the resource root can be
/// read from any thread.
class RecordingPlatform : public Platform
{
public:
    // Answers to the library. It keeps some of them, so set them before its first call.

    QSizeF bounds{390, 844}; ///< Size of the main screen in points.
    double scale = 3; ///< Pixels per point.
    /// Light or dark, empty if the palette decides. Call TQFoundation::appearanceChanged() after a change.
    std::optional<Appearance> currentAppearance;
    std::optional<QString> storefront; ///< Country code of the store; empty if there is no store.
    QVariantMap infoDictionary; ///< Entries of the host's information dictionary.
    QVariantMap defaults; ///< Stored settings of the host, read and written.
    QList<Scene> scenes; ///< Scenes of the host; empty at first, so that no window is key.
    /// Folder of the library's resources, without a trailing slash; at first the library's own.
    QString root = QStringLiteral(":/qt-project.org/imports/TQFoundation");

    bool mailCanBeSent = true; ///< Return value of canSendMail().

    /// If not null, makes the mail composers and browsers, which are then shown. Not owned.
    Platform *sheets = nullptr;

    std::weak_ptr<RecordingMailComposer> mailComposer; ///< The composer made last; expired once it is destroyed.
    std::weak_ptr<RecordingInAppBrowser> inAppBrowser; ///< The browser made last; expired once it is destroyed.

    /// The calls in their order, each as the function's name with its arguments in parentheses, such as
    /// "setUserDefault(KeyOfDidShowGuide, true)". Calls of appearance(), mediaTime() and resourceRoot() are not
    /// recorded.
    mutable QStringList calls;

    /// The timers in the order in which they were made; expired once they are destroyed.
    std::vector<std::weak_ptr<RepeatingTimer>> timers;

    /// Number of calls of storefrontCountryCode(), from any thread, also while `records` is false.
    mutable std::atomic<int> storefrontReads = 0;

    /// False if calls are not recorded, for tests that read from several threads.
    bool records = true;

    /// Invalidates the timers that are still scheduled.
    ~RecordingPlatform() override;

    /// Moves the media time forward by \a seconds and runs the ticks of scheduled timers that are due by then, each at
    /// its own time and in the order of these times.
    void advance(double seconds);

    /// Moves the media time forward by \a seconds without running ticks, as if the process had been stopped. At the
    /// next advance() each timer runs its missed ticks as one.
    void stall(double seconds) { m_now += seconds; }

    QSizeF screenBounds() const override;
    double screenScale() const override;
    std::optional<Appearance> appearance() const override { return currentAppearance; }
    std::optional<QString> storefrontCountryCode() const override;
    QVariant infoDictionaryValue(const QString &key) const override;
    QVariant userDefault(const QString &key) const override;
    void setUserDefault(const QString &key, const QVariant &value) override;
    QList<Scene> connectedScenes() const override;
    void openUrl(const QUrl &url) override;
    bool canSendMail() const override;
    std::shared_ptr<MailComposer> makeMailComposer() override;
    std::shared_ptr<InAppBrowser> makeInAppBrowser(const QUrl &url) override;
    void softImpact() override;
    double mediaTime() const override;
    std::shared_ptr<RepeatingTimer> makeTimer(double interval, std::function<void()> tick) override;
    QString resourceRoot() const override;

    /// Appends \a call to `calls`, unless `records` is false.
    void record(const QString &call) const;

private:
    friend class RecordingTimer;

    double m_now = 0;
    std::vector<std::shared_ptr<RecordingTimer>> m_scheduled;
};

/// Installs a RecordingPlatform on construction and the former platform on destruction.
class InstalledRecordingPlatform
{
public:
    InstalledRecordingPlatform();
    InstalledRecordingPlatform(const InstalledRecordingPlatform &) = delete;
    InstalledRecordingPlatform &operator=(const InstalledRecordingPlatform &) = delete;
    ~InstalledRecordingPlatform();

    /// @{ The installed platform, valid until this object is destroyed.
    RecordingPlatform *operator->() const { return m_platform; }
    RecordingPlatform &operator*() const { return *m_platform; }
    /// @}

private:
    RecordingPlatform *m_platform;
    std::unique_ptr<Platform> m_former;
};

} // namespace TQFoundation::Testing
