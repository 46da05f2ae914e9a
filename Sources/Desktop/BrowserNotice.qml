import QtQuick
import TQFoundation

// The error message for a page that could not be loaded, with a button that tries again. Fills its parent, or lies below
// a page that has loaded in part. Hidden without a problem.
Rectangle {
    id: root

    required property Sheet sheet
    required property BrowserPage page
    required property bool hasContent

    readonly property bool coversPage: page.problem !== BrowserPage.NoProblem && !(page.problem === BrowserPage.TimedOut && hasContent)
    // True as soon as the button can take the keyboard focus from the page.
    readonly property bool replacesPage: visible && coversPage
    readonly property alias retryButton: retry

    signal retryClicked

    height: coversPage ? parent.height : Math.min(parent.height, lines.height + 2 * sheet.gap)
    visible: page.problem !== BrowserPage.NoProblem
    color: coversPage || !sheet.dark ? sheet.ground : "#2c2c2e"
    Accessible.role: Accessible.AlertMessage
    Accessible.name: page.problemText

    Rectangle {
        width: parent.width
        height: 1
        visible: !root.coversPage
        color: root.sheet.line
    }

    Flickable {
        id: flickable

        function scrollToEnd() {
            contentY = contentHeight - height;
        }

        anchors.fill: parent
        contentHeight: Math.max(height, lines.height + 2 * root.sheet.gap)
        onHeightChanged: if (retry.activeFocus) scrollToEnd()
        onContentHeightChanged: if (retry.activeFocus) scrollToEnd()
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: interactive

        Column {
            id: lines

            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * root.sheet.gap, 26 * root.sheet.textSize)
            spacing: root.coversPage ? 12 : 0

            Text {
                width: parent.width
                text: root.page.problemText
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                font.pixelSize: root.sheet.textSize
                color: root.sheet.ink
            }

            SheetButton {
                id: retry

                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(implicitWidth, parent.width)
                text: SheetText.of(SheetText.TryAgain)
                textSize: root.sheet.textSize
                strong: true
                tint: root.page.tint.legibleOn(root.color, root.sheet.dark)
                pressedGround: root.sheet.pressed
                Accessible.description: root.page.problemText
                onActiveFocusChanged: if (activeFocus) flickable.scrollToEnd()
                onClicked: root.retryClicked()
            }
        }
    }
}
