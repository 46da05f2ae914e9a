import QtQuick
import QtQuick.Controls.Basic
import TQFoundation

// The More screen as every app of the catalogue shows it.
FocusScope {
    id: root

    required property tqApp app

    readonly property color tint: app.tintColor.resolved(Theme.dark)

    signal backRequested

    Keys.onEscapePressed: backRequested()
    Keys.onBackPressed: backRequested()

    Item {
        id: bar

        width: parent.width
        height: 56
        z: 1

        AbstractButton {
            id: back

            anchors { left: parent.left; leftMargin: 4; verticalCenter: parent.verticalCenter }
            width: 44
            height: 44
            focusPolicy: Qt.StrongFocus
            Accessible.name: qsTr("Back")
            Keys.onReturnPressed: back.clicked()
            Keys.onEnterPressed: back.clicked()
            onClicked: root.backRequested()

            background: Rectangle {
                radius: Theme.corner
                color: back.down || back.visualFocus ? Theme.pressed : "transparent"
            }

            contentItem: Item {
                Chevron {
                    anchors.centerIn: parent
                    back: true
                    size: 18
                    color: root.tint
                }
            }
        }

        Text {
            anchors.centerIn: parent
            text: qsTr("More")
            textFormat: Text.PlainText
            font { pixelSize: 17; weight: Font.DemiBold }
            color: Theme.text
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
    }

    Flickable {
        id: page

        anchors { left: parent.left; right: parent.right; top: bar.bottom; bottom: parent.bottom }
        contentHeight: column.height + 2 * Theme.margin
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollIndicator.vertical: ScrollIndicator {}

        // Keeps what has the keyboard focus in sight.
        function reveal(item: Item) {
            const top = item.mapToItem(column, 0, 0).y + column.y;
            contentY = Math.max(0, Math.min(Math.max(contentY, top + item.height + Theme.margin - height), top - Theme.margin));
        }

        Column {
            id: column

            anchors.horizontalCenter: parent.horizontalCenter
            y: Theme.margin / 2
            width: Math.min(page.width - 2 * Theme.margin, Theme.widest)
            spacing: 24

            MoreSection {
                width: parent.width

                LinkRow {
                    focus: true
                    text: TQMore.privacyText
                    link: TQMore.privacyUrl
                    tintColor: root.app.tintColor
                }
                Entry {
                    text: TQMore.feedbackText
                    onClicked: TQMore.sendFeedbackEmail(root.app.tintColor, "")
                }
                LinkRow {
                    text: TQMore.reviewText
                    link: root.app.reviewLink
                    tintColor: root.app.tintColor
                    last: true
                }
            }

            MoreSection {
                width: parent.width

                LinkRow {
                    text: TQMore.icpOrBlogText(root.app.icp)
                    link: TQMore.icpOrBlogUrl(root.app.icp)
                    tintColor: root.app.tintColor
                }
                LinkRow {
                    text: TQMore.blogOrSocialText(root.app.icp)
                    link: TQMore.blogOrSocialUrl(root.app.icp)
                    tintColor: root.app.tintColor
                    last: true
                }
            }

            MoreSection {
                width: parent.width

                LinkRow {
                    text: TQMore.moreAppText
                    link: TQMore.moreAppUrl
                    tintColor: root.app.tintColor
                }

                Item {
                    width: parent.width
                    height: apps.height + 2 * Theme.margin

                    Rectangle {
                        anchors { fill: parent; margins: 4 }
                        radius: Theme.corner - 4
                        color: apps.activeFocus ? Theme.pressed : "transparent"
                    }

                    TQAppView {
                        id: apps

                        anchors.verticalCenter: parent.verticalCenter
                        width: parent.width
                        app: root.app
                        onActiveFocusChanged: if (activeFocus) page.reveal(apps)
                    }
                }
            }

            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: TQMore.versionText
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font.pixelSize: 13
                color: Theme.secondaryText
            }
        }
    }

    component Entry: MoreRow {
        width: parent ? parent.width : implicitWidth
        onActiveFocusChanged: if (activeFocus) page.reveal(this)
    }

    component LinkRow: Entry {
        required property string link
        required property tqColor tintColor

        onClicked: TQMore.openUrl(link, tintColor)
    }
}
