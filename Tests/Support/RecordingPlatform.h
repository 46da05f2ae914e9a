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

class RecordingTimer;

class RecordingPlatform;

/// A mail composer that shows nothing and writes down what it is told.
class RecordingMailComposer final : public MailComposer
{
public:
    /// A composer whose calls \a platform writes down, which has to outlive it.
    explicit RecordingMailComposer(RecordingPlatform &platform) : m_platform(platform) {}

    void setMailComposeDelegate(const std::shared_ptr<ViewController> &delegate) override;
    void setNavigationBarTintColor(const Color &color) override;
    void setToRecipients(const QStringList &addresses) override;
    void setSubject(const QString &subject) override;
    void setMessageBody(const QString &body, bool isHtml) override;

    std::weak_ptr<ViewController> delegate; ///< Who is told when the user is done; for a test to tell.

protected:
    void appear(QQuickWindow *window) override;
    void disappear() override;

private:
    RecordingPlatform &m_platform;
};

/// An in-app browser that shows nothing and writes down what it is told.
class RecordingInAppBrowser final : public InAppBrowser
{
public:
    /// A browser whose calls \a platform writes down, which has to outlive it.
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

/// A platform for tests: answers what the test sets, writes every call to one ordered list, and stands still in time
/// until it is driven by hand.
///
/// Nothing of it leaves the process: no browser opens, no setting is stored. Main thread, except that the storefront,
/// the dictionary, the media time and the resource root may be read from any thread while calls are not recorded.
class RecordingPlatform : public Platform
{
public:
    // What the library is told. Set it before the library first asks.

    QSizeF bounds{390, 844}; ///< The screen's size in points.
    double scale = 3; ///< Pixels per point.
    std::optional<QString> storefront; ///< The store's country code.
    QVariantMap infoDictionary; ///< The entries of the host's information dictionary.
    QVariantMap defaults; ///< The host's stored settings, read and written.
    QList<Scene> scenes; ///< The host's scenes; none at first, so that no window is key.
    /// The folder of the library's resources; at first the library's own.
    QString root = QStringLiteral(":/qt-project.org/imports/TQFoundation");

    bool mailCanBeSent = true; ///< Whether the system can send mail.

    /// Makes the composers and browsers where it is set, and they are shown. Not owned.
    Platform *sheets = nullptr;

    std::weak_ptr<RecordingMailComposer> mailComposer; ///< The one that was made last, for as long as it lives.
    std::weak_ptr<RecordingInAppBrowser> inAppBrowser; ///< The one that was made last, for as long as it lives.

    /// The calls in their order, each the function's name with its arguments in parentheses.
    mutable QStringList calls;

    /// The timers that were made, in their order, each for as long as someone holds it: for tests that invalidate one.
    std::vector<std::weak_ptr<RepeatingTimer>> timers;

    /// How often the storefront was asked for; counted from any thread.
    mutable std::atomic<int> storefrontReads = 0;

    /// False keeps `calls` empty, for tests that read from several threads.
    bool records = true;

    /// Invalidates the timers that are still scheduled.
    ~RecordingPlatform() override;

    /// Moves the media time on by \a seconds and runs the ticks of scheduled timers that fall into them, each at its
    /// own moment and in the order of their moments.
    void advance(double seconds);

    /// Moves the media time on without running ticks, as when the process was stopped: the ticks missed meanwhile run
    /// as one at the next advance().
    void stall(double seconds) { m_now += seconds; }

    QSizeF screenBounds() const override;
    double screenScale() const override;
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

    /// Adds a call to the list.
    void record(const QString &call) const;

private:
    friend class RecordingTimer;

    double m_now = 0;
    std::vector<std::shared_ptr<RecordingTimer>> m_scheduled;
};

/// Installs a RecordingPlatform for as long as it lives and the former platform afterwards.
class InstalledRecordingPlatform
{
public:
    InstalledRecordingPlatform();
    InstalledRecordingPlatform(const InstalledRecordingPlatform &) = delete;
    InstalledRecordingPlatform &operator=(const InstalledRecordingPlatform &) = delete;
    ~InstalledRecordingPlatform();

    /// The platform, for as long as this lives.
    RecordingPlatform *operator->() const { return m_platform; }
    /// The platform, for as long as this lives.
    RecordingPlatform &operator*() const { return *m_platform; }

private:
    RecordingPlatform *m_platform;
    std::unique_ptr<Platform> m_former;
};

} // namespace TQFoundation::Testing
