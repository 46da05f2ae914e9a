import QtQuick

// A card that holds rows one below the other.
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
