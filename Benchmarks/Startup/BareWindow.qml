import QtQuick

Window {
    width: 390
    height: 844
    visible: true

    Rectangle {
        width: 390
        height: 60
        color: "steelblue"
    }

    Text {
        text: "Version 2.3.1(57)"
    }
}
