import QtQuick
import QtQuick.Controls.Basic
import TQFoundation

Window {
    id: root

    readonly property tqApp app: TQApp.hazel

    width: 390
    height: 844
    visible: true
    title: TQApp.name
    Component.onCompleted: if (app.guideText.length > 0 && guide.shouldShowGuide()) guide.showGuide(root)

    TQGuide { id: guide; tintColor: root.app.tintColor; descriptions: root.app.guideText }

    StackView {
        id: screens

        anchors.fill: parent
        initialItem: HomeScreen {
            app: root.app
            onMoreRequested: screens.push(moreScreen)
        }
    }

    MoreScreen {
        id: moreScreen

        visible: false
        app: root.app
        onBackRequested: screens.pop()
    }
}
