import QtQuick
import TQFoundation

// The bar of the mail sheet: Cancel, the title and Send, above an indeterminate progress bar while sending.
Item {
    id: root

    required property Sheet sheet
    required property MailDraft page

    readonly property alias cancelButton: cancel
    // Cancel was not pressed, or by the keyboard.
    readonly property bool cancelledByKeyboard: !cancel.activeFocus || cancel.visualFocus
    readonly property alias sendButton: send

    readonly property color tint: page.tint.legibleOn(sheet.ground, sheet.dark)
    // Factor for the buttons' widths if their texts do not fit beside each other.
    readonly property real shrinkage: Math.min(1, (width - sheet.gap) / (cancel.implicitWidth + send.implicitWidth))

    height: Math.max(56, cancel.height + 12)

    SheetButton {
        id: cancel

        anchors { left: parent.left; leftMargin: root.sheet.gap - leftPadding; verticalCenter: parent.verticalCenter }
        width: implicitWidth * root.shrinkage
        text: SheetText.of(SheetText.Cancel)
        textSize: root.sheet.textSize
        tint: root.tint
        pressedGround: root.sheet.pressed
        onClicked: root.page.cancel()
    }

    // Centred in the bar, or between the buttons if it does not fit there. Hidden if little of it would be visible.
    Text {
        readonly property bool fits: implicitWidth <= root.width - 2 * Math.max(cancel.width, send.width)

        anchors {
            left: cancel.right
            leftMargin: fits ? Math.max(0, send.width - cancel.width) : 0
            right: send.left
            rightMargin: fits ? Math.max(0, cancel.width - send.width) : 0
            verticalCenter: parent.verticalCenter
        }
        visible: implicitWidth < 1.25 * width
        text: SheetText.of(root.page.isSending ? SheetText.Sending : SheetText.NewMessage)
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
        elide: Text.ElideRight
        font { pixelSize: root.sheet.textSize; weight: Font.DemiBold }
        color: root.sheet.ink
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    SheetButton {
        id: send

        anchors { right: parent.right; rightMargin: root.sheet.gap - rightPadding; verticalCenter: parent.verticalCenter }
        width: implicitWidth * root.shrinkage
        text: SheetText.of(SheetText.Send)
        textSize: root.sheet.textSize
        strong: true
        tint: root.tint
        pressedGround: root.sheet.pressed
        enabled: !root.page.isSending
        onClicked: root.page.send()
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: root.sheet.line
    }

    Item {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 3
        clip: true
        visible: root.page.isSending
        Accessible.role: Accessible.ProgressBar
        Accessible.name: SheetText.of(SheetText.Sending)

        Rectangle {
            width: parent.width / 3
            height: parent.height
            color: root.tint

            NumberAnimation on x {
                running: root.page.isSending
                from: -root.width / 3
                to: root.width
                duration: 1200
                loops: Animation.Infinite
            }
        }
    }
}
