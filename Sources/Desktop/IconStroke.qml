import QtQuick

// A straight line with round ends, as part of an icon.
Rectangle {
    id: root

    property real length
    property real angle // in degrees, clockwise
    property real pivot: length / 2 // distance from the left end to the centre of rotation

    width: length
    height: 2
    radius: 1
    antialiasing: true
    transform: Rotation { origin { x: root.pivot; y: 1 } angle: root.angle }
}
