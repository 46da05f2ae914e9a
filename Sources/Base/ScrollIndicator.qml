import QtQuick

// Shows which part of a vertical flickable is visible. Hidden if everything is.
Rectangle {
    required property Flickable flickable

    // How far the content is scrolled, from 0 to 1.
    readonly property real share: visible ? flickable.visibleArea.yPosition / (1 - flickable.visibleArea.heightRatio) : 0

    y: flickable.y + share * (flickable.height - height)
    width: 4
    height: Math.max(24, flickable.visibleArea.heightRatio * flickable.height)
    radius: 2
    visible: flickable.interactive
}
