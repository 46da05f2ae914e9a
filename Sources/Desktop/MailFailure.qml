import QtQuick
import TQFoundation

// Why the mail was not sent, with a button that sends it again. Hidden unless the last attempt failed.
Rectangle {
    id: root

    required property Sheet sheet
    required property MailDraft page

    readonly property alias retryButton: retry

    signal retryButtonFocused

    // Screen readers read the error out with the focused button. With \a byKeyboard the button shows its focus frame.
    function focusRetryButton(byKeyboard: bool) {
        retry.forceActiveFocus(byKeyboard || retry.visualFocus ? Qt.TabFocusReason : Qt.OtherFocusReason);
    }

    height: lines.height + 2 * sheet.gap
    visible: page.problem !== "" && !page.isSending
    color: sheet.alertGround
    Accessible.role: Accessible.AlertMessage
    Accessible.name: page.problem
    Accessible.description: page.problemDetail

    Column {
        id: lines

        x: root.sheet.gap
        y: root.sheet.gap
        width: parent.width - 2 * root.sheet.gap
        spacing: 6

        Text {
            width: parent.width
            text: root.page.problem
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            font { pixelSize: root.sheet.textSize; weight: Font.Medium }
            color: root.sheet.ink
        }

        Text {
            width: parent.width
            visible: text !== ""
            text: root.page.problemDetail
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: Math.round(root.sheet.textSize * 0.8)
            color: root.sheet.alertQuietInk
        }

        SheetButton {
            id: retry

            anchors.left: parent.left
            anchors.leftMargin: -leftPadding
            width: Math.min(implicitWidth, parent.width)
            text: SheetText.of(SheetText.TryAgain)
            textSize: root.sheet.textSize
            strong: true
            tint: root.page.tint.legibleOn(root.sheet.alertGround, root.sheet.dark)
            pressedGround: root.sheet.pressed
            Accessible.description: root.page.problem
            onActiveFocusChanged: root.retryButtonFocused()
            onClicked: root.page.send()
        }
    }
}
