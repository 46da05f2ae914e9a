import QtQuick
import QtQuick.Controls.Basic
import TQFoundation

Page {
    id: root

    required property tqApp app

    signal backRequested()

    header: ToolBar {
        ToolButton {
            text: qsTr("Back")
            onClicked: root.backRequested()
        }
    }

    ScrollView {
        id: page

        anchors.fill: parent
        contentWidth: availableWidth

        Column {
            width: page.availableWidth

            LinkRow {
                text: TQMore.privacyText
                link: TQMore.privacyUrl
                tint: root.app.tintColor
            }

            ItemDelegate {
                objectName: "feedback"
                width: parent.width
                text: TQMore.feedbackText
                onClicked: TQMore.sendFeedbackEmail(root.app.tintColor, "")
            }

            LinkRow {
                objectName: "review"
                text: TQMore.reviewText
                link: root.app.reviewLink
                tint: root.app.tintColor
            }

            LinkRow {
                objectName: "region"
                text: TQMore.icpOrBlogText(root.app.icp)
                link: TQMore.icpOrBlogUrl(root.app.icp)
                tint: root.app.tintColor
            }

            LinkRow {
                text: TQMore.blogOrSocialText(root.app.icp)
                link: TQMore.blogOrSocialUrl(root.app.icp)
                tint: root.app.tintColor
            }

            LinkRow {
                text: TQMore.moreAppText
                link: TQMore.moreAppUrl
                tint: root.app.tintColor
            }

            TQAppView {
                width: parent.width
                app: root.app
            }

            Label {
                padding: 16
                text: TQMore.versionText
                textFormat: Text.PlainText
            }
        }
    }
}
