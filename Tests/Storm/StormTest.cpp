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

constexpr int stepsOfStorm = 400;

std::uint32_t number(const char *name, std::uint32_t otherwise)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariable(name).toUInt() : otherwise;
}

// A process of its own, so that steps that crash it count as failing too.
bool failsElsewhere(const Steps &steps)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("steps")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(asCode(steps)));
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

// TQ_STORM_STEPS and TQ_STORM_SEED choose how many steps are done and which; the target `storm` does a million.
TEST(ApiStorm, BreaksNoRule)
{
    const std::uint32_t first = number("TQ_STORM_SEED", 1);
    const std::uint32_t storms = number("TQ_STORM_STEPS", 20'000) / stepsOfStorm;
    Tally tally;
    for (std::uint32_t seed = first; seed < first + storms; ++seed) {
        // Told before, because a crash tells nothing.
        std::printf("storm %u\n", seed);
        std::fflush(stdout);
        const Steps steps = stormOf(seed, stepsOfStorm);
        const auto failure = broken(steps, &tally);
        if (failure || HasFailure()) {
            ADD_FAILURE() << "seed " << seed << ": " << failure.value_or("a line was logged") << "\n"
                          << asCode(shrunk(steps, failsElsewhere));
            return;
        }
    }
    std::printf("guides shown %d, finished %d; taps %d, of them by input %d; ticks %d; presentations %d; frames %d\n",
                tally.shownGuides, tally.finishedGuides, tally.taps, tally.tapsByInput, tally.ticks,
                tally.presentations, tally.frames);
    if (storms < 20)
        return;
    for (const int happened :
         {tally.shownGuides, tally.finishedGuides, tally.tapsByInput, tally.ticks, tally.presentations, tally.frames})
        EXPECT_GT(happened, 0);
}

// For a seed that crashed: TQ_STORM_SEED says which, and what remains of it is printed.
TEST(ApiStorm, DISABLED_Shrink)
{
    const Steps steps = stormOf(number("TQ_STORM_SEED", 1), stepsOfStorm);
    ASSERT_TRUE(failsElsewhere(steps));
    std::puts(asCode(shrunk(steps, failsElsewhere)).c_str());
}

TEST(ApiStorm, DISABLED_Replay)
{
    QFile file(qEnvironmentVariable("TQ_STORM_REPLAY"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(broken(fromCode(file.readAll().toStdString())), std::nullopt);
}

// What storms have found.

TEST(ApiStorm, AWindowForgetsAGuideThatHadOutlivedAnother)
{
    const Steps steps{
        {Step::Action::makeGuide, 799, 137139},       {Step::Action::makeWindow, 752, 13515},
        {Step::Action::hideOrShowWindow, 788, 52943}, {Step::Action::makeWindow, 570, 50426},
        {Step::Action::moveKey, 923, 145731},         {Step::Action::makeWindow, 417, 8025},
        {Step::Action::showGuide, 870, 71056},        {Step::Action::destroyWindow, 146, 114952},
        {Step::Action::letGoOfGuide, 57, 89044},      {Step::Action::showGuide, 236, 85597},
        {Step::Action::makeGuide, 483, 109958},       {Step::Action::showGuide, 185, 65641},
        {Step::Action::hideOrShowWindow, 864, 34705}, {Step::Action::tapGuide, 496, 82011},
        {Step::Action::showGuide, 504, 20687},        {Step::Action::destroyWindow, 463, 164857},
        {Step::Action::passTime, 863, 193814},        {Step::Action::press, 805, 93928},
    };
    EXPECT_EQ(broken(steps), std::nullopt);
}

TEST(ApiStorm, NoWindowKeepsTheFocusOnAGuideThatHasGone)
{
    const Steps steps{
        {Step::Action::makeWindow, 549, 124708},      {Step::Action::makeGuide, 818, 158565},
        {Step::Action::hideOrShowWindow, 239, 26181}, {Step::Action::makeGuide, 273, 39468},
        {Step::Action::showGuide, 950, 376},          {Step::Action::makeWindow, 695, 140129},
        {Step::Action::makeWindow, 925, 148910},      {Step::Action::makeGuide, 317, 196175},
        {Step::Action::letGoOfGuide, 228, 70392},     {Step::Action::destroyWindow, 544, 157742},
        {Step::Action::hideOrShowWindow, 592, 12647}, {Step::Action::destroyWindow, 722, 253},
        {Step::Action::destroyWindow, 643, 116497},   {Step::Action::makeWindow, 947, 38702},
        {Step::Action::makeWindow, 48, 127371},       {Step::Action::moveKey, 778, 145549},
        {Step::Action::showGuide, 747, 106804},       {Step::Action::makeWindow, 504, 178961},
        {Step::Action::tapGuide, 510, 119588},        {Step::Action::showGuide, 843, 174932},
        {Step::Action::passTime, 857, 37667},         {Step::Action::takeGuideOff, 567, 67300},
        {Step::Action::moveKey, 700, 184812},
    };
    EXPECT_EQ(broken(steps), std::nullopt);
}

// The storm itself.

TEST(ApiStorm, ShrinksToTheStepsThatMatter)
{
    const Steps steps = stormOf(7, stepsOfStorm);
    const auto matters = [](const Steps &some) {
        const auto count = [&](Step::Action action) { return std::ranges::count(some, action, &Step::action); };
        return count(Step::Action::click) >= 2 && count(Step::Action::tick) >= 1;
    };
    const Steps few = shrunk(steps, matters);
    EXPECT_EQ(few.size(), 3U);
    EXPECT_TRUE(matters(few));
}

TEST(ApiStorm, PrintsStepsThatCanBePasted)
{
    const Steps steps = stormOf(3, 50);
    const Steps read = fromCode(asCode(steps));
    ASSERT_EQ(read.size(), steps.size());
    EXPECT_EQ(asCode(read), asCode(steps));
}

} // namespace
} // namespace TQFoundation::Testing
