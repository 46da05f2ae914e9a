#pragma once

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace TQFoundation {

/// The texts of the library's own sheets, in the user's language. A singleton in QML: `SheetText.of(SheetText.Cancel)`.
class SheetText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum Key {
        // In several sheets
        TryAgain,
        Cancel,
        // Mail: labels and buttons
        NewMessage,
        Sending,
        Send,
        To,
        Subject,
        Message,
        BodyTooLarge,
        DiscardQuestion,
        Discard,
        KeepWriting,
        // Mail: why it was not sent
        NoMailProgram,
        MailProgramNotSetUp,
        MailServerUnreachable,
        MailRejected,
        MailFailed,
        MailProgramCrashed,
        MailProgramTimedOut,
        // Browser: labels and buttons
        Close,
        Back,
        Reload,
        Loading,
        // Browser: why there is no page
        PageUnreachable,
        PageInsecure,
        PageCrashed,
        PageTimedOut,
    };
    Q_ENUM(Key)

    using QObject::QObject;

    /// The text of \a key from the library's table for the user's language, or in English without such a table. Any
    /// thread.
    Q_INVOKABLE static QString of(TQFoundation::SheetText::Key key);
};

} // namespace TQFoundation
