import QtQuick

// The user's system settings: text size in pixels, text direction of the language.
QtObject {
    readonly property real textSize: text.fontInfo.pixelSize
    // 1 is Qt.RightToLeft; looking that up by name takes milliseconds, because all names of the namespace are collected.
    readonly property bool rightToLeft: Qt.locale().textDirection === 1

    readonly property Text text: Text {}
}
