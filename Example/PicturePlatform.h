#pragma once

#include "GrovePlatform.h"

#include <atomic>

/// The platform of the example while it takes pictures. Every run is a first launch, nothing is stored, no other
/// program is started, and the background advances only if `now` is set.
class PicturePlatform final : public GrovePlatform
{
public:
    using GrovePlatform::GrovePlatform;

    QVariant userDefault(const QString &) const override { return {}; }
    void setUserDefault(const QString &, const QVariant &) override {}
    void openUrl(const QUrl &) override {}
    bool canSendMail() const override { return true; }
    double mediaTime() const override { return now; }
    /// A timer that ticks only by fire().
    std::shared_ptr<TQFoundation::RepeatingTimer> makeTimer(double interval, std::function<void()> tick) override;

    std::atomic<double> now = 0; ///< Media time in seconds. Any thread.
};
