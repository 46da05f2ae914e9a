#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace TQFoundation::Testing {

// clang-format off
/// What an app, its user or its system may do, each at any moment. All of it stays within the stated preconditions.
#define TQ_STORM_ACTIONS(DO) \
    DO(makeWindow) DO(destroyWindow) DO(hideOrShowWindow) DO(resizeWindow) DO(moveKey) DO(changeScene) \
    DO(click) DO(press) DO(wheel) DO(passTime) DO(tick) DO(stall) \
    DO(makeGuide) DO(showGuide) DO(tapGuide) DO(takeGuideOff) DO(letGoOfGuide) DO(editFlag) \
    DO(placeBackground) DO(recolour) DO(moveBackground) DO(removeBackground) \
    DO(makeView) DO(startView) DO(addChildToView) DO(letGoOfView) \
    DO(present) DO(dismiss) DO(letGoOfController) DO(setRoot) DO(deleteControllersView) \
    DO(startEngine) DO(teardownEngine) DO(changeAppearance) DO(mirror) DO(askEverything)
// clang-format on

/// One thing that is done, to whichever of the objects its numbers choose. Every sequence of steps means something: a
/// step that finds nothing to act on does nothing.
struct Step
{
#define TQ_STORM_NAME(name) name,
    enum class Action { TQ_STORM_ACTIONS(TQ_STORM_NAME) count };
#undef TQ_STORM_NAME

    Action action;
    std::uint32_t one = 0;
    std::uint32_t two = 0;
};

using Steps = std::vector<Step>;

/// The steps that belong to \a seed.
Steps stormOf(std::uint32_t seed, int count);

/// How much happened in storms, so that one in which nothing does is seen.
struct Tally
{
    int shownGuides = 0;
    int taps = 0;
    int tapsByInput = 0; ///< by clicks and keys
    int finishedGuides = 0;
    int ticks = 0;
    int presentations = 0;
    int frames = 0;
};

/// Does all \a steps in a fresh app and then takes that down. What went wrong first, with the number of the step, or
/// nothing. Adds to \a tally.
std::optional<std::string> broken(const Steps &steps, Tally *tally = nullptr);

/// As few of \a steps as still make \a fails true, which they do.
Steps shrunk(Steps steps, const std::function<bool(const Steps &)> &fails);

/// The steps as C++, to be pasted into a test.
std::string asCode(const Steps &steps);

/// What asCode() wrote, read again; for a process that repeats another one's steps.
Steps fromCode(const std::string &code);

} // namespace TQFoundation::Testing
