import QtQuick
import QtQuick.Templates as T
import TQFoundation
import TQFoundation.Base

// The sheet for writing a mail: a bar with Cancel and Send above a page that scrolls as a whole. The page holds the last
// error, the recipient, the subject and the message.
Sheet {
    id: root

    required property MailDraft page

    onOpened: editor.field.forceActiveFocus()

    Connections {
        target: root.page

        function onDiscardConfirmationRequested() {
            discardQuestion.ask(bar.cancelledByKeyboard);
        }

        function onStopConfirmationRequested() {
            stopQuestion.ask(bar.cancelledByKeyboard);
        }

        function onStateChanged() {
            if (!root.page.isSending)
                stopQuestion.close();
        }
    }

    FocusScope {
        anchors.fill: parent
        focus: true
        enabled: !discardQuestion.visible && !stopQuestion.visible
        LayoutMirroring.enabled: root.rightToLeft
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.Dialog
        Accessible.name: SheetText.of(SheetText.NewMessage)
        Keys.onEscapePressed: root.page.cancel()
        Keys.onBackPressed: root.page.cancel()

        MailBar {
            id: bar

            width: parent.width
            sheet: root
            page: root.page
        }

        Flickable {
            id: scroller

            function reveal(item: Item, area: rect) {
                const top = item.mapToItem(contentItem, area.x, area.y).y;
                if (top < contentY)
                    contentY = Math.max(0, top - root.gap);
                else if (top + area.height > contentY + height)
                    contentY = top + area.height + root.gap - height;
            }

            // Keeps the focused item visible when the window is resized.
            function revealFocus() {
                if (editor.field.activeFocus)
                    reveal(editor.field, editor.field.cursorRectangle);
                else if (subject.activeFocus)
                    reveal(subject, Qt.rect(0, 0, subject.width, subject.height));
                else if (failure.retryButton.activeFocus)
                    reveal(failure.retryButton, Qt.rect(0, 0, failure.retryButton.width, failure.retryButton.height));
            }

            anchors { top: bar.bottom; left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: root.narrow ? 0 : root.corner }
            contentHeight: lines.height
            onHeightChanged: revealFocus()
            onContentHeightChanged: revealFocus()
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height
            clip: true

            Column {
                id: lines

                width: scroller.width

                MailFailure {
                    id: failure

                    width: parent.width
                    sheet: root
                    page: root.page
                    onVisibleChanged: {
                        if (!visible)
                            return;
                        scroller.contentY = 0;
                        focusRetryButton(bar.sendButton.visualFocus);
                    }
                    onRetryButtonFocused: scroller.revealFocus()
                }

                LabelledLine {
                    id: recipientLine

                    sheet: root
                    label: SheetText.of(SheetText.To)

                    Text {
                        width: parent.width
                        y: recipientLine.valueMargin
                        text: root.page.recipient
                        textFormat: Text.PlainText
                        wrapMode: Text.WrapAnywhere
                        horizontalAlignment: Text.AlignLeft
                        font.pixelSize: root.textSize
                        color: root.ink
                        Accessible.role: Accessible.StaticText
                        Accessible.name: recipientLine.label + " " + text
                    }
                }

                LabelledLine {
                    id: subjectLine

                    sheet: root
                    label: SheetText.of(SheetText.Subject)

                    T.TextField {
                        id: subject

                        width: parent.width
                        implicitHeight: contentHeight + topPadding + bottomPadding
                        topPadding: subjectLine.valueMargin
                        bottomPadding: subjectLine.valueMargin
                        text: root.page.subject
                        font.pixelSize: root.textSize
                        color: root.ink
                        selectionColor: root.page.tint.legibleOn(root.ground, root.dark)
                        selectedTextColor: root.ground
                        selectByMouse: true
                        readOnly: root.page.isSending
                        onTextEdited: root.page.subject = text
                        // Shows the beginning of a long subject unless it is being edited.
                        autoScroll: activeFocus
                        onActiveFocusChanged: scroller.revealFocus()
                        Accessible.name: subjectLine.label
                    }
                }

                MailEditor {
                    id: editor

                    width: parent.width
                    minimumHeight: scroller.height - y
                    sheet: root
                    page: root.page
                    nextItem: bar.cancelButton
                    previousItem: subject
                    onCursorMoved: scroller.revealFocus()
                }
            }
        }

        ScrollIndicator {
            anchors { right: parent.right; rightMargin: 3 }
            flickable: scroller
            color: root.ink
            opacity: 0.3
        }

        SheetQuestion {
            id: discardQuestion

            sheet: root
            tint: root.page.tint.legibleOn(root.raisedGround, root.dark)
            question: SheetText.of(SheetText.DiscardQuestion)
            yesText: SheetText.of(SheetText.Discard)
            noText: SheetText.of(SheetText.KeepWriting)
            onAccepted: root.page.discard()
            onClosed: editor.field.forceActiveFocus()
        }

        SheetQuestion {
            id: stopQuestion

            sheet: root
            tint: discardQuestion.tint
            question: SheetText.of(SheetText.StopQuestion)
            yesText: SheetText.of(SheetText.StopSending)
            noText: SheetText.of(SheetText.KeepSending)
            onAccepted: root.page.stopSending()
            onClosed: failure.visible ? failure.focusRetryButton(byKeyboard) : editor.field.forceActiveFocus()
        }
    }
}
