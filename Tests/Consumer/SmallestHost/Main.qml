import QtQuick
import TQFoundation

Window {
    id: root; width: 390; height: 844; visible: true
    title: TQApp.name
    readonly property tqApp app: TQApp.hazel
    Component.onCompleted: if (app.guideText.length > 0 && guide.shouldShowGuide()) guide.showGuide(root)

    TQGuide { id: guide; tintColor: root.app.tintColor; descriptions: root.app.guideText }
    TQAppView { app: root.app; width: root.width }
    Text { text: TQMore.versionText; y: 60 }
}
