import QtQuick
import QtWebEngine
import TQFoundation

// The bar of the in-app browser: Close, Back, the name of the site and Reload. While a page is being loaded it shows a
// text and a progress bar.
Item {
    id: root

    required property Sheet sheet
    required property color tint
    required property WebEngineView web
    required property string site

    readonly property alias closeButton: close
    readonly property alias reloadButton: reload

    signal closeClicked
    signal reloadClicked

    // Leaves room for both texts, so that the page does not move when loading ends.
    height: Math.max(56, siteLabel.implicitHeight + loadingLabel.implicitHeight + 16)

    BarButton {
        id: close

        anchors { left: parent.left; leftMargin: 6; verticalCenter: parent.verticalCenter }
        text: SheetText.of(SheetText.Close)
        tint: root.tint
        pressedGround: root.sheet.pressed
        onClicked: root.closeClicked()

        contentItem: Icon {
            IconStroke { anchors.centerIn: parent; color: root.tint; length: 20; angle: 45 }
            IconStroke { anchors.centerIn: parent; color: root.tint; length: 20; angle: -45 }
        }
    }

    BarButton {
        id: back

        anchors { left: close.right; verticalCenter: parent.verticalCenter }
        text: SheetText.of(SheetText.Back)
        tint: root.tint
        pressedGround: root.sheet.pressed
        enabled: root.web.canGoBack
        onClicked: root.web.goBack()

        contentItem: Icon {
            opacity: back.enabled ? 1 : 0.3
            rotation: root.sheet.rightToLeft ? 180 : 0

            IconStroke { x: 15; y: 21; color: root.tint; length: 14; pivot: 1; angle: 45 }
            IconStroke { x: 15; y: 21; color: root.tint; length: 14; pivot: 1; angle: -45 }
        }
    }

    Column {
        anchors { left: parent.left; right: parent.right; margins: 2 * close.width + 6; verticalCenter: parent.verticalCenter }

        BarText {
            id: siteLabel

            width: parent.width
            text: root.site
            minimumPixelSize: Math.round(0.7 * root.sheet.textSize)
            // The end of a host name is the part that its owner cannot choose freely.
            elide: Text.ElideLeft
            font { pixelSize: root.sheet.textSize; weight: Font.DemiBold }
            color: root.sheet.ink
            Accessible.role: Accessible.Heading
        }

        BarText {
            id: loadingLabel

            width: parent.width
            // Hidden if it does not fit, even in its smallest size.
            visible: root.web.loading && implicitWidth * (minimumPixelSize + 1) <= width * font.pixelSize
            text: SheetText.of(SheetText.Loading)
            minimumPixelSize: 11
            elide: Text.ElideRight
            font.pixelSize: Math.round(0.75 * root.sheet.textSize)
            color: root.sheet.quietInk
            Accessible.role: Accessible.StaticText
        }
    }

    BarButton {
        id: reload

        anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
        text: SheetText.of(SheetText.Reload)
        tint: root.tint
        pressedGround: root.sheet.pressed
        onClicked: root.reloadClicked()

        // Three quarters of a ring with an arrow head.
        contentItem: Icon {
            Rectangle { x: 13; y: 13; width: 18; height: 18; radius: 9; color: "transparent"; border { width: 2; color: root.tint } }
            Rectangle { x: 22; y: 11; width: 11; height: 11; color: reload.down ? root.sheet.pressed : root.sheet.ground }
            IconStroke { x: 19; y: 13; color: root.tint; length: 7; pivot: 6; angle: 45 }
            IconStroke { x: 19; y: 13; color: root.tint; length: 7; pivot: 6; angle: -45 }
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: root.sheet.line
    }

    Rectangle {
        anchors { left: parent.left; bottom: parent.bottom }
        width: parent.width * Math.max(0.05, root.web.loadProgress / 100)
        height: 3
        visible: root.web.loading
        color: root.tint
        Accessible.role: Accessible.ProgressBar
        Accessible.name: root.web.loadProgress + "%"
        Accessible.description: loadingLabel.text
    }

    component BarButton: SheetButton {
        horizontalPadding: 0
        verticalPadding: 0
    }

    component BarText: Text {
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        fontSizeMode: Text.HorizontalFit
        Accessible.name: text
    }

    component Icon: Item {
        implicitWidth: 44
        implicitHeight: 44
    }
}
