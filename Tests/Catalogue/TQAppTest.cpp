#include <TQFoundation/TQApp.h>

#include "DeathTest.h"
#include "DeveloperIdentity.h"
#include "Languages.h"
#include "RecordingPlatform.h"

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qset.h>
#include <QtCore/qtemporarydir.h>

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstdint>
#include <iterator>
#include <unordered_set>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::useLanguage;

// The number of apps.
constexpr auto appCount = static_cast<int>(TQApp::allCases().size());

// Expects each pixel of \a image to be the average of \a block by \a block pixels of \a artwork.
void expectAverages(const QImage &image, const QImage &artwork, int block)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            int red = 0;
            int alpha = 0;
            for (int pixel = 0; pixel < block * block; ++pixel) {
                const auto *line = reinterpret_cast<const QRgb *>(artwork.constScanLine(y * block + pixel / block));
                red += qRed(line[x * block + pixel % block]);
                alpha += qAlpha(line[x * block + pixel % block]);
            }
            const QRgb shown = reinterpret_cast<const QRgb *>(image.constScanLine(y))[x];
            ASSERT_NEAR(qRed(shown), red / (block * block), 3) << x << ',' << y;
            ASSERT_NEAR(qAlpha(shown), alpha / (block * block), 3) << x << ',' << y;
        }
    }
}

TEST(TQApp, ListsCasesInOrder)
{
    constexpr auto cases = TQApp::allCases();
    const TQApp expected[] = {TQApp::larch, TQApp::juniper, TQApp::hazel, TQApp::ginkgo, TQApp::fir,
                              TQApp::elm,   TQApp::dogwood, TQApp::cedar, TQApp::birch,  TQApp::alder};
    ASSERT_EQ(cases.size(), std::size(expected)) << "this test does not list all apps";
    for (std::size_t index = 0; index < cases.size(); ++index) {
        EXPECT_EQ(cases[index], expected[index]);
        EXPECT_EQ(static_cast<std::size_t>(TQApp::Case(cases[index])), index);
    }
}

TEST(TQApp, HasDistinctIdsOfTenDigits)
{
    static const QRegularExpression tenDigits(QStringLiteral("\\A[0-9]{10}\\z"));
    QSet<QString> ids;
    for (const TQApp app : TQApp::allCases()) {
        EXPECT_TRUE(tenDigits.match(app.id()).hasMatch()) << app.id().toStdString();
        ids.insert(app.id());
    }
    EXPECT_EQ(ids.size(), appCount);
}

TEST(TQApp, HasDistinctFilingsExceptAlder)
{
    const InstalledRecordingPlatform platform;
    platform->root = Testing::emptyBundle();
    static const QRegularExpression filing(QStringLiteral("\\AICP-[0-9]{10}-[0-9]{1,2}A\\z"));
    QSet<QString> filings;
    int filed = 0;
    EXPECT_FALSE(TQApp::alder.icp());
    for (const TQApp app : TQApp::allCases()) {
        if (app.icp()) {
            ++filed;
            EXPECT_TRUE(filing.match(*app.icp()).hasMatch()) << app.icp()->toStdString();
            filings.insert(*app.icp());
        }
    }
    EXPECT_GE(filed, 9);
    EXPECT_EQ(filings.size(), filed);
}

TEST(TQApp, TranslatesFilingsUpToTheirSuffix)
{
    useLanguage("zh-CN");
    EXPECT_EQ(TQApp::larch.icp(), QStringLiteral("京ICP备2099000001号-1A"));
    EXPECT_EQ(TQApp::birch.icp(), QStringLiteral("京ICP备2099000001号-9A"));
}

TEST(TQApp, LinksToItsStorePageAndReviewForm)
{
    EXPECT_EQ(TQApp::larch.appLink(), QStringLiteral("https://apps.apple.com/app/id9990000001"));
    for (const TQApp app : TQApp::allCases()) {
        EXPECT_EQ(app.appLink(),
                  QLatin1String(DeveloperIdentity::storeHost) + QLatin1String(DeveloperIdentity::storeAppPath)
                      + app.id());
        EXPECT_EQ(app.reviewLink(), QString(app.appLink() + QStringLiteral("?action=write-review")));
    }
}

TEST(TQApp, HasGuidesForHazelAndDogwoodOnly)
{
    for (const TQApp app : TQApp::allCases())
        EXPECT_EQ(app.guideText().size(), app == TQApp::hazel ? 6 : app == TQApp::dogwood ? 5 : 0);
}

TEST(TQApp, KeepsGuidesWordForWordWithoutATable)
{
    const InstalledRecordingPlatform platform;
    platform->root = Testing::emptyBundle();
    const QStringList hazel = TQApp::hazel.guideText();
    EXPECT_TRUE(
        hazel[0].startsWith(QStringLiteral("Welcome to the Hazel Grid.\n\nThe game is an infinite, two-dimensional "
                                           "orthogonal grid of square cells, each of which is in one of two "
                                           "possible states, ")));
    EXPECT_TRUE(hazel[0].endsWith(QStringLiteral(".\n\nAt each step in time, the following transitions occur:")));
    EXPECT_EQ(hazel[0].count(QStringLiteral("\n\n")), 2);
    EXPECT_EQ(
        hazel.sliced(1),
        (QStringList{
            QStringLiteral("1.\n\nAny live cell with fewer than two live neighbours dies, as if by underpopulation."),
            QStringLiteral("2.\n\nAny live cell with two or three live neighbours lives on to the next generation."),
            QStringLiteral("3.\n\nAny live cell with more than three live neighbours dies, as if by overpopulation."),
            QStringLiteral("4.\n\nAny dead cell with exactly three live neighbours becomes a live cell, as if by "
                           "reproduction."),
            QStringLiteral("Next, please enjoy the Hazel Grid.\n\nBest regards."),
        }));
    EXPECT_EQ(
        TQApp::dogwood.guideText(),
        (QStringList{
            QStringLiteral("欢迎使用「青岚」。\n\n「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正"
                           "确文字。"),
            QStringLiteral("输入一个有效中文文字，按下回车按钮提交。\n\n每次提交之后，文字的笔画颜色也许会发生变化："),
            QStringLiteral("绿色，\n\n表示正确文字包含此笔画，并且笔顺正确。\n\n在正确文字和所提交的文字的中都会全部显"
                           "示。"),
            QStringLiteral("灰色，\n\n代表正确文字虽然包含此笔画，但是笔顺不正确。\n\n如果这些笔画相同，在正确文字中只"
                           "会显示一次，在所提交的文字中则会全部显示。"),
            QStringLiteral("接下来请使用「青岚」。\n\n敬颂时祺。"),
        }));
}

TEST(TQApp, TranslatesEachParagraph)
{
    useLanguage("zh-CN");
    EXPECT_TRUE(TQApp::hazel.guideText().at(1).startsWith(QStringLiteral("1.\n\n")));
    EXPECT_NE(TQApp::hazel.guideText().at(1),
              QStringLiteral("1.\n\nAny live cell with fewer than two live neighbours dies, "
                             "as if by underpopulation."));
}

TEST(TQApp, TranslatesAnewAtEachCall)
{
    useLanguage("zh-CN");
    const InstalledRecordingPlatform platform;
    const QString filing = TQApp::larch.icp().value();
    const QStringList guide = TQApp::hazel.guideText();
    const QUrl icon = TQApp::larch.iconUrl();
    platform->root = Testing::emptyBundle();
    EXPECT_EQ(filing, QStringLiteral("京ICP备2099000001号-1A"));
    EXPECT_EQ(TQApp::larch.icp(), QStringLiteral("ICP-2099000001-1A"));
    EXPECT_FALSE(guide.at(1).startsWith(QStringLiteral("1.\n\nAny live cell")));
    EXPECT_TRUE(TQApp::hazel.guideText().at(1).startsWith(QStringLiteral("1.\n\nAny live cell")));
    EXPECT_NE(TQApp::larch.iconUrl(), icon);
}

TEST(TQApp, KeepsTintLiteralsBitForBit)
{
    using Bits = std::array<std::uint32_t, 4>;
    const auto bitsOf = [](TQApp app) {
        EXPECT_FALSE(app.tintColor().isDynamic());
        return std::bit_cast<Bits>(app.tintColor().resolved(Appearance::light));
    };
    constexpr std::uint32_t one = 0x3F800000;
    EXPECT_EQ(bitsOf(TQApp::larch), (Bits{0x3F73F3F4, 0x3EE0E0E1, 0x3E048487, one})); // 0.9529412 0.4392157 0.1294118
    EXPECT_EQ(bitsOf(TQApp::ginkgo), (Bits{one, 0x3ECCCCCD, 0x3F33B3B4, one})); // 1 0.4 0.7019608
    EXPECT_EQ(bitsOf(TQApp::dogwood), (Bits{0, 0x3F0F7105, 0, one})); // 0 0.5603183 0
    EXPECT_EQ(bitsOf(TQApp::cedar), (Bits{0x3F14F649, 0x3E5CDE3C, one, one})); // 0.581883 0.2156915 1
    EXPECT_EQ(bitsOf(TQApp::birch), (Bits{0x3F149495, 0x3DB8B8B9, 0x3EA2A2A4, one})); // 0.5803922 0.09019608 0.3176471
    EXPECT_EQ(bitsOf(TQApp::alder), (Bits{0, 0x3F32B2B2, 0x3F36B6B7, one})); // 0 0.6980392 0.7137255
}

TEST(TQApp, HasFourSystemTints)
{
    EXPECT_EQ(TQApp::juniper.tintColor(), Color::systemBlue());
    EXPECT_EQ(TQApp::hazel.tintColor(), Color::label());
    EXPECT_EQ(TQApp::fir.tintColor(), Color::systemGray());
    EXPECT_EQ(TQApp::elm.tintColor(), Color::systemRed());
}

TEST(TQApp, ComparesAndHashesByCase)
{
    std::unordered_set<TQApp> standard;
    QSet<TQApp> qt;
    for (const TQApp a : TQApp::allCases()) {
        for (const TQApp b : TQApp::allCases())
            EXPECT_EQ(a == b, TQApp::Case(a) == TQApp::Case(b));
        EXPECT_EQ(std::hash<TQApp>{}(a), std::hash<TQApp>{}(TQApp(TQApp::Case(a))));
        standard.insert(a);
        qt.insert(a);
    }
    EXPECT_EQ(static_cast<int>(standard.size()), appCount);
    EXPECT_EQ(qt.size(), appCount);
}

TEST(TQApp, WorksInSwitch)
{
    const auto isFirst = [](TQApp app) {
        switch (app) {
        case TQApp::larch:
            return true;
        default:
            return false;
        }
    };
    EXPECT_TRUE(isFirst(TQApp::larch));
    EXPECT_FALSE(isFirst(TQApp::alder));
}

class TQAppHostIdentity : public testing::Test
{
protected:
    void set(const char *key, const QVariant &value) { platform->infoDictionary.insert(QLatin1String(key), value); }

    InstalledRecordingPlatform platform;
};

TEST_F(TQAppHostIdentity, ReadsOnlyTheDisplayNameIfPresent)
{
    set("CFBundleDisplayName", QStringLiteral("Hazel Grid"));
    set("CFBundleName", QStringLiteral("hazel"));
    EXPECT_EQ(TQApp::name(), QStringLiteral("Hazel Grid"));
    EXPECT_EQ(platform->calls, QStringList{QStringLiteral("infoDictionaryValue(CFBundleDisplayName)")});
}

TEST_F(TQAppHostIdentity, FallsBackToTheBundleName)
{
    set("CFBundleName", QStringLiteral("hazel"));
    EXPECT_EQ(TQApp::name(), QStringLiteral("hazel"));
    EXPECT_EQ(platform->calls.last(), QStringLiteral("infoDictionaryValue(CFBundleName)"));
}

TEST_F(TQAppHostIdentity, HasEmptyNameWithoutEntries)
{
    EXPECT_EQ(TQApp::name(), QString());
}

TEST_F(TQAppHostIdentity, AcceptsAnEmptyDisplayName)
{
    set("CFBundleDisplayName", QStringLiteral(""));
    set("CFBundleName", QStringLiteral("hazel"));
    EXPECT_EQ(TQApp::name(), QString());
}

TEST_F(TQAppHostIdentity, ReadsVersionAndBuildNumber)
{
    EXPECT_EQ(TQApp::version(), QString());
    EXPECT_EQ(TQApp::buildNumber(), QString());
    set("CFBundleShortVersionString", QStringLiteral("2.3.1"));
    set("CFBundleVersion", QStringLiteral("57"));
    EXPECT_EQ(TQApp::version(), QStringLiteral("2.3.1"));
    EXPECT_EQ(TQApp::buildNumber(), QStringLiteral("57"));
}

TEST_F(TQAppHostIdentity, IgnoresEntriesThatAreNotStrings)
{
    set("CFBundleDisplayName", 7);
    set("CFBundleName", QByteArray("bytes"));
    set("CFBundleShortVersionString", 2.3);
    set("CFBundleVersion", 57LL);
    EXPECT_EQ(TQApp::name(), QString());
    EXPECT_EQ(TQApp::version(), QString());
    EXPECT_EQ(TQApp::buildNumber(), QString());
}

TEST_F(TQAppHostIdentity, IsReadAtEachCall)
{
    set("CFBundleName", QStringLiteral("before"));
    EXPECT_EQ(TQApp::name(), QStringLiteral("before"));
    set("CFBundleName", QStringLiteral("after"));
    EXPECT_EQ(TQApp::name(), QStringLiteral("after"));
}

class TQAppIconAtScale : public testing::TestWithParam<std::pair<double, int>>
{};

TEST_P(TQAppIconAtScale, IsThirtySixPointsSquare)
{
    const InstalledRecordingPlatform platform;
    platform->scale = GetParam().first;
    for (const TQApp app : TQApp::allCases()) {
        const QImage icon = app.icon();
        EXPECT_EQ(icon.size(), QSize(GetParam().second, GetParam().second));
        EXPECT_EQ(icon.devicePixelRatio(), GetParam().first);
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, TQAppIconAtScale,
                         testing::Values(std::pair(1.0 / 36, 1), std::pair(1.0, 36), std::pair(1.1, 40),
                                         std::pair(1.25, 45), std::pair(1.5, 54), std::pair(2.0, 72),
                                         std::pair(3.0, 108), std::pair(4.0, 144)));

class TQAppIconAtInvalidScale : public testing::TestWithParam<double>
{};

TEST_P(TQAppIconAtInvalidScale, IsNull)
{
    const InstalledRecordingPlatform platform;
    platform->scale = GetParam();
    EXPECT_TRUE(TQApp::fir.icon().isNull());
}

INSTANTIATE_TEST_SUITE_P(Screens, TQAppIconAtInvalidScale,
                         testing::Values(0.0, -1.0, 0.013, 16385.0 / 36, 1e6, 1e300, std::nan(""), HUGE_VAL,
                                         -HUGE_VAL));

TEST(TQAppArtwork, DiffersBetweenApps)
{
    QSet<QByteArray> pictures;
    for (const TQApp app : TQApp::allCases()) {
        const QImage icon = app.icon();
        pictures.insert(QByteArray(reinterpret_cast<const char *>(icon.constBits()), icon.sizeInBytes()));
        EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0) << "the artwork brings its own rounded shape";
        EXPECT_EQ(qAlpha(icon.pixel(icon.width() / 2, 2)), 255);
    }
    EXPECT_EQ(pictures.size(), appCount);
}

// The file, and the colour of its upper edge, which differs between apps.
TEST(TQAppArtwork, BelongsToItsApp)
{
    const InstalledRecordingPlatform platform;
    const std::pair<const char *, QColor> expected[] = {
        {"larch-page", 0xFE893C}, {"juniper-page", 0x3B95FE}, {"hazel-page", 0x4E4E53}, {"ginkgo-page", 0xFF80C1},
        {"fir", 0x9C9CA1},        {"elm-page", 0xFE584D},     {"dogwood", 0x21A721},    {"cedar", 0xAA5AFE},
        {"birch", 0xAB2B67},      {"alder-page", 0x1EC7CA}};
    for (const TQApp app : TQApp::allCases()) {
        const auto &[name, color] = expected[static_cast<std::size_t>(TQApp::Case(app))];
        EXPECT_EQ(app.iconUrl().fileName(), QLatin1String(name) + QLatin1String(".png"));
        const QColor shown = app.icon().pixelColor(54, 3);
        for (const auto component : {&QColor::red, &QColor::green, &QColor::blue})
            EXPECT_NEAR((shown.*component)(), (color.*component)(), 8) << name;
    }
}

TEST(TQAppArtwork, IsScaledByAveraging)
{
    const InstalledRecordingPlatform platform;
    for (const TQApp app : TQApp::allCases()) {
        const auto artwork =
            QImage(app.iconUrl().toString().mid(3)).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
            platform->scale = scale;
            const QImage icon = app.icon().convertToFormat(QImage::Format_ARGB32_Premultiplied);
            const int block = artwork.width() / icon.width(); // the artwork's pixels for each of the icon's
            ASSERT_EQ(artwork.size(), icon.size() * block);
            expectAverages(icon, artwork, block);
        }
    }
}

TEST(TQAppArtwork, IsStretchedFromAnySize)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Icons")));
    const InstalledRecordingPlatform platform;
    platform->root = folder.path();
    for (const QSize size : {QSize(1, 1), QSize(50, 20), QSize(1024, 1024)}) {
        QImage artwork(size, QImage::Format_ARGB32);
        artwork.fill(Qt::red);
        ASSERT_TRUE(artwork.save(folder.filePath(QStringLiteral("Icons/fir.png"))));
        const QImage icon = TQApp::fir.icon();
        EXPECT_EQ(icon.size(), QSize(108, 108));
        EXPECT_EQ(icon.pixel(0, 0), qRgb(255, 0, 0));
        EXPECT_EQ(icon.pixel(107, 107), qRgb(255, 0, 0));
    }
}

TEST(TQAppArtworkDeathTest, StopsTheProcessIfMissing)
{
    const InstalledRecordingPlatform platform;
    platform->root = Testing::emptyBundle();
    EXPECT_EXIT(TQApp::fir.icon(), testing::KilledBySignal(Testing::trapSignal), Testing::noMessage);
}

TEST(TQAppArtworkDeathTest, StopsTheProcessIfBroken)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Icons")));
    QFile icon(folder.filePath(QStringLiteral("Icons/fir.png")));
    ASSERT_TRUE(icon.open(QIODevice::WriteOnly));
    icon.write("\x89PNG\r\n\x1a\nnothing more");
    icon.close();
    const InstalledRecordingPlatform platform;
    platform->root = folder.path();
    // The image decoder may print a message.
    EXPECT_EXIT(TQApp::fir.icon(), testing::KilledBySignal(Testing::trapSignal), "");
}

TEST(TQAppDeathTest, StopsTheProcessForInvalidCases)
{
    for (const int number : {-1, 10}) {
        const TQApp forced(static_cast<TQApp::Case>(number));
        EXPECT_EXIT(forced.tintColor(), testing::KilledBySignal(Testing::trapSignal), Testing::noMessage);
        EXPECT_EXIT(forced.id(), testing::KilledBySignal(Testing::trapSignal), Testing::noMessage);
    }
}

} // namespace
} // namespace TQFoundation
