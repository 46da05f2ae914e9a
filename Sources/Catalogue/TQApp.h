#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qhashfunctions.h>
#include <QtCore/qobjectdefs.h>
#include <QtCore/qstringlist.h>
#include <QtCore/qurl.h>
#include <QtCore/qvariant.h>
#include <QtGui/qimage.h>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <functional>
#include <optional>

class QDebug;

/// Applies the macro \a each to the name of every app, in catalogue order. The only list of the apps; their data is the
/// table of DeveloperIdentity.
#define TQFOUNDATION_APPS(each)                                                                                        \
    each(larch) each(juniper) each(hazel) each(ginkgo) each(fir) each(elm) each(dogwood) each(cedar) each(birch)       \
        each(alder)

#define TQFOUNDATION_LISTED(name) name,
#define TQFOUNDATION_DECLARED(name) static const TQApp name;
#define TQFOUNDATION_DEFINED(name) inline constexpr TQApp TQApp::name{Case::name};

namespace TQFoundation {

/// One app of the developer's catalogue. A host names its own: `TQApp::hazel`.
///
/// A plain value for comparisons, `switch` and hash keys. Nothing is cached: each member is computed at each call. The
/// static members name(), version() and buildNumber() describe the running host. Any thread unless a member says
/// otherwise.
///
/// In QML the value type is `tqApp`, with constant properties, and the singleton `TQApp` has the cases and the static
/// members: `readonly property tqApp app: TQApp.hazel`. The default is `TQApp.larch`.
class TQFOUNDATION_EXPORT TQApp
{
    Q_GADGET
    QML_VALUE_TYPE(tqApp)
    /// `string`: the store's id of the app, ten decimal digits. Example: "9990000003".
    Q_PROPERTY(QString id READ id CONSTANT FINAL)
    /// `var`: the filing text, a `string`; `undefined` for an app without a filing. `TQMore.icpOrBlogText(app.icp)`.
    Q_PROPERTY(QVariant icp READ icpVariant CONSTANT FINAL)
    /// `tqColor`: the app's colour in light and dark appearance. `app.tintColor.resolved(isDark)`.
    Q_PROPERTY(TQFoundation::Color tintColor READ tintColor CONSTANT FINAL)
    /// `var`, an image: see icon(). QML shows it with `TQAppIcon { app: TQApp.hazel }`.
    Q_PROPERTY(QImage icon READ icon CONSTANT FINAL)
    /// `url`: see iconUrl(). `Image { source: app.iconUrl; sourceSize: Qt.size(36, 36) }`.
    Q_PROPERTY(QUrl iconUrl READ iconUrl CONSTANT FINAL)
    /// `list<string>`: the paragraphs of the guide; empty for an app without one. `descriptions: app.guideText`.
    Q_PROPERTY(QStringList guideText READ guideText CONSTANT FINAL)
    /// `string`: the app's page in the store. `TQMore.openUrl(app.appLink, app.tintColor)`.
    Q_PROPERTY(QString appLink READ appLink CONSTANT FINAL)
    /// `string`: the store's review form of the app. `TQMore.openUrl(app.reviewLink, app.tintColor)`.
    Q_PROPERTY(QString reviewLink READ reviewLink CONSTANT FINAL)

public:
    /// The cases in catalogue order; the value of a case is its index in allCases().
    enum class Case { TQFOUNDATION_APPS(TQFOUNDATION_LISTED) };
    Q_ENUM(Case)

    /// @{ An app of the catalogue: `TQApp::hazel.tintColor()`.
    TQFOUNDATION_APPS(TQFOUNDATION_DECLARED)
    /// @}

    /// The first case, for containers that need a default.
    constexpr TQApp() noexcept = default;
    /// The app \a value. An invalid enumerator stops the process when a member is called.
    constexpr TQApp(Case value) noexcept : m_case(value) {}
    /// The case, for a `switch`.
    constexpr operator Case() const noexcept { return m_case; }

    /// The cases in catalogue order, a `std::array<TQApp, 10>`.
    static constexpr auto allCases() noexcept;

    /// The store's id of the app, ten decimal digits; unique, so that it identifies the app in a list.
    QString id() const;

    /// The app's filing text for users in mainland China, in the user's language; null for an app without a filing.
    std::optional<QString> icp() const;

    /// The app's colour. Four of them follow light and dark appearance.
    Color tintColor() const;

    /// The side of icon() in points.
    static constexpr int iconSide = 36;

    /// The app's icon, scaled to iconSide points square at screenScale(), which is its device pixel ratio. The side in
    /// pixels is rounded to nearest; the image is null if that is below 1 or above 16384. Artwork that is missing from
    /// the library's bundle, or broken, stops the process. GUI thread.
    QImage icon() const;

    /// The file or resource of the icon's artwork in full size, for image views that load and scale by themselves.
    QUrl iconUrl() const;

    /// The paragraphs of the app's onboarding guide in the user's language; empty for an app without a guide.
    QStringList guideText() const;

    /// The app's page in the store, a secure web address.
    QString appLink() const;

    /// The review form of the app in the store: appLink() with a query.
    QString reviewLink() const;

    /// The running host's display name: "CFBundleDisplayName" of its information dictionary, else "CFBundleName", else
    /// empty. An entry that is not a string counts as missing.
    static QString name();

    /// The running host's marketing version, "CFBundleShortVersionString"; empty if missing or not a string.
    static QString version();

    /// The running host's build number, "CFBundleVersion"; empty if missing or not a string.
    static QString buildNumber();

    /// Whether both values are the same case.
    friend constexpr bool operator==(TQApp a, TQApp b) noexcept { return a.m_case == b.m_case; }
    /// Whether the values are different cases.
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

/// Hash of a TQApp for standard containers.
template <>
struct std::hash<TQFoundation::TQApp>
{
    /// Equal for equal apps within a process.
    std::size_t operator()(TQFoundation::TQApp app) const noexcept
    {
        return std::hash<std::size_t>{}(static_cast<std::size_t>(TQFoundation::TQApp::Case(app)));
    }
};
