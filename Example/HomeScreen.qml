import QtQuick
import QtQuick.Controls.Basic
import TQFoundation

// The app's icon, name and tint, and the way to its More screen.
FocusScope {
    id: root

    required property tqApp app
    required property url iconSource

    readonly property color tint: app.tintColor.resolved(Theme.dark)

    signal moreRequested

    // A wash of the app's colour, strongest behind the icon.
    Rectangle {
        anchors.fill: parent
        opacity: Theme.dark ? 0.24 : 0.12
        gradient: Gradient {
            GradientStop { position: 0; color: root.tint }
            GradientStop { position: 0.75; color: "transparent" }
        }
    }

    Column {
        anchors { horizontalCenter: parent.horizontalCenter; verticalCenter: parent.verticalCenter; verticalCenterOffset: -24 }
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
            font { pixelSize: 34; weight: Font.DemiBold }
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
            font.pixelSize: 15
            color: Theme.secondaryText
        }
    }

    AbstractButton {
        id: more

        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 48 }
        width: Math.min(parent.width - 4 * Theme.margin, 320)
        height: 52
        focus: true
        focusPolicy: Qt.StrongFocus
        text: qsTr("More")
        Accessible.name: text
        Keys.onReturnPressed: more.clicked()
        Keys.onEnterPressed: more.clicked()
        onClicked: root.moreRequested()

        background: Rectangle {
            radius: height / 2
            color: root.tint
            opacity: more.down ? 0.75 : 1

            Rectangle {
                visible: more.visualFocus
                anchors { fill: parent; margins: -4 }
                radius: height / 2
                color: "transparent"
                border { width: 2; color: root.tint }
            }
        }

        contentItem: Text {
            text: more.text
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font { pixelSize: 17; weight: Font.DemiBold }
            color: root.app.tintColor.textColor(Theme.dark)
        }
    }
}
