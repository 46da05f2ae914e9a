import QtQuick
import QtQuick.Controls.Basic
import TQFoundation

Window {
    id: root

    readonly property tqApp app: TQApp.juniper

    width: 390
    height: 640
    visible: true
    title: TQApp.name

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
                width: parent.width
                text: TQMore.feedbackText
                onClicked: TQMore.sendFeedbackEmail(root.app.tintColor, "")
            }

            LinkRow {
                text: TQMore.reviewText
                link: root.app.reviewLink
                tint: root.app.tintColor
            }

            LinkRow {
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
