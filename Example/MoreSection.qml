import QtQuick

// Rounded card with rows below each other.
Item {
    id: root

    default property alias rows: column.data

    implicitHeight: column.height

    Rectangle {
        id: card

        anchors.fill: parent
        radius: Theme.corner
        color: Theme.card
    }

    Column {
        id: column

        width: parent.width
    }
}
