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
    }

    Stroke {
        turn: -45
    }

    component Stroke: Rectangle {
        id: stroke

        property real turn
        readonly property Chevron arrow: parent as Chevron

        x: arrow.width - width
        y: arrow.height / 2 - height / 2
        width: arrow.size * 0.72
        height: Math.max(2, arrow.size / 6)
        radius: height / 2
        color: arrow.color
        antialiasing: true
        // Rotates around the tip, which both strokes share.
        transform: Rotation { origin { x: stroke.width - stroke.radius; y: stroke.radius } angle: stroke.turn }
    }
}
