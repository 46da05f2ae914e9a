#include "Storm.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qfile.h>
#include <QtCore/qprocess.h>
#include <QtCore/qtemporarydir.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

namespace TQFoundation::Testing {
namespace {

constexpr int stepsPerStorm = 400;

std::uint32_t environmentNumber(const char *name, std::uint32_t fallback)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariable(name).toUInt() : fallback;
}

// Replays the steps in a new process, so that a crash counts as a failure.
bool failsInNewProcess(const Steps &steps)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("steps")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(toCode(steps)));
    file.close();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TQ_STORM_REPLAY"), file.fileName());
    process.setProcessEnvironment(environment);
    process.start(
        QCoreApplication::applicationFilePath(),
        {QStringLiteral("--gtest_also_run_disabled_tests"), QStringLiteral("--gtest_filter=ApiStorm.DISABLED_Replay")});
    return !process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
}

// TQ_STORM_STEPS is the number of steps, TQ_STORM_SEED the first seed. The target `storm` runs a million steps.
TEST(ApiStorm, BreaksNoRule)
{
    const std::uint32_t first = environmentNumber("TQ_STORM_SEED", 1);
    const std::uint32_t storms = environmentNumber("TQ_STORM_STEPS", 20'000) / stepsPerStorm;
    StormCounts counts;
    for (std::uint32_t seed = first; seed < first + storms; ++seed) {
        // Printed first, so that the seed of a crash is known.
        std::printf("storm %u\n", seed);
        std::fflush(stdout);
        const Steps steps = randomSteps(seed, stepsPerStorm);
        const auto failure = firstBrokenRule(steps, &counts);
        if (failure || HasFailure()) {
            ADD_FAILURE() << "seed " << seed << ": " << failure.value_or("a test failure was recorded") << "\n"
                          << toCode(shrink(steps, failsInNewProcess));
            return;
        }
    }
    std::printf("guides shown %d, finished %d; taps %d, of them by input %d; ticks %d; presentations %d; frames %d\n",
                counts.shownGuides, counts.finishedGuides, counts.taps, counts.tapsByInput, counts.ticks,
                counts.presentations, counts.frames);
    if (storms < 20)
        return;
    for (const int count : {counts.shownGuides, counts.finishedGuides, counts.tapsByInput, counts.ticks,
                            counts.presentations, counts.frames})
        EXPECT_GT(count, 0);
}

// Shrinks the steps of TQ_STORM_SEED, for a seed that crashes the process.
TEST(ApiStorm, DISABLED_Shrink)
{
    const Steps steps = randomSteps(environmentNumber("TQ_STORM_SEED", 1), stepsPerStorm);
    ASSERT_TRUE(failsInNewProcess(steps));
    std::puts(toCode(shrink(steps, failsInNewProcess)).c_str());
}

TEST(ApiStorm, DISABLED_Replay)
{
    QFile file(qEnvironmentVariable("TQ_STORM_REPLAY"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(firstBrokenRule(fromCode(file.readAll().toStdString())), std::nullopt);
}

// Regression tests for bugs that storms have found.

TEST(ApiStorm, WindowForgetsGuideOfDestroyedWindow)
{
    const Steps steps{
        {Step::Action::makeGuide, 799, 137139},       {Step::Action::makeWindow, 752, 13515},
        {Step::Action::hideOrShowWindow, 788, 52943}, {Step::Action::makeWindow, 570, 50426},
        {Step::Action::changeKeyWindow, 923, 145731}, {Step::Action::makeWindow, 417, 8025},
        {Step::Action::showGuide, 870, 71056},        {Step::Action::destroyWindow, 146, 114952},
        {Step::Action::releaseGuide, 57, 89044},      {Step::Action::showGuide, 236, 85597},
        {Step::Action::makeGuide, 483, 109958},       {Step::Action::showGuide, 185, 65641},
        {Step::Action::hideOrShowWindow, 864, 34705}, {Step::Action::tapGuide, 496, 82011},
        {Step::Action::showGuide, 504, 20687},        {Step::Action::destroyWindow, 463, 164857},
        {Step::Action::runAnimations, 863, 193814},   {Step::Action::pressKey, 805, 93928},
    };
    EXPECT_EQ(firstBrokenRule(steps), std::nullopt);
}

TEST(ApiStorm, NoWindowKeepsFocusOnDestroyedGuide)
{
    const Steps steps{
        {Step::Action::makeWindow, 549, 124708},      {Step::Action::makeGuide, 818, 158565},
        {Step::Action::hideOrShowWindow, 239, 26181}, {Step::Action::makeGuide, 273, 39468},
        {Step::Action::showGuide, 950, 376},          {Step::Action::makeWindow, 695, 140129},
        {Step::Action::makeWindow, 925, 148910},      {Step::Action::makeGuide, 317, 196175},
        {Step::Action::releaseGuide, 228, 70392},     {Step::Action::destroyWindow, 544, 157742},
        {Step::Action::hideOrShowWindow, 592, 12647}, {Step::Action::destroyWindow, 722, 253},
        {Step::Action::destroyWindow, 643, 116497},   {Step::Action::makeWindow, 947, 38702},
        {Step::Action::makeWindow, 48, 127371},       {Step::Action::changeKeyWindow, 778, 145549},
        {Step::Action::showGuide, 747, 106804},       {Step::Action::makeWindow, 504, 178961},
        {Step::Action::tapGuide, 510, 119588},        {Step::Action::showGuide, 843, 174932},
        {Step::Action::runAnimations, 857, 37667},    {Step::Action::unparentGuide, 567, 67300},
        {Step::Action::changeKeyWindow, 700, 184812},
    };
    EXPECT_EQ(firstBrokenRule(steps), std::nullopt);
}

// Tests of the storm itself.

TEST(ApiStorm, ShrinksToFewestFailingSteps)
{
    const Steps steps = randomSteps(7, stepsPerStorm);
    const auto fails = [](const Steps &candidate) {
        const auto count = [&](Step::Action action) { return std::ranges::count(candidate, action, &Step::action); };
        return count(Step::Action::click) >= 2 && count(Step::Action::advanceTime) >= 1;
    };
    const Steps few = shrink(steps, fails);
    EXPECT_EQ(few.size(), 3U);
    EXPECT_TRUE(fails(few));
}

TEST(ApiStorm, ParsesStepsThatItPrinted)
{
    const Steps steps = randomSteps(3, 50);
    const Steps read = fromCode(toCode(steps));
    ASSERT_EQ(read.size(), steps.size());
    EXPECT_EQ(toCode(read), toCode(steps));
}

} // namespace
} // namespace TQFoundation::Testing
