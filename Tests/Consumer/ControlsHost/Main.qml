import QtQuick
import QtQuick.Controls.Basic
import TQFoundation

ApplicationWindow {
    id: root

    required property tqApp app

    visible: true
    width: 390
    height: 844
    title: TQApp.name

    TQRandomBackgroundView {
        anchors.fill: parent
        color: root.app.tintColor
    }
    ListView {
        anchors { fill: parent; bottomMargin: row.height }
        model: TQApp.allCases
        delegate: ItemDelegate {
            required property tqApp modelData
            text: modelData.appLink
        }
    }
    TQAppView {
        id: row

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        app: root.app
    }
}
