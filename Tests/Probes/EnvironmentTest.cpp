#include <TQFoundation/Environment.h>

#include "RecordingPlatform.h"

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;

class EnvironmentRegion : public testing::TestWithParam<std::pair<std::optional<std::string>, bool>>
{};

TEST_P(EnvironmentRegion, IsMainlandChinaForChnAndUnknown)
{
    const InstalledRecordingPlatform platform;
    if (GetParam().first)
        platform->storefront = QString::fromStdString(*GetParam().first);
    EXPECT_EQ(isChn(), GetParam().second);
    EXPECT_EQ(platform->calls, QStringList{QStringLiteral("storefrontCountryCode()")});
}

INSTANTIATE_TEST_SUITE_P(Storefronts, EnvironmentRegion,
                         testing::Values(std::pair(std::nullopt, true), std::pair("CHN", true), std::pair("USA", false),
                                         std::pair("HKG", false), std::pair("TWN", false), std::pair("chn", false),
                                         std::pair("", false), std::pair("CHN ", false), std::pair("CHN\n", false)));

TEST(EnvironmentRegion, KeepsItsFirstValue)
{
    const InstalledRecordingPlatform platform;
    platform->storefront = QStringLiteral("USA");
    EXPECT_FALSE(isChn());
    platform->storefront = QStringLiteral("CHN");
    EXPECT_FALSE(isChn());
    EXPECT_EQ(platform->calls.size(), 1);
}

TEST(Environment, KeepsFirstValuesWhenTheScreenChanges)
{
    const InstalledRecordingPlatform platform;
    platform->bounds = {375.5, 667.25};
    platform->scale = 1.5;
    EXPECT_EQ(screenWidth(), 375.5);
    EXPECT_EQ(screenHeight(), 667.25);
    EXPECT_EQ(screenScale(), 1.5);
    platform->bounds = {667, 375};
    platform->scale = 2;
    EXPECT_EQ(screenWidth(), 375.5);
    EXPECT_EQ(screenHeight(), 667.25);
    EXPECT_EQ(screenScale(), 1.5);
    EXPECT_EQ(platform->calls.size(), 3);
}

TEST(Environment, ReadsWidthAndHeightSeparately)
{
    const InstalledRecordingPlatform platform;
    EXPECT_EQ(screenWidth(), 390);
    EXPECT_EQ(platform->calls, QStringList{QStringLiteral("screenBounds()")});
    platform->bounds = {100, 200};
    EXPECT_EQ(screenHeight(), 200) << "one-time initialisation per value";
    EXPECT_EQ(platform->calls.size(), 2);
}

TEST(Environment, ReadsHeightAlone)
{
    const InstalledRecordingPlatform platform;
    EXPECT_EQ(screenHeight(), 844);
    EXPECT_EQ(platform->calls, QStringList{QStringLiteral("screenBounds()")});
}

TEST(Environment, ReadsScaleAlone)
{
    const InstalledRecordingPlatform platform;
    EXPECT_EQ(screenScale(), 3);
    EXPECT_EQ(platform->calls, QStringList{QStringLiteral("screenScale()")});
}

} // namespace
} // namespace TQFoundation
