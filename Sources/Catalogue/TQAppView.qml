import QtQuick
import TQFoundation

/// A horizontally scrolling row of the sibling apps' icons. A tap anywhere on it, Return, Enter, Space or a press by
/// assistive technology opens the store page that lists all the developer's apps. The arrow keys scroll by one icon, Home
/// and End to the ends.
///
/// The icons have the size of `TQAppIcon`, a spacing of 8 points and 16 points of padding at both ends. The implicit
/// height is that of an icon. With `LayoutMirroring` the row starts at the right.
///
/// `TQAppView { width: parent.width; app: TQApp.hazel }`
Flickable {
    id: root

    /// `tqApp`, required: the host's own app, which the row leaves out. `app: TQApp.hazel`.
    required property tqApp app

    // Internal: an object of its own, so that hosts cannot reach these members by name.
    QtObject {
        id: scroller

        readonly property bool mirrored: root.LayoutMirroring.enabled
        readonly property real step: row.height + row.spacing // icons are square
        readonly property real end: Math.max(0, root.contentWidth - root.width)

        onMirroredChanged: toStart()
        onEndChanged: if (mirrored && !root.moving) toStart()

        // Returns whether the position has changed.
        function scrollTo(x: real): bool {
            const previous = root.contentX;
            root.contentX = Math.max(0, Math.min(end, x));
            return root.contentX !== previous;
        }

        function toStart(): bool {
            return scrollTo(mirrored ? end : 0);
        }

        function toEnd(): bool {
            return scrollTo(mirrored ? 0 : end);
        }

        // Once for each key press: auto-repeat is ignored.
        function press(event: KeyEvent) {
            if (!event.isAutoRepeat)
                TQApp.openDeveloperPage();
        }
    }

    implicitWidth: row.width
    implicitHeight: row.height
    contentWidth: Math.max(width, row.width)
    contentHeight: height
    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: contentWidth > width ? Flickable.DragAndOvershootBounds : Flickable.StopAtBounds
    clip: true
    activeFocusOnTab: true

    Keys.onLeftPressed: event => event.accepted = scroller.scrollTo(contentX - scroller.step)
    Keys.onRightPressed: event => event.accepted = scroller.scrollTo(contentX + scroller.step)
    Keys.onReturnPressed: event => scroller.press(event)
    Keys.onEnterPressed: event => scroller.press(event)
    Keys.onSpacePressed: event => scroller.press(event)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home)
            event.accepted = scroller.toStart();
        else if (event.key === Qt.Key_End)
            event.accepted = scroller.toEnd();
    }

    Accessible.role: Accessible.Button
    Accessible.name: TQApp.developerPageText
    Accessible.focusable: true
    Accessible.onPressAction: TQApp.openDeveloperPage()

    Row {
        id: row

        LayoutMirroring.enabled: scroller.mirrored
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        leftPadding: 16
        rightPadding: 16
        spacing: 8

        Repeater {
            model: Array.from(TQApp.allCases).filter(candidate => candidate.id !== root.app.id)

            TQAppIcon {
                required property tqApp modelData

                app: modelData
                visible: !empty
                Accessible.role: Accessible.Graphic
                Accessible.name: caseName
            }
        }
    }

    // A mouse wheel scrolls the row, and at its ends the item around it.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        onWheel: wheel => wheel.accepted = wheel.pixelDelta.y === 0 && wheel.angleDelta.x === 0
                 && scroller.scrollTo(root.contentX
                                      - (scroller.mirrored ? -1 : 1) * wheel.angleDelta.y / 120 * scroller.step)
    }

    // Takes an exclusive grab, so that handlers of items below do not take the same tap.
    TapHandler {
        gesturePolicy: TapHandler.WithinBounds
        enabled: !root.moving
        onTapped: TQApp.openDeveloperPage()
    }
}
