import QtQuick
import Benchmark

Item {
    PaintedLine {
        id: line

        anchors.fill: parent
    }

    Cycle { item: line }
}
