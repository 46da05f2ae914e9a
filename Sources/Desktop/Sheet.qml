import QtQuick
import QtQuick.Templates as T
import TQFoundation
import TQFoundation.Base

// Base of the library's own screens: a modal page that slides up from the bottom of the window. It fills a narrow window
// except for a strip at the top, and is centred in a wide one. Holds the colours and measures of all sheets.
T.Popup {
    id: root

    property real widest: 640
    property real tallest: 760

    readonly property bool dark: TQAppearance.isDark
    readonly property color ground: dark ? "#1c1c1e" : "#ffffff"
    readonly property color ink: dark ? "#ffffff" : "#000000"
    readonly property color quietInk: dark ? "#a1a1a8" : "#65656b"
    readonly property color line: dark ? "#38383a" : "#d8d8dc"
    readonly property color pressed: dark ? "#3a3a3c" : "#e5e5ea"
    readonly property color alert: dark ? "#ff8a80" : "#b3261e"
    readonly property color alertGround: dark ? "#3b2426" : "#fdeceb"
    readonly property color alertQuietInk: dark ? "#c7b7b8" : "#6a5556"
    readonly property color raisedGround: dark ? "#2c2c2e" : "#ffffff"

    readonly property real textSize: Math.max(16, Math.round(system.textSize * 1.25))
    readonly property real gap: narrow ? 16 : 20
    readonly property real corner: 14
    readonly property bool rightToLeft: system.rightToLeft

    // Part of the window that bars, notches and the on-screen keyboard leave free.
    property rect safeArea
    readonly property real windowHeight: parent ? parent.height : 0
    readonly property real hostWidth: safeArea.width
    readonly property real hostHeight: safeArea.height
    readonly property bool narrow: hostWidth < 700
    // Slide animation: 0 is the final position, 1 the position below the window.
    property real slid: 0

    readonly property SystemStyle system: SystemStyle {}

    width: narrow ? hostWidth : Math.min(widest, hostWidth - 80)
    height: narrow ? hostHeight - Math.round(Math.min(12, hostHeight / 40)) : Math.min(tallest, hostHeight - 48)
    x: Math.round(safeArea.x + (hostWidth - width) / 2)
    y: Math.round(safeArea.y + (narrow ? hostHeight - height : (hostHeight - height) / 2) + slid * windowHeight)
    padding: 0
    modal: true
    focus: true
    closePolicy: T.Popup.NoAutoClose

    enter: Transition {
        NumberAnimation { target: root; property: "slid"; from: 1; to: 0; duration: 320; easing.type: Easing.OutCubic }
    }

    exit: Transition {
        NumberAnimation { target: root; property: "slid"; from: 0; to: 1; duration: 260; easing.type: Easing.InCubic }
    }

    T.Overlay.modal: Rectangle {
        color: "#80000000"

        Behavior on opacity {
            NumberAnimation { duration: 260 }
        }
    }

    background: Item {
        Rectangle {
            width: parent.width
            // If the page reaches the bottom of the safe area, its background reaches below the window.
            height: parent.height + (root.narrow ? radius + root.windowHeight - root.safeArea.bottom : 0)
            radius: root.corner
            color: root.ground
            border { width: root.dark && !root.narrow ? 1 : 0; color: root.line }
        }
    }
}
