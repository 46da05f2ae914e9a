import QtQuick
import TQFoundation

Window {
    width: 390
    height: 844
    visible: true
    title: line.text

    Rectangle {
        width: 390
        height: 60
        color: "steelblue"
    }

    Text {
        id: line

        text: TQMore.versionText
    }
}
