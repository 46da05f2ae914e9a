#include "TQFoundation/MailComposer.h"

namespace TQFoundation {

void ViewController::mailComposeController(MailComposer *controller, MailComposeResult, const QString &)
{
    const QPointer<MailComposer> composer(controller);
    // The first call dismisses the screens above the composer, if there are any.
    if (composer && composer->presentedViewController())
        composer->dismiss();
    if (composer)
        composer->dismiss();
}

} // namespace TQFoundation
