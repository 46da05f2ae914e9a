import QtQuick
import TQFoundation

// Uses every type of the module and every member of it; qmllint checks it against the module's qmltypes.
Window {
    id: root

    property list<tqApp> cases: [TQApp.larch, TQApp.juniper, TQApp.hazel, TQApp.ginkgo, TQApp.fir, TQApp.elm,
        TQApp.dogwood, TQApp.cedar, TQApp.birch, TQApp.alder]
    readonly property int count: TQApp.allCases.length
    readonly property string host: TQApp.name + TQApp.version + TQApp.buildNumber + TQApp.developerPageText

    readonly property tqApp app: TQApp.hazel
    readonly property string texts: app.id + app.appLink + app.reviewLink
    readonly property var filing: app.icp
    readonly property string paragraph: app.guideText[0]
    readonly property url artwork: app.iconUrl

    readonly property tqColor tint: app.tintColor
    readonly property color tintInLight: tint.light
    readonly property color tintInDark: tint.dark
    readonly property color tintNow: tint.resolved(TQAppearance.isDark)
    readonly property color textOnTint: tint.textColor(true)
    readonly property color tintOnBlack: tint.legibleOn("black", true)

    readonly property list<string> titles: [TQMore.privacyText, TQMore.feedbackText, TQMore.reviewText,
        TQMore.threadsText, TQMore.blogText, TQMore.moreAppText, TQMore.versionText,
        TQMore.icpOrBlogText(filing), TQMore.blogOrSocialText(filing)]
    readonly property list<string> links: [TQMore.privacyUrl, TQMore.feedbackUrl, TQMore.threadsUrl, TQMore.blogUrl,
        TQMore.moreAppUrl, TQMore.icpOrBlogUrl(filing), TQMore.blogOrSocialUrl(filing)]

    readonly property bool hasIcon: !one.empty
    readonly property string iconName: one.caseName

    function visit() {
        TQApp.openDeveloperPage();
        TQAppearance.isDarkChanged();
        TQMore.openUrl(TQMore.privacyUrl, tint);
        TQMore.sendFeedbackEmail(tint, "");
        if (guide.shouldShowGuide())
            guide.showGuide(root, row);
    }

    TQGuide {
        id: guide

        tintColor: root.tint
        descriptions: root.app.guideText
        onTintColorChanged: root.visit()
        onDescriptionsChanged: root.visit()
        onCompleted: root.visit()
    }

    TQRandomBackgroundView {
        anchors.fill: parent
        color: root.tint
        onColorChanged: root.visit()
    }

    TQAppView {
        id: row

        app: root.app
    }

    TQAppIcon {
        id: one

        app: root.app
        onAppChanged: root.visit()
        onEmptyChanged: root.visit()
    }

    // Types for nib files.
    AnimationView {}

    TQGuideView {
        id: overlay

        guideLabel: label
        nextButton: button
        backgroundColor: root.tint
        onGuideLabelChanged: nextGuide(button)
        onNextButtonChanged: nextGuide()
        onBackgroundColorChanged: nextGuide()
        onShownAreaChanged: nextGuide()
        onTapped: nextGuide()

        Text {
            id: label

            x: overlay.shownArea.x
            text: overlay.nextButtonName
        }

        Item {
            id: button
        }
    }
}
