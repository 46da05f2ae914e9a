import QtQuick
import TQFoundation

// A row of the sibling apps' icons. A tap anywhere on it opens the store page that lists all the developer's apps.
Flickable {
    id: root

    // The host's own app, which the row leaves out.
    required property tqApp app

    readonly property bool mirrored: LayoutMirroring.enabled
    readonly property real step: 44 // one icon and one gap
    readonly property real farthest: Math.max(0, contentWidth - width)

    function siblings(own: tqApp): var {
        const apps = [];
        for (const candidate of TQApp.allCases) {
            if (candidate.id !== own.id)
                apps.push(candidate);
        }
        return apps;
    }

    function scrollTo(x: real): bool {
        const target = Math.max(0, Math.min(farthest, x));
        if (target === contentX)
            return false;
        contentX = target;
        return true;
    }

    function scrollToStart() {
        scrollTo(mirrored ? farthest : 0);
    }

    // Once for each press, however long the key is held.
    function open(event: KeyEvent) {
        if (!event.isAutoRepeat)
            TQApp.openDeveloperPage();
    }

    implicitWidth: row.width
    implicitHeight: row.height
    contentWidth: Math.max(width, row.width)
    contentHeight: height
    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: contentWidth > width ? Flickable.DragAndOvershootBounds : Flickable.StopAtBounds
    clip: true
    activeFocusOnTab: true

    onMirroredChanged: scrollToStart()
    onFarthestChanged: if (mirrored && !moving) scrollToStart()

    Keys.onLeftPressed: event => event.accepted = scrollTo(contentX - step)
    Keys.onRightPressed: event => event.accepted = scrollTo(contentX + step)
    Keys.onReturnPressed: event => open(event)
    Keys.onEnterPressed: event => open(event)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home)
            event.accepted = scrollTo(mirrored ? farthest : 0);
        else if (event.key === Qt.Key_End)
            event.accepted = scrollTo(mirrored ? 0 : farthest);
    }

    Accessible.role: Accessible.Button
    Accessible.name: TQApp.developerPageText
    Accessible.focusable: true
    Accessible.onPressAction: TQApp.openDeveloperPage()

    Row {
        id: row

        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        leftPadding: 16
        rightPadding: 16
        spacing: 8

        Repeater {
            model: root.siblings(root.app)

            TQAppIcon {
                required property tqApp modelData

                app: modelData
                visible: !empty
                Accessible.role: Accessible.Graphic
                Accessible.name: caseName
            }
        }
    }

    // The wheel of a mouse turns one way only: over the row it scrolls the row, and at its ends whatever lies around it.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        onWheel: wheel => wheel.accepted = wheel.pixelDelta.y === 0 && wheel.angleDelta.x === 0
                 && root.scrollTo(root.contentX - (root.mirrored ? -1 : 1) * wheel.angleDelta.y / 120 * root.step)
    }

    TapHandler {
        enabled: !root.moving
        onTapped: TQApp.openDeveloperPage()
    }
}
