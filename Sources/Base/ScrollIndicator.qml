import QtQuick

// Shows which part of a vertical flickable is visible. Hidden if everything is.
Rectangle {
    required property Flickable flickable

    y: flickable.y + flickable.visibleArea.yPosition * flickable.height
    width: 4
    height: Math.max(24, flickable.visibleArea.heightRatio * flickable.height)
    radius: 2
    visible: flickable.interactive
}
