import QtQuick
import QtQuick.Controls.Basic
import TQFoundation

ApplicationWindow {
    id: root

    required property tqApp app
    property bool animated: true
    property string screenName: "home"

    function iconOf(app: tqApp): url {
        const names = ["larch-page", "juniper-page", "hazel-page", "ginkgo-page", "fir", "elm-page", "dogwood", "cedar", "birch", "alder-page"];
        return "qrc:/Icons/" + names[TQApp.allCases.findIndex(candidate => candidate.id === app.id)] + ".png";
    }

    visible: true
    title: TQApp.name
    color: Theme.ground
    minimumWidth: 240
    minimumHeight: 240

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    onScreenNameChanged: {
        const operation = animated ? StackView.Transition : StackView.Immediate;
        if (screenName === "more" && stack.depth === 1)
            stack.push(moreScreen, {}, operation);
        else if (screenName === "home" && stack.depth > 1)
            stack.pop(null, operation);
    }

    StackView {
        id: stack

        anchors.fill: parent
        focus: true
        initialItem: homeScreen
        onCurrentItemChanged: if (currentItem) currentItem.forceActiveFocus()
    }

    Component {
        id: homeScreen

        HomeScreen {
            app: root.app
            iconSource: root.iconOf(root.app)
            onMoreRequested: root.screenName = "more"
        }
    }

    Component {
        id: moreScreen

        MoreScreen {
            app: root.app
            onBackRequested: root.screenName = "home"
        }
    }
}
