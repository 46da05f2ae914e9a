import QtQuick
import TQFoundation

Rectangle {
    color: TQApp.hazel.tintColor.light

    Text {
        color: TQApp.hazel.tintColor.textColor(false)
        text: TQMore.privacyText
    }
}
