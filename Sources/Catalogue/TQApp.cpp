#include "TQApp.h"

#include "DeveloperIdentity.h"
#include "Precondition.h"
#include "TQFoundation/Bundle.h"
#include "TQFoundation/Environment.h"
#include "TQFoundation/Platform.h"

#include <QtCore/qdebug.h>
#include <QtCore/qmetaobject.h>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace TQFoundation {
namespace {

using DeveloperIdentity::apps;

constexpr bool isInCaseOrder()
{
#define TQFOUNDATION_NAME(name) #name,
    constexpr std::string_view names[] = {TQFOUNDATION_APPS(TQFOUNDATION_NAME)};
#undef TQFOUNDATION_NAME
    return std::ranges::equal(names, apps, {}, {}, &DeveloperIdentity::App::caseName);
}
static_assert(isInCaseOrder(), "DeveloperIdentity::apps has one row for each case, in the same order");

// Stops the process if the value is not one of the enumerators.
const DeveloperIdentity::App &rowOf(TQApp app)
{
    const auto index = static_cast<std::size_t>(TQApp::Case(app));
    precondition(index < std::size(apps));
    return apps[index];
}

std::optional<QString> hostString(const QString &key)
{
    const QVariant value = platform().infoDictionaryValue(key);
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    return value.toString();
}

} // namespace

QString TQApp::id() const
{
    return QLatin1String(rowOf(*this).storeId);
}

std::optional<QString> TQApp::icp() const
{
    const char *suffix = rowOf(*this).filingSuffix;
    if (!suffix)
        return std::nullopt;
    return localizedInLibrary(QLatin1String(DeveloperIdentity::filingPrefix)) + QLatin1String(suffix);
}

QVariant TQApp::icpVariant() const
{
    const auto text = icp();
    return text ? QVariant(*text) : QVariant();
}

Color TQApp::tintColor() const
{
    return rowOf(*this).tint;
}

QImage TQApp::icon() const
{
    constexpr double largestSide = 16384;

    const double scale = screenScale();
    const double pixels = std::round(iconSide * scale);
    const bool isDrawable = pixels >= 1 && pixels <= largestSide;
    const int side = isDrawable ? static_cast<int>(pixels) : iconSide;
    const QImage artwork = libraryBundle().image(QLatin1String(rowOf(*this).iconName), side);
    precondition(!artwork.isNull());
    if (!isDrawable)
        return {};
    QImage thumbnail = artwork.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    thumbnail.setDevicePixelRatio(scale);
    return thumbnail;
}

QUrl TQApp::iconUrl() const
{
    return libraryBundle().imageUrl(QLatin1String(rowOf(*this).iconName));
}

QStringList TQApp::guideText() const
{
    QStringList paragraphs;
    for (const char *paragraph : rowOf(*this).guide)
        paragraphs += localizedInLibrary(QString::fromUtf8(paragraph));
    return paragraphs;
}

QString TQApp::appLink() const
{
    return QLatin1String(DeveloperIdentity::storeHost) + QLatin1String(DeveloperIdentity::storeAppPath) + id();
}

QString TQApp::reviewLink() const
{
    return appLink() + QLatin1String(DeveloperIdentity::storeReviewQuery);
}

QString TQApp::name()
{
    if (const auto displayName = hostString(QStringLiteral("CFBundleDisplayName")))
        return *displayName;
    return hostString(QStringLiteral("CFBundleName")).value_or(QString());
}

QString TQApp::version()
{
    return hostString(QStringLiteral("CFBundleShortVersionString")).value_or(QString());
}

QString TQApp::buildNumber()
{
    return hostString(QStringLiteral("CFBundleVersion")).value_or(QString());
}

QDebug operator<<(QDebug debug, TQApp app)
{
    const QDebugStateSaver saver(debug);
    const int number = static_cast<int>(TQApp::Case(app));
    return debug.nospace() << "TQApp(" << QMetaEnum::fromType<TQApp::Case>().valueToKey(number) << ')';
}

} // namespace TQFoundation
