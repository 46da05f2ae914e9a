pragma Singleton

import QtQuick
import TQFoundation

// Colours and sizes of all screens.
QtObject {
    readonly property bool dark: TQAppearance.isDark

    readonly property color ground: dark ? "#000000" : "#f2f2f7"
    readonly property color card: dark ? "#1c1c1e" : "#ffffff"
    readonly property color pressed: dark ? "#2c2c2e" : "#e5e5ea"
    readonly property color text: dark ? "#ffffff" : "#000000"
    readonly property color secondaryText: dark ? "#a1a1a8" : "#65656b"
    readonly property color separator: dark ? "#38383a" : "#d8d8dc"
    readonly property color chevron: dark ? "#5a5a5f" : "#c4c4c7"

    // Follows the system's text size; at least 17 pixels.
    readonly property real textSize: Math.max(17, Math.round(systemText.fontInfo.pixelSize * 1.3))
    readonly property real margin: 16
    readonly property real corner: 12
    readonly property real widest: 620 // largest width of a column, in points

    readonly property Text systemText: Text {}
}
