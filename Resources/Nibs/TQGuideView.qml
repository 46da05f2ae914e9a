import QtQuick
import TQFoundation
import TQFoundation.Base

// Layout of the guide: the paragraph, which scrolls if it does not fit, above the next button. It fills the part of the
// overlay that the window shows.
TQGuideView {
    id: root

    readonly property bool dark: TQAppearance.isDark
    readonly property color background: backgroundColor.resolved(dark)
    readonly property color foreground: backgroundColor.textColor(dark)

    readonly property real textSize: Math.max(24, Math.round(system.textSize * 1.8))
    readonly property real margin: Math.max(20, Math.min(40, page.width * 0.08))

    guideLabel: label
    nextButton: button
    onTapped: pulse.restart()

    LayoutMirroring.enabled: system.rightToLeft
    LayoutMirroring.childrenInherit: true

    Accessible.role: Accessible.Dialog

    Keys.onUpPressed: scroller.scroll(-2 * textSize)
    Keys.onDownPressed: scroller.scroll(2 * textSize)
    Keys.onTabPressed: button.visualFocus = true
    Keys.onBacktabPressed: button.visualFocus = true
    Keys.onPressed: event => {
        if (event.key === Qt.Key_PageUp)
            scroller.scroll(-0.9 * scroller.height);
        else if (event.key === Qt.Key_PageDown)
            scroller.scroll(0.9 * scroller.height);
        else if (event.key === Qt.Key_Home)
            scroller.scroll(-scroller.contentHeight);
        else if (event.key === Qt.Key_End)
            scroller.scroll(scroller.contentHeight);
        event.accepted = false;
    }

    SystemStyle {
        id: system
    }

    // Also fills a window that is larger than the overlay.
    Rectangle {
        width: Math.max(parent.width, page.x + page.width)
        height: Math.max(parent.height, page.y + page.height)
        color: root.background
    }

    Item {
        id: page

        x: root.shownArea.x
        y: root.shownArea.y
        width: root.shownArea.width
        height: root.shownArea.height

        Flickable {
            id: scroller

            function scroll(distance: real) {
                contentY = Math.max(0, Math.min(contentHeight - height, contentY + distance));
            }

            anchors { left: parent.left; right: parent.right; top: parent.top; bottom: button.top; bottomMargin: root.margin / 2 }
            contentHeight: Math.max(height, label.height + 1.5 * root.margin)
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height
            clip: interactive

            Text {
                id: label

                anchors.horizontalCenter: parent.horizontalCenter
                y: Math.max(root.margin, (scroller.contentHeight - height) / 2)
                width: Math.max(0, Math.min(page.width - 2 * root.margin, 26 * root.textSize))
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                lineHeight: 1.2
                font { pixelSize: root.textSize; weight: Font.Medium }
                color: root.foreground
                onTextChanged: scroller.contentY = 0
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

        // Fades out the last lines while there is more to scroll to.
        Rectangle {
            anchors { left: scroller.left; right: scroller.right; bottom: scroller.bottom }
            height: Math.max(root.margin, 1.2 * root.textSize)
            visible: root.background.a === 1 && scroller.interactive && !scroller.atYEnd
            gradient: Gradient {
                GradientStop { position: 0; color: Qt.rgba(root.background.r, root.background.g, root.background.b, 0) }
                GradientStop { position: 0.7; color: root.background }
            }
        }

        Rectangle {
            anchors { right: scroller.right; rightMargin: 4 }
            y: scroller.y + scroller.visibleArea.yPosition * scroller.height
            width: 4
            height: Math.max(24, scroller.visibleArea.heightRatio * scroller.height)
            radius: 2
            visible: scroller.interactive
            color: root.foreground
            opacity: 0.4
        }

        // Not a control: loading Qt Quick Templates would add half to the guide's memory.
        Item {
            id: button

            readonly property alias pressed: area.pressed
            // Whether the focus is shown: after keys that move it, until the next press.
            property bool visualFocus: false

            function press(event: KeyEvent) {
                if (!event.isAutoRepeat)
                    root.nextGuide(button);
            }

            anchors {
                right: parent.right
                rightMargin: (page.width - label.width) / 2
                bottom: parent.bottom
                bottomMargin: root.margin
            }
            width: 60
            height: 60
            focus: true
            activeFocusOnTab: true
            Accessible.role: Accessible.Button
            Accessible.name: root.nextButtonName
            // Screen readers speak it with each paragraph, because the button gets the focus again.
            Accessible.description: label.text
            Accessible.onPressAction: {
                if (button.enabled)
                    root.nextGuide(button);
            }
            Keys.onReturnPressed: event => press(event)
            Keys.onEnterPressed: event => press(event)
            Keys.onSpacePressed: event => press(event)

            MouseArea {
                id: area

                anchors.fill: parent
                onPressed: {
                    button.visualFocus = false;
                    button.forceActiveFocus();
                }
                onClicked: root.nextGuide(button)
            }

            Rectangle {
                objectName: "disc"
                anchors.fill: parent
                radius: width / 2
                color: root.foreground

                Rectangle {
                    visible: button.visualFocus
                    anchors { fill: parent; margins: -6 }
                    radius: width / 2
                    color: "transparent"
                    border { width: 3; color: root.foreground }
                }
            }

            Arrow {
                objectName: "arrow"
                anchors.fill: parent
                color: Qt.tint(root.dark ? "black" : "white", root.background)
                rotation: system.rightToLeft ? 180 : 0
            }

            SequentialAnimation {
                id: pulse

                NumberAnimation { target: button; property: "scale"; to: 0.9; duration: 90; easing.type: Easing.OutQuad }
                NumberAnimation { target: button; property: "scale"; to: 1; duration: 210; easing.type: Easing.OutQuad }
            }
        }
    }

    component Arrow: Item {
        id: arrow

        required property color color

        // The whole arrow is rotated instead.
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true

        Rectangle {
            anchors.centerIn: parent
            width: 24
            height: 3
            radius: 1.5
            color: arrow.color

            Barb {
                angle: 45
                color: arrow.color
            }

            Barb {
                angle: -45
                color: arrow.color
            }
        }
    }

    // Half of the arrow head, rotated about its tip.
    component Barb: Rectangle {
        id: barb

        property real angle

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        width: 13
        height: 3
        radius: 1.5
        antialiasing: true
        transform: Rotation { origin { x: barb.width - barb.radius; y: barb.radius } angle: barb.angle }
    }
}
