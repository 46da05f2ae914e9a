import QtQuick
import QtQuick.Templates as T
import TQFoundation

// The rich text editor of the mail sheet. A message with colours of its own lies on white, whatever the appearance.
Rectangle {
    id: root

    required property Sheet sheet
    required property MailDraft page
    required property Item nextItem // of the tab order
    required property Item previousItem
    property real minimumHeight: 0

    readonly property alias field: message

    signal cursorMoved

    height: message.height
    color: page.hasColors ? "#ffffff" : "transparent"

    T.TextArea {
        id: message

        width: parent.width
        height: Math.max(contentHeight + topPadding + bottomPadding, root.minimumHeight)
        padding: root.sheet.gap
        topPadding: root.sheet.gap * 0.75
        bottomPadding: root.sheet.gap + (note.visible ? note.height + root.sheet.gap : 0)
        textFormat: TextEdit.RichText
        wrapMode: TextEdit.Wrap
        // Each paragraph is aligned by its own direction. The cursor of an empty message follows the user's language.
        horizontalAlignment: length === 0 ? TextEdit.AlignLeft : undefined
        font.pixelSize: root.sheet.textSize
        color: root.page.hasColors ? "#000000" : root.sheet.ink
        selectionColor: root.page.tint.legibleOn(root.sheet.ground, root.sheet.dark)
        selectedTextColor: root.sheet.ground
        selectByMouse: true
        readOnly: root.page.isSending
        KeyNavigation.priority: KeyNavigation.BeforeItem
        KeyNavigation.tab: root.nextItem
        KeyNavigation.backtab: root.previousItem
        Keys.onPressed: event => {
            event.accepted = event.matches(StandardKey.Paste);
            if (event.accepted && !readOnly)
                root.page.paste(selectionStart, selectionEnd);
        }
        onCursorRectangleChanged: root.cursorMoved()
        Component.onCompleted: {
            root.page.load(textDocument);
            cursorPosition = 0;
        }
        Accessible.name: SheetText.of(SheetText.Message)

        Text {
            id: note

            x: root.sheet.gap
            y: message.topPadding + message.contentHeight + root.sheet.gap
            width: parent.width - 2 * root.sheet.gap
            visible: root.page.isHidden
            text: SheetText.of(SheetText.BodyHidden)
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: Math.round(root.sheet.textSize * 0.85)
            color: root.sheet.quietInk
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        // Blocks pasting of the X11 selection, which would bring images and styles along.
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.MiddleButton
        }
    }
}
