import QtQuick

// The user's system settings: light or dark appearance, text size in pixels, text direction of the language.
QtObject {
    readonly property bool dark: palette.window.hslLightness < palette.windowText.hslLightness
    readonly property real textSize: text.fontInfo.pixelSize
    readonly property bool rightToLeft: Qt.locale().textDirection === Qt.RightToLeft

    readonly property SystemPalette palette: SystemPalette {}
    readonly property Text text: Text {}
}
