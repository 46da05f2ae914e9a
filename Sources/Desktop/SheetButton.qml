import QtQuick
import TQFoundation.Base

// A frameless button of a sheet. Shows its text, or a content item set by the user of this type.
PressButton {
    id: root

    required property color tint
    required property color pressedGround
    property real textSize: 16
    property bool strong: false

    implicitWidth: Math.max(44, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(44, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: 10
    verticalPadding: 6
    Accessible.name: text

    background: Rectangle {
        radius: 10
        color: root.down ? root.pressedGround : "transparent"
        border { width: root.visualFocus ? 2 : 0; color: root.tint }
    }

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
        elide: Text.ElideRight
        font { pixelSize: root.textSize; weight: root.strong ? Font.DemiBold : Font.Normal }
        color: root.tint
        opacity: root.enabled ? 1 : 0.4
    }
}
