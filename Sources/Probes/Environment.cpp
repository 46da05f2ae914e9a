#include "Environment.h"

#include "TQFoundation/Platform.h"

namespace TQFoundation {

double screenWidth()
{
    static const double width = platform().screenBounds().width();
    return width;
}

double screenHeight()
{
    static const double height = platform().screenBounds().height();
    return height;
}

double screenScale()
{
    static const double scale = platform().screenScale();
    return scale;
}

bool isChn()
{
    static const bool mainlandChina = platform().storefrontCountryCode().value_or(QStringLiteral("CHN")) == u"CHN";
    return mainlandChina;
}

} // namespace TQFoundation
