#include "TQApp.h"

#include "Bundle.h"
#include "DeveloperIdentity.h"
#include "Environment.h"
#include "Platform.h"
#include "Precondition.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <span>

namespace TQFoundation {
namespace {

// The paragraphs are also the keys of their translations, slips included: a change here orphans every table's entry.
constexpr const char *hazelGuide[] = {
    //: First of six pages that explain the game of life to a new user; "Hazel Grid" is the app's name.
    QT_TRANSLATE_NOOP("TQFoundation",
                      "Welcome to the Hazel Grid.\n\n"
                      "The game is an infinite, two-dimensional orthogonal grid of square cells, each of "
                      "which is in one of two possible states, live or dead.\n\n"
                      "At each step in time, the following transitions occur:"),
    QT_TRANSLATE_NOOP("TQFoundation",
                      "1.\n\nAny live cell with fewer than two live neighbours dies, as if by underpopulation."),
    QT_TRANSLATE_NOOP("TQFoundation",
                      "2.\n\nAny live cell with two or three live neighbours lives on to the next generation."),
    QT_TRANSLATE_NOOP("TQFoundation",
                      "3.\n\nAny live cell with more than three live neighbours dies, as if by overpopulation."),
    QT_TRANSLATE_NOOP(
        "TQFoundation",
        "4.\n\nAny dead cell with exactly three live neighbours becomes a live cell, as if by reproduction."),
    QT_TRANSLATE_NOOP("TQFoundation", "Next, please enjoy the Hazel Grid.\n\nBest regards."),
};

constexpr const char *dogwoodGuide[] = {
    QT_TRANSLATE_NOOP(
        "TQFoundation",
        "欢迎使用「青岚」。\n\n「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。"),
    QT_TRANSLATE_NOOP("TQFoundation",
                      "输入一个有效中文文字，按下回车按钮提交。\n\n每次提交之后，文字的笔画颜色也许会发生变化："),
    QT_TRANSLATE_NOOP("TQFoundation",
                      "绿色，\n\n表示正确文字包含此笔画，并且笔顺正确。\n\n在正确文字和所提交的文字的中都会全部显示。"),
    QT_TRANSLATE_NOOP("TQFoundation",
                      "灰色，\n\n代表正确文字虽然包含此笔画，但是笔顺不正确。\n\n"
                      "如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。"),
    QT_TRANSLATE_NOOP("TQFoundation", "接下来请使用「青岚」。\n\n敬颂时祺。"),
};

struct Entry
{
    TQApp app;
    const char *iconName;
    Color tint;
    std::span<const char *const> guide = {};
};

constexpr std::array<Entry, 10> catalogue{{
    {TQApp::larch, "larch-page", Rgba{0.9529412F, 0.4392157F, 0.1294118F}},
    {TQApp::juniper, "juniper-page", Color::systemBlue()},
    {TQApp::hazel, "hazel-page", Color::label(), hazelGuide},
    {TQApp::ginkgo, "ginkgo-page", Rgba{1, 0.4F, 0.7019608F}},
    {TQApp::fir, "fir", Color::systemGray()},
    {TQApp::elm, "elm-page", Color::systemRed()},
    {TQApp::dogwood, "dogwood", Rgba{0, 0.5603183F, 0}, dogwoodGuide},
    {TQApp::cedar, "cedar", Rgba{0.581883F, 0.2156915F, 1}},
    {TQApp::birch, "birch", Rgba{0.5803922F, 0.09019608F, 0.3176471F}},
    {TQApp::alder, "alder-page", Rgba{0, 0.6980392F, 0.7137255F}},
}};

constexpr std::size_t indexOf(TQApp app)
{
    return static_cast<std::size_t>(TQApp::Case(app));
}

constexpr bool isInCatalogueOrder()
{
    for (std::size_t index = 0; index < catalogue.size(); ++index) {
        if (indexOf(catalogue[index].app) != index || indexOf(TQApp::allCases()[index]) != index)
            return false;
    }
    return catalogue.size() == TQApp::allCases().size() && catalogue.size() == DeveloperIdentity::apps.size();
}
static_assert(isInCatalogueOrder());

// The tints are single-precision numbers and stay so to the last bit, whatever precision the compiler works in.
constexpr bool isExactly(const Color &color, std::uint32_t red, std::uint32_t green, std::uint32_t blue)
{
    const Rgba rgba = color.resolved(Appearance::light);
    return !color.isDynamic() && std::bit_cast<std::uint32_t>(rgba.red) == red
        && std::bit_cast<std::uint32_t>(rgba.green) == green && std::bit_cast<std::uint32_t>(rgba.blue) == blue
        && std::bit_cast<std::uint32_t>(rgba.alpha) == 0x3F800000;
}
static_assert(isExactly(catalogue[indexOf(TQApp::larch)].tint, 0x3F73F3F4, 0x3EE0E0E1, 0x3E048487));
static_assert(isExactly(catalogue[indexOf(TQApp::ginkgo)].tint, 0x3F800000, 0x3ECCCCCD, 0x3F33B3B4));
static_assert(isExactly(catalogue[indexOf(TQApp::dogwood)].tint, 0, 0x3F0F7105, 0));
static_assert(isExactly(catalogue[indexOf(TQApp::cedar)].tint, 0x3F14F649, 0x3E5CDE3C, 0x3F800000));
static_assert(isExactly(catalogue[indexOf(TQApp::birch)].tint, 0x3F149495, 0x3DB8B8B9, 0x3EA2A2A4));
static_assert(isExactly(catalogue[indexOf(TQApp::alder)].tint, 0, 0x3F32B2B2, 0x3F36B6B7));

// The catalogue's entry; a number that was forced into the enumeration stops the process.
const Entry &entryOf(TQApp app)
{
    precondition(indexOf(app) < catalogue.size());
    return catalogue[indexOf(app)];
}

const DeveloperIdentity::App &identityOf(TQApp app)
{
    precondition(indexOf(app) < DeveloperIdentity::apps.size());
    return DeveloperIdentity::apps[indexOf(app)];
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
    return QLatin1String(identityOf(*this).storeId);
}

std::optional<QString> TQApp::icp() const
{
    const char *suffix = identityOf(*this).filingSuffix;
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
    return entryOf(*this).tint;
}

QImage TQApp::icon() const
{
    constexpr double side = 36; // points
    constexpr double largestSide = 16384;

    const QImage artwork = libraryBundle().image(QLatin1String(entryOf(*this).iconName));
    precondition(!artwork.isNull());

    const double scale = screenScale();
    const double pixels = std::round(side * scale);
    if (!(pixels >= 1 && pixels <= largestSide))
        return {};
    const QSize size(static_cast<int>(pixels), static_cast<int>(pixels));
    QImage thumbnail = artwork.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    thumbnail.setDevicePixelRatio(scale);
    return thumbnail;
}

QStringList TQApp::guideText() const
{
    QStringList paragraphs;
    for (const char *paragraph : entryOf(*this).guide)
        paragraphs += localizedInLibrary(QString::fromUtf8(paragraph));
    return paragraphs;
}

QString TQApp::appLink() const
{
    return QLatin1String(DeveloperIdentity::storeHost) + u"/app/id" + id();
}

QString TQApp::reviewLink() const
{
    return appLink() + u"?action=write-review";
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

} // namespace TQFoundation
