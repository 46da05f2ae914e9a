#pragma once

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

/// How far a scene is from the user's fingers.
enum class ActivationState { foregroundActive, foregroundInactive, background, unattached };
Q_ENUM_NS(ActivationState)

/// One window of a scene.
struct SceneWindow
{
    QPointer<QWindow> window; ///< Not owned; may go away at any time.
    bool isKey = false; ///< Whether it is the one that takes the keyboard.

    /// Whether it is the same window, key in both or in neither.
    friend bool operator==(const SceneWindow &, const SceneWindow &) = default;
};

/// One instance of the app's interface. Desktops have a single one; a phone or tablet may have several.
struct Scene
{
    ActivationState activationState = ActivationState::unattached; ///< Whether the user works with it.
    bool isWindowScene = false; ///< False for scenes without windows of the app's own, such as a car's display.
    QList<SceneWindow> windows; ///< In the system's order.

    /// Whether everything in them is equal, the windows in the same order.
    friend bool operator==(const Scene &, const Scene &) = default;
};

/// Writes "SceneWindow(QWindow(0x…), isKey)".
TQFOUNDATION_EXPORT QDebug operator<<(QDebug debug, const SceneWindow &window);
/// Writes "Scene(…)" with the state, "isWindowScene" where it is one, and the windows.
TQFOUNDATION_EXPORT QDebug operator<<(QDebug debug, const Scene &scene);

/// A timer that ticks at whole multiples of its interval, counted from the moment it was made, until it is invalidated.
///
/// A tick that comes late runs once; those missed meanwhile are dropped, and the grid does not shift. Main thread only.
class TQFOUNDATION_EXPORT RepeatingTimer
{
public:
    RepeatingTimer() = default;
    RepeatingTimer(const RepeatingTimer &) = delete;
    RepeatingTimer &operator=(const RepeatingTimer &) = delete;
    virtual ~RepeatingTimer();

    /// Runs the tick now, before it returns. The grid stays as it is. Does nothing once invalidated.
    virtual void fire() = 0;

    /// Hands the timer to the event loop, which then holds it (and with it all that its tick holds) until it is
    /// invalidated or the application object goes. Does nothing the second time, or once invalidated.
    virtual void schedule() = 0;

    /// Ends the ticking for good and lets go of the tick.
    virtual void invalidate() = 0;
};

/// Everything that the library asks of the system beneath it, and nothing else.
///
/// It exists so that a host can supply what its system knows (a storefront, say), and so that tests can write down
/// every call in its order and drive time by hand. Main thread only, except where a function says otherwise.
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

    /// The ISO 3166-1 alpha-3 country code of the user's store account, or nothing where none is known. Any thread.
    virtual std::optional<QString> storefrontCountryCode() const = 0;

    /// The host's information dictionary entry \a key with its own type, or an invalid value without one. Any thread.
    virtual QVariant infoDictionaryValue(const QString &key) const = 0;

    /// The host's stored setting \a key, or an invalid value where none is stored or the store cannot be read.
    virtual QVariant userDefault(const QString &key) const = 0;

    /// Stores a setting of the host. It is on disk once control is back in the event loop. A store that cannot be
    /// written or read whole, or would lose something on being written, stays as it is. From then on userDefault()
    /// returns \a value in this process, even if it could not be stored.
    virtual void setUserDefault(const QString &key, const QVariant &value) = 0;

    /// The host's scenes, in no particular order.
    virtual QList<Scene> connectedScenes() const = 0;

    /// Hands \a url to the system's own handler; whether that succeeds is not known.
    virtual void openUrl(const QUrl &url) = 0;

    /// Whether the user can send mail with this system's composer. Asked at each use.
    virtual bool canSendMail() const = 0;

    /// Makes a mail composer that is empty and not presented yet. Never null, also where no mail can be sent.
    virtual std::shared_ptr<MailComposer> makeMailComposer() = 0;

    /// Makes an in-app browser for \a url that is not presented yet and has loaded nothing. Never null.
    virtual std::shared_ptr<InAppBrowser> makeInAppBrowser(const QUrl &url) = 0;

    /// Gives the soft tap that a phone's haptics answer a touch with. Does nothing where there are none.
    virtual void softImpact() = 0;

    /// Seconds of a clock that never jumps, from an arbitrary start. Any thread.
    virtual double mediaTime() const = 0;

    /// Makes a timer that is not scheduled yet and calls \a tick every \a interval seconds (more than 0, else the
    /// process stops). The caller shares its ownership with the event loop; the timer holds \a tick until invalidated.
    virtual std::shared_ptr<RepeatingTimer> makeTimer(double interval, std::function<void()> tick) = 0;

    /// The folder of the library's resources, without a trailing slash. Asked at every use. Any thread.
    virtual QString resourceRoot() const = 0;
};

/// The platform that the library uses: a DesktopPlatform until another one is installed. Any thread.
TQFOUNDATION_EXPORT Platform &platform();

/// Makes \a next the platform that the library uses, or a fresh DesktopPlatform where it is null, and returns the one
/// before, whose ownership passes to the caller.
///
/// Call it on the main thread before the library is first used: values that were already read are kept.
TQFOUNDATION_EXPORT std::unique_ptr<Platform> installPlatform(std::unique_ptr<Platform> next);

/// Makes the platform that the library uses while no other one is installed. Defined in Desktop: it is one of the two
/// functions of the library that are defined above the folder that declares them. Any thread.
std::unique_ptr<Platform> makeDefaultPlatform();

} // namespace TQFoundation
