#include "DeveloperPage.h"

#include "DeveloperIdentity.h"
#include "TQFoundation/Environment.h"
#include "TQFoundation/Platform.h"
#include "Url.h"

namespace TQFoundation::DeveloperPage {

void open()
{
    const auto url = urlFromString(QLatin1String(DeveloperIdentity::storePage));
    if (!url)
        return;
    // Asked although users of every region are sent to the same page, so that the region is known from here on.
    static_cast<void>(isChn());
    platform().openUrl(*url);
}

} // namespace TQFoundation::DeveloperPage
