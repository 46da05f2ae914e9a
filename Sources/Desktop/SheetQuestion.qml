import QtQuick
import QtQuick.Templates as T

// A modal question over a sheet with two answers, of which "no" changes nothing. Escape answers "no".
T.Popup {
    id: root

    required property Sheet sheet
    required property color tint // legible on the question's background
    required property string question
    required property string yesText
    required property string noText

    property bool byKeyboard: false

    signal accepted

    // Opens the question. With \a byKeyboard the default button shows its focus frame.
    function ask(byKeyboard: bool) {
        root.byKeyboard = byKeyboard;
        open();
    }

    width: Math.min(parent.width - 2 * sheet.gap, 26 * sheet.textSize)
    height: Math.min(parent.height - 2 * sheet.gap, scroller.contentHeight + 2 * padding)
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2)
    padding: sheet.gap
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    onOpened: no.forceActiveFocus(byKeyboard ? Qt.TabFocusReason : Qt.OtherFocusReason)

    T.Overlay.modal: Rectangle {
        color: "#66000000"
    }

    background: Rectangle {
        radius: root.sheet.corner
        color: root.sheet.raisedGround
    }

    Flickable {
        id: scroller

        function showEnd() {
            contentY = contentHeight - height;
        }

        anchors.fill: parent
        contentHeight: no.y + no.height
        onHeightChanged: if (no.activeFocus) showEnd()
        onContentHeightChanged: if (no.activeFocus) showEnd()
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: interactive
        LayoutMirroring.enabled: root.sheet.rightToLeft
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.question

        Text {
            id: words

            width: root.availableWidth
            text: root.question
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: root.sheet.textSize
            color: root.sheet.ink
        }

        SheetButton {
            id: yes

            y: words.height + 14
            width: parent.width
            text: root.yesText
            textSize: root.sheet.textSize
            tint: root.sheet.alert
            pressedGround: root.sheet.pressed
            onActiveFocusChanged: if (activeFocus) scroller.contentY = Math.min(y, scroller.contentHeight - scroller.height)
            onClicked: root.accepted()
        }

        SheetButton {
            id: no

            y: yes.y + yes.height + 4
            width: parent.width
            text: root.noText
            textSize: root.sheet.textSize
            strong: true
            tint: root.tint
            pressedGround: root.sheet.pressed
            Accessible.description: root.question
            onActiveFocusChanged: if (activeFocus) scroller.showEnd()
            onClicked: root.close()
        }
    }
}
