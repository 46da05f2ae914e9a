import QtQuick.Controls.Basic
import TQFoundation

ItemDelegate {
    id: root

    required property string link
    required property tqColor tint

    width: parent ? parent.width : implicitWidth
    onClicked: TQMore.openUrl(link, tint)
}
