import QtQuick
import QtQuick.Controls.Basic

// One row of the More screen: a title that leads out of the app.
AbstractButton {
    id: root

    property bool last: false

    horizontalPadding: Theme.margin
    verticalPadding: 12
    implicitWidth: leftPadding + implicitContentWidth + rightPadding
    implicitHeight: Math.max(48, topPadding + implicitContentHeight + bottomPadding)
    focusPolicy: Qt.StrongFocus

    Accessible.role: Accessible.Link
    Accessible.name: text
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    background: Rectangle {
        color: root.down || root.visualFocus ? Theme.pressed : "transparent"

        Rectangle {
            visible: !root.last
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
            height: 1
            color: Theme.separator
        }
    }

    contentItem: Item {
        implicitHeight: title.implicitHeight

        Text {
            id: title

            anchors { left: parent.left; right: chevron.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
            text: root.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: 17
            color: Theme.text
        }

        Chevron {
            id: chevron

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        }
    }
}
