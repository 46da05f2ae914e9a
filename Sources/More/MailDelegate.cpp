#include "TQFoundation/MailComposer.h"

namespace TQFoundation {

void ViewController::mailComposeController(MailComposer *controller, MailComposeResult, const QString &)
{
    if (controller)
        controller->dismiss();
}

} // namespace TQFoundation
