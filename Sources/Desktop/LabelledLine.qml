import QtQuick

// A label and one value beside it, or below it if the line is narrow.
Item {
    id: root

    required property Sheet sheet
    required property string label
    default property alias value: place.data

    readonly property bool stacked: width < 18 * sheet.textSize
    // Blank space above and below the value.
    readonly property real valueMargin: Math.max(8, (44 - sheet.textSize * 1.35) / 2)

    width: parent ? parent.width : 0
    height: place.y + place.height + 1

    Text {
        id: caption

        anchors { left: parent.left; leftMargin: root.sheet.gap }
        y: root.valueMargin
        text: root.label
        textFormat: Text.PlainText
        font.pixelSize: root.sheet.textSize
        color: root.sheet.quietInk
    }

    Item {
        id: place

        anchors {
            left: root.stacked ? parent.left : caption.right
            leftMargin: root.stacked ? root.sheet.gap : 8
            right: parent.right
            rightMargin: root.sheet.gap
        }
        y: root.stacked ? caption.y + caption.height - root.valueMargin / 2 : 0
        height: childrenRect.y + childrenRect.height + (childrenRect.y > 0 ? root.valueMargin : 0)
    }

    Rectangle {
        anchors { left: parent.left; leftMargin: root.sheet.gap; right: parent.right; bottom: parent.bottom }
        height: 1
        color: root.sheet.line
    }
}
