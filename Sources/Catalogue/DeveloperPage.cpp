#include "DeveloperPage.h"

#include "DeveloperIdentity.h"
#include "TQFoundation/Bundle.h"
#include "TQFoundation/Environment.h"
#include "TQFoundation/Platform.h"
#include "Url.h"

namespace TQFoundation {

QString DeveloperPage::title()
{
    //: Title of a row that leads to the developer's other apps.
    constexpr const char *key = QT_TRANSLATE_NOOP("TQFoundation", "More Apps I Developed");
    static const QString text = localizedInLibrary(QLatin1String(key));
    return text;
}

void DeveloperPage::open()
{
    const auto url = urlFromString(QLatin1String(DeveloperIdentity::storePage));
    if (!url)
        return;
    // Required although the page is the same everywhere: from here on the region is fixed for the process.
    static_cast<void>(isChn());
    platform().openUrl(*url);
}

} // namespace TQFoundation
