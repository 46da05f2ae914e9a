#include "PicturePlatform.h"

#include <functional>
#include <memory>
#include <utility>

namespace {

class StillTimer final : public TQFoundation::RepeatingTimer
{
public:
    explicit StillTimer(std::function<void()> tick) : m_tick(std::move(tick)) {}

    void fire() override { m_tick(); }
    void schedule() override {}
    void invalidate() override
    {
        m_tick = [] {};
    }

private:
    std::function<void()> m_tick;
};

} // namespace

std::shared_ptr<TQFoundation::RepeatingTimer> PicturePlatform::makeTimer(double, std::function<void()> tick)
{
    return std::make_shared<StillTimer>(std::move(tick));
}
