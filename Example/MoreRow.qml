import QtQuick
import QtQuick.Controls.Basic

// One row of the More screen: a title, a chevron and a focus frame.
AbstractButton {
    id: root

    required property color tint
    property bool last: false

    horizontalPadding: Theme.margin
    verticalPadding: 12
    implicitWidth: leftPadding + implicitContentWidth + rightPadding
    implicitHeight: Math.max(48, topPadding + implicitContentHeight + bottomPadding)
    focusPolicy: Qt.StrongFocus

    Accessible.name: text
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: Item {
        // Inset from the card's rounded corners.
        Rectangle {
            anchors { fill: parent; margins: 4 }
            radius: Theme.corner - 4
            color: root.down ? Theme.pressed : "transparent"
            border { width: root.visualFocus ? 2 : 0; color: root.tint }
        }

        Rectangle {
            visible: !root.last
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
            height: 1
            color: Theme.separator
        }
    }

    contentItem: Text {
        leftPadding: root.mirrored ? chevron.width + Theme.margin : 0
        rightPadding: root.mirrored ? 0 : chevron.width + Theme.margin
        text: root.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: Theme.textSize
        color: Theme.text
    }

    Chevron {
        id: chevron

        size: Theme.textSize * 0.7
        anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
    }
}
