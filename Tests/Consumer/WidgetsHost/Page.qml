import QtQuick
import TQFoundation

Rectangle {
    color: TQApp.hazel.tintColor.resolved(TQAppearance.isDark)

    Text {
        color: TQApp.hazel.tintColor.textColor(TQAppearance.isDark)
        text: TQMore.privacyText
    }
}
