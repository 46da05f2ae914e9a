#pragma once

#include "AnimationClock.h"
#include "RecordingPlatform.h"
#include "Storm.h"

#include <TQFoundation/AnimationView.h>
#include <TQFoundation/Color.h>
#include <TQFoundation/TQGuideView.h>
#include <TQFoundation/TQRandomBackgroundView.h>
#include <TQFoundation/ViewController.h>

#include <QtCore/qpointer.h>
#include <QtGui/qpalette.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickwindow.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace TQFoundation::Testing {

/// An app with its windows, its user and its system, on which a storm runs its steps. Beside each object stands the
/// state that it is expected to have.
class StormWorld
{
public:
    StormWorld();
    ~StormWorld();

    /// Runs one step, delivers the events that it posted, and checks all rules.
    void perform(const Step &step);

    /// Destroys everything that the app owns and checks that nothing else keeps it alive.
    void tearDown();

    std::optional<std::string> brokenRule; ///< the first one
    StormCounts counts;

private:
    static constexpr std::size_t maximumWindows = 3;
    static constexpr std::size_t maximumGuides = 3;
    static constexpr std::size_t maximumViews = 6;
    static constexpr std::size_t maximumControllers = 6;

    struct Guide
    {
        std::shared_ptr<TQGuideView> held; // null once the app has released it
        QPointer<TQGuideView> view;
        int paragraphs = 0;
        int taps = 0;
        // Milliseconds that are left.
        int untilButtonEnabled = 0;
        int untilRemoved = 0;
        int untilAnimationsEnd = 0;
        bool wasShown = false;
        bool isFinished = false;
        int completions = 0;

        bool canTap() const { return view && !isFinished && untilButtonEnabled <= 0; }
    };

    struct View
    {
        std::shared_ptr<AnimationView> held; // null once the app has released it
        QPointer<AnimationView> view;
        bool isStarted = false;
        double lastTick = 0; // media time of the last tick that was seen
    };

    /// Records \a rule as broken unless \a holds or another one was broken before.
    void expect(bool holds, const char *rule);

    /// Returns the element that \a number chooses, or null if \a elements is empty.
    template <typename Elements>
    static auto *pick(Elements &elements, std::uint32_t number)
    {
        return elements.empty() ? nullptr : &elements[number % elements.size()];
    }

    QQuickWindow *window(std::uint32_t number) const;
    QQuickWindow *visibleWindow(std::uint32_t number) const;
    bool hasKeyWindow() const;
    static Color color(std::uint32_t number);

    void updateScenes();
    void passTime(int milliseconds);
    void adoptViews();
    void start(View &view);
    QPoint clickPosition(const Step &step, const QQuickWindow &target);

    void checkRules();
    void checkGuide(const Guide &guide);
    void checkView(View &view);
    void releaseAll();

#define TQ_STORM_DECLARE(name) void name(const Step &step);
    TQ_STORM_ACTIONS(TQ_STORM_DECLARE)
#undef TQ_STORM_DECLARE

    QPalette m_formerPalette;
    InstalledRecordingPlatform m_platform;
    AnimationClock m_clock;
    std::vector<std::unique_ptr<QQuickWindow>> m_windows;
    std::size_t m_keyWindow = 0; // an index; out of range if no window is key
    ActivationState m_sceneState = ActivationState::foregroundActive;
    std::vector<std::unique_ptr<Guide>> m_guides;
    std::vector<QPointer<TQRandomBackgroundView>> m_backgrounds;
    std::vector<View> m_views;
    std::vector<std::shared_ptr<ViewController>> m_controllers;
    std::vector<std::weak_ptr<ViewController>> m_allControllers;
    std::vector<QPointer<QQuickItem>> m_controllersViews;
    std::unique_ptr<QQmlEngine> m_engine;
    std::vector<QPointer<QObject>> m_engineObjects;
    bool m_isFlagStored = false;
    bool m_isInput = false; // the current step is user input
};

} // namespace TQFoundation::Testing
