pragma Singleton

import QtQuick

// The colours and measures that all screens share; they follow the system's appearance.
QtObject {
    readonly property bool dark: system.window.hslLightness < system.windowText.hslLightness

    readonly property color ground: dark ? "#000000" : "#f2f2f7"
    readonly property color card: dark ? "#1c1c1e" : "#ffffff"
    readonly property color pressed: dark ? "#2c2c2e" : "#e5e5ea"
    readonly property color text: dark ? "#ffffff" : "#000000"
    readonly property color secondaryText: dark ? "#a1a1a8" : "#65656b"
    readonly property color separator: dark ? "#38383a" : "#d8d8dc"
    readonly property color chevron: dark ? "#5a5a5f" : "#c4c4c7"

    // Grows with the text size that the user has chosen in the system.
    readonly property real textSize: Math.max(17, Math.round(systemText.fontInfo.pixelSize * 1.3))
    readonly property real margin: 16
    readonly property real corner: 12
    readonly property real widest: 620 // of a column of text in a wide window

    readonly property SystemPalette system: SystemPalette {}
    readonly property Text systemText: Text {}
}
