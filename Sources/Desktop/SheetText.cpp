#include "SheetText.h"

#include "TQFoundation/Bundle.h"

#include <array>
#include <cstddef>

namespace TQFoundation {
namespace {

// One entry of the table, which is in the order of the keys.
struct Text
{
    SheetText::Key key;
    const char *english;
};

constexpr std::array texts{
    //: Button that sends the mail, or loads the page, once more after that failed.
    Text{SheetText::TryAgain, QT_TRANSLATE_NOOP("TQFoundationInterface", "Try Again")},

    //: Button that closes the sheet without sending the mail.
    Text{SheetText::Cancel, QT_TRANSLATE_NOOP("TQFoundationInterface", "Cancel")},
    //: Title of the sheet in which the user writes a mail.
    Text{SheetText::NewMessage, QT_TRANSLATE_NOOP("TQFoundationInterface", "New Message")},
    //: Title of the sheet while the mail is being sent.
    Text{SheetText::Sending, QT_TRANSLATE_NOOP("TQFoundationInterface", "Sending…")},
    //: Button that sends the mail.
    Text{SheetText::Send, QT_TRANSLATE_NOOP("TQFoundationInterface", "Send")},
    //: Label before the recipient's address.
    Text{SheetText::To, QT_TRANSLATE_NOOP("TQFoundationInterface", "To:")},
    //: Label before the subject of a mail.
    Text{SheetText::Subject, QT_TRANSLATE_NOOP("TQFoundationInterface", "Subject:")},
    //: Name of the field for the text of a mail, for screen readers.
    Text{SheetText::Message, QT_TRANSLATE_NOOP("TQFoundationInterface", "Message")},
    //: Note below the text that the user writes in a mail.
    Text{SheetText::BodyHidden,
         QT_TRANSLATE_NOOP("TQFoundationInterface",
                           "More text, which cannot be shown here, is sent along below yours.")},
    //: Asked before the sheet is closed; answered by "Discard" or "Keep Writing".
    Text{SheetText::DiscardQuestion,
         QT_TRANSLATE_NOOP("TQFoundationInterface", "Discard this message? What you have written will be lost.")},
    //: Button that closes the sheet; the text that the user has written is lost.
    Text{SheetText::Discard, QT_TRANSLATE_NOOP("TQFoundationInterface", "Discard")},
    //: Button that leads back to the mail that is being written.
    Text{SheetText::KeepWriting, QT_TRANSLATE_NOOP("TQFoundationInterface", "Keep Writing")},
    //: Asked if the user cancels while the mail is being sent; answered by "Stop Sending" or "Keep Sending".
    Text{SheetText::StopQuestion,
         QT_TRANSLATE_NOOP("TQFoundationInterface", "Stop sending this message? It may already have been sent.")},
    //: Button that stops the sending of a mail.
    Text{SheetText::StopSending, QT_TRANSLATE_NOOP("TQFoundationInterface", "Stop Sending")},
    //: Button that lets the sending of a mail continue.
    Text{SheetText::KeepSending, QT_TRANSLATE_NOOP("TQFoundationInterface", "Keep Sending")},

    //: Why a mail was not sent.
    Text{SheetText::NoMailProgram,
         QT_TRANSLATE_NOOP("TQFoundationInterface", "There is no mail program on this device.")},
    //: Why a mail was not sent.
    Text{SheetText::MailProgramNotSetUp,
         QT_TRANSLATE_NOOP("TQFoundationInterface", "The mail program on this device is not set up.")},
    //: Why a mail was not sent.
    Text{SheetText::MailServerUnreachable,
         QT_TRANSLATE_NOOP("TQFoundationInterface",
                           "The mail server cannot be reached. Check your connection and try again.")},
    //: Why a mail was not sent.
    Text{SheetText::MailRejected,
         QT_TRANSLATE_NOOP("TQFoundationInterface", "The mail server did not accept your message.")},
    //: Why a mail was not sent.
    Text{SheetText::MailFailed, QT_TRANSLATE_NOOP("TQFoundationInterface", "Your message could not be sent.")},
    //: Why a mail was not sent.
    Text{SheetText::MailProgramCrashed,
         QT_TRANSLATE_NOOP("TQFoundationInterface",
                           "The mail program stopped unexpectedly. Your message may not have been sent.")},
    //: Why a mail was not sent. It must say that another attempt may send the mail twice.
    Text{SheetText::MailProgramTimedOut,
         QT_TRANSLATE_NOOP("TQFoundationInterface",
                           "There has been no answer for 30 seconds. Your message may already have been sent; if so, "
                           "trying again sends it twice.")},

    //: Button that closes the in-app browser.
    Text{SheetText::Close, QT_TRANSLATE_NOOP("TQFoundationInterface", "Close")},
    //: Button that leads to the previous page, in the in-app browser.
    Text{SheetText::Back, QT_TRANSLATE_NOOP("TQFoundationInterface", "Back")},
    //: Button that loads the page once more, in the in-app browser.
    Text{SheetText::Reload, QT_TRANSLATE_NOOP("TQFoundationInterface", "Reload")},
    //: Below the name of a site while a page is being loaded, in the in-app browser.
    Text{SheetText::Loading, QT_TRANSLATE_NOOP("TQFoundationInterface", "Loading…")},

    //: Stands in place of a web page.
    Text{SheetText::PageUnreachable,
         QT_TRANSLATE_NOOP("TQFoundationInterface",
                           "This page could not be loaded. Check your connection and try again.")},
    //: Stands in place of a web page whose certificate is not valid.
    Text{SheetText::PageInsecure,
         QT_TRANSLATE_NOOP("TQFoundationInterface",
                           "The connection to this site is not secure, so the page was not opened.")},
    //: Stands in place of a web page whose process has ended.
    Text{SheetText::PageCrashed, QT_TRANSLATE_NOOP("TQFoundationInterface", "This page has stopped working.")},
    //: Stands in place of, or below, a web page.
    Text{SheetText::PageTimedOut, QT_TRANSLATE_NOOP("TQFoundationInterface", "This page takes too long to load.")},
};

static_assert([] {
    for (std::size_t index = 0; index < texts.size(); ++index) {
        if (static_cast<std::size_t>(texts[index].key) != index)
            return false;
    }
    return texts.size() == SheetText::PageTimedOut + 1;
}());

} // namespace

QString SheetText::of(Key key)
{
    return libraryBundle().interfaceString(QString::fromUtf8(texts[static_cast<std::size_t>(key)].english));
}

} // namespace TQFoundation
