import QtQuick

// Arrowhead of two strokes. Points forward in the reading direction, or back.
Item {
    id: root

    property color color: Theme.chevron
    property real size: 12
    property bool back: false

    implicitWidth: size * 0.6
    implicitHeight: size
    rotation: LayoutMirroring.enabled !== back ? 180 : 0

    Stroke {
        turn: 45
        arrowSize: root.size
        color: root.color
    }

    Stroke {
        turn: -45
        arrowSize: root.size
        color: root.color
    }

    component Stroke: Rectangle {
        id: stroke

        required property real turn
        required property real arrowSize

        x: parent.width - width
        y: parent.height / 2 - height / 2
        width: arrowSize * 0.72
        height: Math.max(2, arrowSize / 6)
        radius: height / 2
        antialiasing: true
        // Rotates around the tip, which both strokes share.
        transform: Rotation { origin { x: stroke.width - stroke.radius; y: stroke.radius } angle: stroke.turn }
    }
}
