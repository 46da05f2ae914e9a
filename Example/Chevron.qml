import QtQuick

// An arrowhead of two strokes: forward in the direction of reading, or back.
Item {
    id: root

    property color color: Theme.chevron
    property real size: 12
    property bool back: false

    implicitWidth: size * 0.6
    implicitHeight: size
    rotation: LayoutMirroring.enabled !== back ? 180 : 0

    Stroke {
        rotation: 45
    }

    Stroke {
        rotation: -45
    }

    component Stroke: Rectangle {
        readonly property Chevron arrow: parent as Chevron

        x: arrow.width - width + height * 0.15
        y: arrow.height / 2 - height / 2
        width: arrow.size * 0.72
        height: Math.max(2, arrow.size / 6)
        radius: height / 2
        color: arrow.color
        antialiasing: true
        transformOrigin: Item.Right
    }
}
