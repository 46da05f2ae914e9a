import QtQuick

// What the user has chosen in the system: dark or light appearance, text size, direction of the language.
QtObject {
    readonly property bool dark: palette.window.hslLightness < palette.windowText.hslLightness
    readonly property real textSize: text.fontInfo.pixelSize
    readonly property bool rightToLeft: Qt.locale().textDirection === Qt.RightToLeft

    readonly property SystemPalette palette: SystemPalette {}
    readonly property Text text: Text {}
}
