// Many threads read each one-time value for the first time at once. Meant for ThreadSanitizer.

#include "RecordingPlatform.h"

#include <TQFoundation/Environment.h>
#include <TQFoundation/TQMore.h>

#include <cstdio>
#include <latch>
#include <thread>
#include <vector>

using namespace TQFoundation;

namespace {

template <typename Read>
bool allReadTheSame(Read read)
{
    constexpr int readers = 16;
    std::latch start(readers);
    std::vector<decltype(read())> values(readers);
    {
        std::vector<std::jthread> threads;
        for (auto &value : values) {
            threads.emplace_back([&] {
                start.arrive_and_wait();
                value = read();
            });
        }
    }
    return values == std::vector(readers, values.front());
}

// Not std::vector<bool>, whose elements share bytes.
int isChnNumber()
{
    return isChn();
}

} // namespace

int main()
{
    auto owned = std::make_unique<Testing::RecordingPlatform>();
    Testing::RecordingPlatform &platform = *owned;
    platform.records = false;
    platform.infoDictionary = {{QStringLiteral("CFBundleVersion"), QStringLiteral("57")}};
    installPlatform(std::move(owned));

    const bool same = allReadTheSame(screenWidth) && allReadTheSame(screenHeight) && allReadTheSame(screenScale)
        && allReadTheSame(isChnNumber) && allReadTheSame(TQMore::privacyText) && allReadTheSame(TQMore::versionText)
        && allReadTheSame([] { return TQMore::icpOrBlogUrl(std::nullopt); });
    const bool readOnce = platform.storefrontReads == 1;
    std::printf("same values: %d, storefront read once: %d\n", same, readOnce);
    return same && readOnce ? 0 : 1;
}
