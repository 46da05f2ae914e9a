#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qhashfunctions.h>
#include <QtCore/qobjectdefs.h>
#include <QtCore/qstringlist.h>
#include <QtCore/qvariant.h>
#include <QtGui/qimage.h>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <functional>
#include <optional>

class QDebug;

/// The apps of the catalogue in its order, \a each applied to every name. All that has to list the apps does it by
/// this; what is known of each is a row of a table of the library's own.
#define TQFOUNDATION_APPS(each)                                                                                        \
    each(larch) each(juniper) each(hazel) each(ginkgo) each(fir) each(elm) each(dogwood) each(cedar) each(birch)       \
        each(alder)

#define TQFOUNDATION_LISTED(name) name,
#define TQFOUNDATION_DECLARED(name) static const TQApp name;
#define TQFOUNDATION_DEFINED(name) inline constexpr TQApp TQApp::name{Case::name};

namespace TQFoundation {

/// One app of the developer's catalogue. A host says which one it is: `TQApp::hazel`.
///
/// A plain value, equal to another when it is the same case, usable in a `switch` and as a hash key. Nothing is cached:
/// every member is worked out at each read. The static members name(), version() and buildNumber() describe the running
/// host, whichever case it is. Any thread, except where a member says otherwise.
///
/// In QML a value has the type `tqApp`, and the singleton `TQApp` holds the cases and the static members.
class TQFOUNDATION_EXPORT TQApp
{
    Q_GADGET
    QML_VALUE_TYPE(tqApp)
    Q_PROPERTY(QString id READ id CONSTANT FINAL)
    Q_PROPERTY(QVariant icp READ icpVariant CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::Color tintColor READ tintColor CONSTANT FINAL)
    Q_PROPERTY(QImage icon READ icon CONSTANT FINAL)
    Q_PROPERTY(QStringList guideText READ guideText CONSTANT FINAL)
    Q_PROPERTY(QString appLink READ appLink CONSTANT FINAL)
    Q_PROPERTY(QString reviewLink READ reviewLink CONSTANT FINAL)

public:
    /// The cases in catalogue order; the number of a case is its index in allCases().
    enum class Case { TQFOUNDATION_APPS(TQFOUNDATION_LISTED) };
    Q_ENUM(Case)

    /// @{ An app of the catalogue: `TQApp::hazel.tintColor()`.
    TQFOUNDATION_APPS(TQFOUNDATION_DECLARED)
    /// @}

    /// The first case, for containers that need a default.
    constexpr TQApp() noexcept = default;
    /// The app that is \a value. A number that is none of the cases stops the process as soon as anything is asked of
    /// it.
    constexpr TQApp(Case value) noexcept : m_case(value) {}
    /// Its case, for a `switch`.
    constexpr operator Case() const noexcept { return m_case; }

    /// The cases in catalogue order, a `std::array<TQApp, 10>`.
    static constexpr auto allCases() noexcept;

    /// The store's id of the app, ten decimal digits; also what identifies the app in a list.
    QString id() const;

    /// The app's filing text for users in mainland China, in the user's language; nothing for an app that has none.
    std::optional<QString> icp() const;

    /// The app's colour. Four of them follow light and dark appearance.
    Color tintColor() const;

    /// The app's icon as a square of 36 points at screenScale(), with that device pixel ratio; the side in pixels is
    /// rounded to the nearest. A null image where the screen's scale makes that side smaller than 1 or larger than
    /// 16384 pixels. An icon that is missing from the library's bundle, or broken, stops the process. Main thread.
    QImage icon() const;

    /// The paragraphs of the app's onboarding guide in the user's language; empty for an app without a guide.
    QStringList guideText() const;

    /// The app's page in the store, a secure web address.
    QString appLink() const;

    /// appLink() opened on the store's form for reviews.
    QString reviewLink() const;

    /// The running host's display name: "CFBundleDisplayName" of its information dictionary, else "CFBundleName", else
    /// empty. Entries that are no strings count as missing.
    static QString name();

    /// The running host's marketing version, "CFBundleShortVersionString"; empty where that is missing or no string.
    static QString version();

    /// The running host's build number, "CFBundleVersion"; empty where that is missing or no string.
    static QString buildNumber();

    /// Whether both are the same case.
    friend constexpr bool operator==(TQApp a, TQApp b) noexcept { return a.m_case == b.m_case; }
    /// Whether they are different cases.
    friend constexpr bool operator!=(TQApp a, TQApp b) noexcept { return a.m_case != b.m_case; }

private:
    friend std::size_t qHash(TQApp app, std::size_t seed = 0) noexcept
    {
        return ::qHash(static_cast<std::size_t>(app.m_case), seed);
    }

    QVariant icpVariant() const;

    Case m_case = Case::larch;
};

TQFOUNDATION_APPS(TQFOUNDATION_DEFINED)

/// Writes "TQApp(hazel)".
TQFOUNDATION_EXPORT QDebug operator<<(QDebug debug, TQApp app);

constexpr auto TQApp::allCases() noexcept
{
    return std::array{TQFOUNDATION_APPS(TQFOUNDATION_LISTED)};
}

} // namespace TQFoundation

#undef TQFOUNDATION_LISTED
#undef TQFOUNDATION_DECLARED
#undef TQFOUNDATION_DEFINED

/// Lets a TQApp be the key of the standard containers.
template <>
struct std::hash<TQFoundation::TQApp>
{
    /// Equal for equal apps within one process.
    std::size_t operator()(TQFoundation::TQApp app) const noexcept
    {
        return std::hash<std::size_t>{}(static_cast<std::size_t>(TQFoundation::TQApp::Case(app)));
    }
};
