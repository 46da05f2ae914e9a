import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import TQFoundation

ApplicationWindow {
    id: root

    required property tqApp app
    required property url iconSource
    property bool animated: true
    property bool backgroundOnly: false
    property string screenName: "home"

    signal appearanceChosen(isDark: bool)

    visible: true
    title: TQApp.name
    color: Theme.ground
    minimumWidth: 240
    minimumHeight: 240

    LayoutMirroring.enabled: Qt.locale().textDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    // First launch only. No window is key yet, so the guide is added to this one. An app without a guide has no
    // paragraphs, and showing none would stop the process.
    Component.onCompleted: {
        if (backgroundOnly || app.guideText.length === 0 || !guide.shouldShowGuide())
            return;
        guide.showGuide(root);
        // The guide is as large as the screen, and this window is the platform's screen. Off-screen, its size is fixed
        // already.
        if (animated) {
            maximumWidth = width;
            maximumHeight = height;
        }
    }

    TQGuide {
        id: guide

        tintColor: root.app.tintColor
        descriptions: root.app.guideText
        onCompleted: root.maximumWidth = root.maximumHeight = 16777215
    }

    onScreenNameChanged: {
        const isByKeys = (activeFocusControl as T.Control)?.visualFocus;
        const operation = animated ? StackView.Transition : StackView.Immediate;
        if (screenName === "more" && stack.depth === 1)
            stack.push(moreScreen, {}, operation);
        else if (screenName === "home" && stack.depth > 1)
            stack.pop(null, operation);
        // Shows the focus frame if the screen was changed by keyboard.
        const control = activeFocusControl as T.Control;
        if (control && isByKeys)
            control.focusReason = Qt.TabFocusReason;
    }

    TQRandomBackgroundView {
        anchors.fill: parent
        color: root.app.tintColor
    }

    StackView {
        id: stack

        anchors.fill: parent
        visible: !root.backgroundOnly
        focus: true
        initialItem: homeScreen
        onCurrentItemChanged: if (currentItem) currentItem.focus = true
    }

    HomeScreen {
        id: homeScreen

        visible: false
        app: root.app
        iconSource: root.iconSource
        onMoreRequested: root.screenName = "more"
    }

    MoreScreen {
        id: moreScreen

        visible: false
        app: root.app
        onBackRequested: root.screenName = "home"
        onAppearanceChosen: isDark => root.appearanceChosen(isDark)
    }
}
