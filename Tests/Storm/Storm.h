#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace TQFoundation::Testing {

// Random testing of the public API: a storm runs random calls and events against a fresh app and checks invariants
// after each of them. A failing sequence is shrunk and printed as C++.

// clang-format off
/// Everything that an app, its user or its system can do at any time, within the documented preconditions. The order
/// decides which steps belong to a seed.
#define TQ_STORM_ACTIONS(DO) \
    DO(makeWindow) DO(destroyWindow) DO(hideOrShowWindow) DO(resizeWindow) DO(changeKeyWindow) DO(changeSceneState) \
    DO(click) DO(pressKey) DO(turnWheel) DO(runAnimations) DO(advanceTime) DO(stallTime) \
    DO(makeGuide) DO(showGuide) DO(tapGuide) DO(unparentGuide) DO(releaseGuide) DO(editFlag) \
    DO(addBackground) DO(changeColor) DO(moveBackground) DO(destroyBackground) \
    DO(makeView) DO(startView) DO(addChildToView) DO(releaseView) \
    DO(present) DO(dismiss) DO(releaseController) DO(setRoot) DO(destroyControllersView) \
    DO(startEngine) DO(destroyEngine) DO(changeAppearance) DO(changeLayoutDirection) DO(readEverything)
// clang-format on

/// One call or event. Its numbers choose the objects and the arguments, each modulo the number of choices, so that
/// every sequence of steps is valid. A step that finds no object to act on does nothing.
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

/// Returns \a count random steps that depend on \a seed alone.
Steps randomSteps(std::uint32_t seed, int count);

/// How often each thing happened. Shows that a storm reaches the code under test.
struct StormCounts
{
    int shownGuides = 0;
    int taps = 0;
    int tapsByInput = 0; ///< Taps from mouse and key events.
    int finishedGuides = 0;
    int ticks = 0;
    int presentations = 0;
    int frames = 0;
};

/// Runs \a steps in a fresh app, then tears the app down. Returns the first broken rule with the index of its step, or
/// nothing if all rules hold. Adds to \a counts if that is not null.
std::optional<std::string> firstBrokenRule(const Steps &steps, StormCounts *counts = nullptr);

/// Removes steps by delta debugging as long as \a fails stays true for the rest. Requires that it is true for \a steps.
Steps shrink(Steps steps, const std::function<bool(const Steps &)> &fails);

/// Returns \a steps as the C++ body of a test.
std::string toCode(const Steps &steps);

/// Parses the output of toCode(), for a process that replays the steps of another one.
Steps fromCode(const std::string &code);

} // namespace TQFoundation::Testing
