#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qlist.h>
#include <QtCore/qobjectdefs.h>
#include <QtCore/qpointer.h>
#include <QtCore/qsize.h>
#include <QtCore/qstring.h>
#include <QtCore/qvariant.h>
#include <QtGui/qwindow.h>

#include <functional>
#include <memory>
#include <optional>

class QDebug;
class QUrl;

namespace TQFoundation {
Q_NAMESPACE_EXPORT(TQFOUNDATION_EXPORT)

class InAppBrowser;
class MailComposer;

/// How directly a scene receives the user's input.
enum class ActivationState { foregroundActive, foregroundInactive, background, unattached };
Q_ENUM_NS(ActivationState)

/// One window of a scene.
struct SceneWindow
{
    QPointer<QWindow> window; ///< Not owned; null once it is destroyed.
    bool isKey = false; ///< Whether the window receives key events.

    /// Whether window and isKey are equal.
    friend bool operator==(const SceneWindow &, const SceneWindow &) = default;
};

/// One instance of the app's interface. Desktops have a single one; a phone or tablet may have several.
struct Scene
{
    ActivationState activationState = ActivationState::unattached; ///< How directly it receives input.
    bool isWindowScene = false; ///< False if the system draws the scene's windows, as on a car's display.
    QList<SceneWindow> windows; ///< In the system's order.

    /// Whether all members are equal, with the windows in the same order.
    friend bool operator==(const Scene &, const Scene &) = default;
};

/// Writes "SceneWindow(QWindow(0x…), isKey)".
TQFOUNDATION_EXPORT QDebug operator<<(QDebug debug, const SceneWindow &window);
/// Writes "Scene(…)" with the state, "isWindowScene" if it is one, and the windows.
TQFOUNDATION_EXPORT QDebug operator<<(QDebug debug, const Scene &scene);

/// A timer that ticks at whole multiples of its interval, counted from the moment it was made, until it is invalidated.
///
/// A late tick runs once; ticks missed meanwhile are dropped, and later ones keep to the multiples. GUI thread.
class TQFOUNDATION_EXPORT RepeatingTimer
{
public:
    RepeatingTimer() = default;
    RepeatingTimer(const RepeatingTimer &) = delete;
    RepeatingTimer &operator=(const RepeatingTimer &) = delete;
    virtual ~RepeatingTimer();

    /// Runs the tick once, before it returns. The times of later ticks do not change. Does nothing once invalidated.
    virtual void fire() = 0;

    /// Starts the timer. The event loop then shares its ownership, and with it everything that the tick captures, until
    /// it is invalidated or the application object is destroyed. Does nothing if already scheduled or invalidated.
    virtual void schedule() = 0;

    /// Stops the timer for good and releases the tick. Does nothing the second time.
    virtual void invalidate() = 0;
};

/// Everything that the library asks of the operating system, and nothing else.
///
/// It exists so that a host can supply a service of its own (a storefront, for example), and so that tests can record
/// every call in order and control time. GUI thread, unless a function says otherwise.
class TQFOUNDATION_EXPORT Platform
{
public:
    Platform() = default;
    Platform(const Platform &) = delete;
    Platform &operator=(const Platform &) = delete;
    virtual ~Platform();

    /// The size of the main screen in points; (0, 0) without one.
    virtual QSizeF screenBounds() const = 0;

    /// Pixels per point of the main screen; 1 without one.
    virtual double screenScale() const = 0;

    /// The app's appearance, or nothing if the application's palette decides. Call appearanceChanged() when it changes.
    virtual std::optional<Appearance> appearance() const = 0;

    /// The ISO 3166-1 alpha-3 country code of the user's store account, or nothing if it is unknown. Any thread.
    virtual std::optional<QString> storefrontCountryCode() const = 0;

    /// The host's information dictionary entry \a key with its own type, or an invalid value without one. Any thread.
    virtual QVariant infoDictionaryValue(const QString &key) const = 0;

    /// The host's stored setting \a key, or an invalid value if it is not stored or the store cannot be read.
    virtual QVariant userDefault(const QString &key) const = 0;

    /// Stores a setting of the host, on disk once control is back in the event loop. The store does not change if it
    /// cannot be read or written, and a boolean leaves all else in it as it is. From then on userDefault() returns
    /// \a value in this process, even if it is not stored.
    virtual void setUserDefault(const QString &key, const QVariant &value) = 0;

    /// The host's scenes, in no particular order.
    virtual QList<Scene> connectedScenes() const = 0;

    /// Opens \a url in the system's handler for it. A failure is not reported.
    virtual void openUrl(const QUrl &url) = 0;

    /// Whether the user can send mail with this system's composer. Called at each use.
    virtual bool canSendMail() const = 0;

    /// Makes a mail composer that is empty and not presented yet. Never null, also if no mail can be sent.
    virtual std::shared_ptr<MailComposer> makeMailComposer() = 0;

    /// Makes an in-app browser for \a url that is not presented yet and has loaded nothing. Never null.
    virtual std::shared_ptr<InAppBrowser> makeInAppBrowser(const QUrl &url) = 0;

    /// Plays a soft haptic tap. Does nothing if the system has no haptics.
    virtual void softImpact() = 0;

    /// Seconds of a monotonic clock, from an arbitrary start. Any thread.
    virtual double mediaTime() const = 0;

    /// Makes a timer that is not scheduled yet and calls \a tick every \a interval seconds (more than 0, else the
    /// process stops). It keeps \a tick until it is invalidated. Never null.
    virtual std::shared_ptr<RepeatingTimer> makeTimer(double interval, std::function<void()> tick) = 0;

    /// The folder of the library's resources, without a trailing slash. Called at every use. Any thread.
    virtual QString resourceRoot() const = 0;
};

/// The platform that the library uses: a DesktopPlatform until another one is installed. It is not destroyed when the
/// process ends, because a render thread may still draw then. Any thread.
TQFOUNDATION_EXPORT Platform &platform();

/// Makes \a next the platform that the library uses, or a new DesktopPlatform if it is null. Returns the previous one,
/// whose ownership passes to the caller.
///
/// Call it on the GUI thread before the library is first used: values that were read before do not change.
TQFOUNDATION_EXPORT std::unique_ptr<Platform> installPlatform(std::unique_ptr<Platform> next);

/// Tells the library that platform().appearance() has changed. Guide and sheets follow at once, a background with its
/// next line. A host notices it by an AppearanceObserver. GUI thread.
TQFOUNDATION_EXPORT void appearanceChanged();

/// Makes the platform that the library uses until another one is installed. Defined in Desktop, one of the two
/// functions that are defined above the folder that declares them. Never null. Any thread.
std::unique_ptr<Platform> makeDefaultPlatform();

} // namespace TQFoundation
