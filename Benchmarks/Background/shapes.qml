import QtQuick
import QtQuick.Shapes

Item {
    id: root

    required property string line
    required property real length

    Shape {
        id: shape

        property real strokeEnd: 0

        anchors.fill: parent

        ShapePath {
            readonly property real widths: root.length / strokeWidth

            strokeColor: Qt.rgba(0, 0, 0, 0.2)
            strokeWidth: 2
            fillColor: "transparent"
            capStyle: ShapePath.FlatCap
            joinStyle: ShapePath.MiterJoin
            strokeStyle: ShapePath.DashLine
            dashPattern: [widths, widths]
            dashOffset: widths * (1 - shape.strokeEnd)

            PathSvg { path: root.line }
        }
    }

    Cycle { item: shape }
}
