import QtQuick

// Repeats the ten-second cycle of the background on an item with a property strokeEnd.
ParallelAnimation {
    id: root

    required property Item item

    running: true
    loops: Animation.Infinite

    NumberAnimation { target: root.item; property: "strokeEnd"; from: 0; to: 1; duration: 9000 }
    SequentialAnimation {
        NumberAnimation { target: root.item; property: "opacity"; from: 0; to: 1; duration: 1000 }
        PauseAnimation { duration: 8200 }
        NumberAnimation { target: root.item; property: "opacity"; from: 1; to: 0.2; duration: 800 }
    }
}
