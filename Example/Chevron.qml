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

    Repeater {
        model: [45, -45]

        Rectangle {
            required property real modelData

            x: root.width - width + height * 0.15
            y: root.height / 2 - height / 2
            width: root.size * 0.72
            height: Math.max(2, root.size / 6)
            radius: height / 2
            color: root.color
            antialiasing: true
            transformOrigin: Item.Right
            rotation: modelData
        }
    }
}
