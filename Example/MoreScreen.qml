import QtQuick
import QtQuick.Controls.Basic
import TQFoundation

// The More screen of an app of the catalogue: links, mail, region rows, sibling apps and version.
FocusScope {
    id: root

    required property tqApp app

    readonly property color tint: app.tintColor.legibleOn(Theme.ground, Theme.dark)

    signal backRequested
    signal appearanceChosen(isDark: bool)

    Keys.onEscapePressed: backRequested()
    Keys.onBackPressed: backRequested()

    Item {
        id: bar

        width: parent.width
        height: Math.max(56, title.height + Theme.margin)
        z: 1

        BarButton {
            id: back

            anchors { left: parent.left; leftMargin: 4; verticalCenter: parent.verticalCenter }
            tint: root.tint
            Accessible.name: qsTr("Back")
            onClicked: root.backRequested()

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
            id: title

            anchors.centerIn: parent
            width: parent.width - 2 * (back.width + 8)
            text: qsTr("More")
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            font { pixelSize: Theme.textSize; weight: Font.DemiBold }
            color: Theme.text
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        BarButton {
            anchors { right: parent.right; rightMargin: 4; verticalCenter: parent.verticalCenter }
            tint: root.tint
            checkable: true
            checked: Theme.dark
            Accessible.name: qsTr("Dark Appearance")
            onClicked: root.appearanceChosen(!Theme.dark)

            // A circle of which one half is filled.
            contentItem: Item {
                Rectangle {
                    anchors.centerIn: parent
                    width: 20
                    height: 20
                    radius: 10
                    color: "transparent"
                    border { width: 2; color: root.tint }

                    Item {
                        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
                        width: 10
                        clip: true

                        Rectangle {
                            anchors.right: parent.right
                            width: 20
                            height: 20
                            radius: 10
                            color: root.tint
                        }
                    }
                }
            }
        }

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            visible: !page.atYBeginning
            color: Theme.separator
        }
    }

    Flickable {
        id: page

        anchors { left: parent.left; right: parent.right; top: bar.bottom; bottom: parent.bottom }
        contentHeight: column.height + 2 * Theme.margin
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollIndicator.vertical: ScrollIndicator { Accessible.ignored: true }

        readonly property Item focused: Window.activeFocusItem

        function isRow(item: Item): bool {
            return item && (item.parent === column || isRow(item.parent));
        }

        // Scrolls until the row with keyboard focus is visible.
        onFocusedChanged: {
            if (!isRow(focused))
                return;
            const top = focused.mapToItem(column, 0, 0).y + column.y;
            contentY = Math.max(0, Math.min(Math.max(contentY, top + focused.height + Theme.margin - height), top - Theme.margin));
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
                    tint: root.app.tintColor.legibleOn(Theme.card, Theme.dark)
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

                    TQAppView {
                        id: apps

                        anchors.verticalCenter: parent.verticalCenter
                        width: parent.width
                        app: root.app
                    }

                    Rectangle {
                        anchors { fill: parent; margins: 4 }
                        radius: Theme.corner - 4
                        color: "transparent"
                        border { width: apps.activeFocus ? 2 : 0; color: root.tint }
                    }
                }
            }

            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: TQMore.versionText
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font.pixelSize: Math.round(0.76 * Theme.textSize)
                color: Theme.secondaryText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }

    component BarButton: AbstractButton {
        id: button

        required property color tint

        // Clicks once for each key press; auto-repeat is ignored.
        function press(event: KeyEvent) {
            if (!event.isAutoRepeat)
                clicked();
        }

        width: 44
        height: 44
        focusPolicy: Qt.StrongFocus
        Accessible.onPressAction: clicked()
        Keys.onReturnPressed: event => press(event)
        Keys.onEnterPressed: event => press(event)

        background: Rectangle {
            radius: Theme.corner
            color: button.down ? Theme.pressed : "transparent"
            border { width: button.visualFocus ? 2 : 0; color: button.tint }
        }
    }

    component Entry: MoreRow {
        width: parent ? parent.width : implicitWidth
    }

    component LinkRow: Entry {
        required property string link
        required property tqColor tintColor

        tint: tintColor.legibleOn(Theme.card, Theme.dark)
        onClicked: TQMore.openUrl(link, tintColor)
    }
}
