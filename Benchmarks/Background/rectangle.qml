import QtQuick

Item {
    Rectangle {
        width: 100
        height: 100
        color: "#c0c0c0"
    }
}
