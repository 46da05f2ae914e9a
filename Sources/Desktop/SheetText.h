#pragma once

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace TQFoundation {

/// The texts of the library's own sheets, in the user's language.
///
/// A singleton in QML: `SheetText.of(SheetText.Cancel)`. The English texts and the comments for translators are in the
/// table of SheetText.cpp. The key "Next" of the guide's button is not here: it belongs to the guide.
class SheetText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// A text by its use. A new one needs an entry at the same position of the table, and one in each translation.
    enum Key {
        // Several sheets: buttons
        TryAgain,
        // Mail: labels, buttons and questions
        Cancel,
        NewMessage,
        Sending,
        Send,
        To,
        Subject,
        Message,
        BodyHidden,
        DiscardQuestion,
        Discard,
        KeepWriting,
        StopQuestion,
        StopSending,
        KeepSending,
        // Mail: errors of sending
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
        // Browser: errors of loading
        PageUnreachable,
        PageInsecure,
        PageCrashed,
        PageTimedOut,
    };
    Q_ENUM(Key)

    using QObject::QObject;

    /// The text of \a key from the library's table for the user's language; in English if that table is missing. Looked
    /// up at each call. Any thread.
    Q_INVOKABLE static QString of(TQFoundation::SheetText::Key key);
};

} // namespace TQFoundation
