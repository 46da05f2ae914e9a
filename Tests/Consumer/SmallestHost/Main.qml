import QtQuick
import TQFoundation

Window {
    id: root

    visible: true
    title: TQApp.name
    Component.onCompleted: if (guide.shouldShowGuide()) guide.showGuide(root)

    TQGuide {
        id: guide
        tintColor: TQApp.hazel.tintColor
        descriptions: TQApp.hazel.guideText
    }
    Column {
        Text { text: TQMore.versionText }
        TQAppView { app: TQApp.hazel; width: 360 }
    }
}
