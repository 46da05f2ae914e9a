#include <TQFoundation/TQMore.h>

QString versionRow()
{
    return TQFoundation::TQMore::versionText();
}
