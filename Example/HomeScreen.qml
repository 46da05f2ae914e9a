import QtQuick
import QtQuick.Controls.Basic
import TQFoundation

// Home screen: the app's icon, name and version, and a button to the More screen.
FocusScope {
    id: root

    required property tqApp app
    required property url iconSource

    readonly property color tint: app.tintColor.resolved(Theme.dark)

    signal moreRequested

    // Translucent gradient of the app's tint, strongest at the top.
    Rectangle {
        anchors.fill: parent
        opacity: Theme.dark ? 0.24 : 0.12
        gradient: Gradient {
            GradientStop { position: 0; color: root.tint }
            GradientStop { position: 0.75; color: "transparent" }
        }
    }

    // Scrolls only if large text or a low window leaves too little room.
    Flickable {
        id: page

        readonly property real room: 3 * Theme.margin

        anchors.fill: parent
        contentHeight: Math.max(height, room + identity.height + room + more.height + room)
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        ScrollIndicator.vertical: ScrollIndicator { Accessible.ignored: true }

        Column {
            id: identity

            anchors.horizontalCenter: parent.horizontalCenter
            y: Math.min((page.contentHeight - height) / 2 - 24, more.y - page.room - height)
            width: Math.min(parent.width - 2 * Theme.margin, Theme.widest)
            spacing: 8

            Image {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 108
                height: 108
                source: root.iconSource
                mipmap: true
                Accessible.ignored: true
            }

            Item { width: 1; height: 8 }

            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: TQApp.name
                textFormat: Text.PlainText
                elide: Text.ElideRight
                maximumLineCount: 2
                wrapMode: Text.Wrap
                font { pixelSize: 2 * Theme.textSize; weight: Font.DemiBold }
                color: Theme.text
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: TQMore.versionText
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font.pixelSize: Math.round(0.88 * Theme.textSize)
                color: Theme.secondaryText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

        AbstractButton {
            id: more

            anchors.horizontalCenter: parent.horizontalCenter
            y: page.contentHeight - page.room - height
            width: Math.min(parent.width - 4 * Theme.margin, 320)
            height: Math.max(52, implicitContentHeight + 2 * Theme.margin)
            focus: true
            focusPolicy: Qt.StrongFocus
            text: qsTr("More")
            Accessible.name: text
            Accessible.onPressAction: more.clicked()
            // The only control always has focus, so Tab cannot move focus here and set the reason itself.
            Keys.onTabPressed: more.focusReason = Qt.TabFocusReason
            Keys.onBacktabPressed: more.focusReason = Qt.BacktabFocusReason
            Keys.onReturnPressed: press()
            Keys.onEnterPressed: press()
            onVisualFocusChanged: if (visualFocus) page.contentY = page.contentHeight - page.height
            onClicked: root.moreRequested()

            function press() {
                focusReason = Qt.TabFocusReason;
                clicked();
            }

            background: Rectangle {
                radius: height / 2
                color: root.tint
                opacity: more.down ? 0.75 : 1

                Rectangle {
                    visible: more.visualFocus
                    anchors { fill: parent; margins: -4 }
                    radius: height / 2
                    color: "transparent"
                    border { width: 2; color: root.app.tintColor.legibleOn(Theme.ground, Theme.dark) }
                }
            }

            contentItem: Text {
                text: more.text
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 11
                font { pixelSize: Theme.textSize; weight: Font.DemiBold }
                color: root.app.tintColor.textColor(Theme.dark)
            }
        }
    }
}
