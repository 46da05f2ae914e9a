#include "Storm.h"

#include "StormWorld.h"

#include <algorithm>
#include <array>
#include <random>
#include <regex>
#include <sstream>

namespace TQFoundation::Testing {
namespace {

using Action = Step::Action;

constexpr std::array names{
#define TQ_STORM_NAME(name) #name,
    TQ_STORM_ACTIONS(TQ_STORM_NAME)
#undef TQ_STORM_NAME
};

const char *nameOf(Action action)
{
    return names[static_cast<std::size_t>(action)];
}

void add(StormCounts &sum, const StormCounts &counts)
{
    sum.shownGuides += counts.shownGuides;
    sum.taps += counts.taps;
    sum.tapsByInput += counts.tapsByInput;
    sum.finishedGuides += counts.finishedGuides;
    sum.ticks += counts.ticks;
    sum.presentations += counts.presentations;
    sum.frames += counts.frames;
}

Steps without(const Steps &steps, std::size_t first, std::size_t count)
{
    const auto from = steps.begin() + static_cast<std::ptrdiff_t>(first);
    const auto to = steps.begin() + static_cast<std::ptrdiff_t>(std::min(first + count, steps.size()));
    Steps rest(steps.begin(), from);
    rest.insert(rest.end(), to, steps.end());
    return rest;
}

} // namespace

Steps randomSteps(std::uint32_t seed, int count)
{
    std::mt19937 random(seed);
    // User input and time are more frequent than the rest.
    std::vector<Action> actions;
    for (std::size_t number = 0; number < names.size(); ++number)
        actions.push_back(static_cast<Action>(number));
    for (const Action action :
         {Action::runAnimations, Action::click, Action::tapGuide, Action::showGuide, Action::advanceTime})
        actions.insert(actions.end(), 3, action);
    Steps steps;
    for (int number = 0; number < count; ++number) {
        const Action action = actions[random() % actions.size()];
        const std::uint32_t one = static_cast<std::uint32_t>(random() % 1000);
        steps.push_back({action, one, static_cast<std::uint32_t>(random() % 200'000)});
    }
    return steps;
}

std::optional<std::string> firstBrokenRule(const Steps &steps, StormCounts *counts)
{
    StormWorld world;
    for (std::size_t number = 0; number < steps.size(); ++number) {
        world.perform(steps[number]);
        if (world.brokenRule)
            return *world.brokenRule + ", broken by step " + std::to_string(number) + ", "
                + nameOf(steps[number].action);
    }
    world.tearDown();
    if (counts)
        add(*counts, world.counts);
    if (world.brokenRule)
        return *world.brokenRule + ", broken by tearing down";
    return std::nullopt;
}

// Zeller and Hildebrandt, "Simplifying and Isolating Failure-Inducing Input", 2002.
Steps shrink(Steps steps, const std::function<bool(const Steps &)> &fails)
{
    for (std::size_t length = std::max<std::size_t>(1, steps.size() / 2); length > 0;) {
        bool isSmaller = false;
        for (std::size_t first = 0; first < steps.size();) {
            Steps fewer = without(steps, first, length);
            if (fails(fewer)) {
                steps = std::move(fewer);
                isSmaller = true;
            } else {
                first += length;
            }
        }
        if (!isSmaller || length > 1)
            length /= 2;
    }
    return steps;
}

std::string toCode(const Steps &steps)
{
    std::ostringstream code;
    code << "    const Steps steps{\n";
    for (const Step &step : steps)
        code << "        {Step::Action::" << nameOf(step.action) << ", " << step.one << ", " << step.two << "},\n";
    code << "    };\n    EXPECT_EQ(firstBrokenRule(steps), std::nullopt);\n";
    return code.str();
}

Steps fromCode(const std::string &code)
{
    static const std::regex pattern(R"(Action::(\w+), (\d+), (\d+))");
    Steps steps;
    for (std::sregex_iterator match(code.begin(), code.end(), pattern), end; match != end; ++match) {
        const auto name = std::ranges::find(names, match->str(1));
        if (name != names.end())
            steps.push_back({static_cast<Action>(name - names.begin()),
                             static_cast<std::uint32_t>(std::stoul(match->str(2))),
                             static_cast<std::uint32_t>(std::stoul(match->str(3)))});
    }
    return steps;
}

} // namespace TQFoundation::Testing
