#include <TQFoundation/TQGuideView.h>

bool isGuideDue()
{
    return TQFoundation::TQGuideView::shouldShowGuide();
}
