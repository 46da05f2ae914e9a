import QtQuick
import TQFoundation

Window {
    id: root
    width: 390; height: 844; visible: true
    title: TQApp.name
    Component.onCompleted: if (guide.shouldShowGuide()) guide.showGuide(root)

    TQGuide { id: guide; tintColor: TQApp.hazel.tintColor; descriptions: TQApp.hazel.guideText }
    TQAppView { app: TQApp.hazel; width: root.width }
    Text { text: TQMore.versionText; y: 60 }
}
