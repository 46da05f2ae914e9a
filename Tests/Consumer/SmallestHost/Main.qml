import QtQuick
import TQFoundation

Window {
    visible: true
    title: TQApp.name
    Column {
        Text { text: TQMore.versionText }
        TQAppView { app: TQApp.hazel; width: 360 }
    }
}
