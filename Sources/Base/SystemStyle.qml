import QtQuick

// The user's system settings: text size in pixels, text direction of the language.
QtObject {
    readonly property real textSize: text.fontInfo.pixelSize
    readonly property bool rightToLeft: Qt.locale().textDirection === Qt.RightToLeft

    readonly property Text text: Text {}
}
