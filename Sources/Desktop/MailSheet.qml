import QtQuick
import QtQuick.Templates as T
import TQFoundation

// Where the user writes a mail: a bar with Cancel and Send, and below it a page that scrolls as a whole: what went wrong,
// whom the mail goes to, its subject, its text.
Sheet {
    id: root

    required property MailDraft page

    readonly property color tint: page.tint.legibleOn(ground, dark)

    onOpened: message.forceActiveFocus()

    Connections {
        target: root.page

        function onDiscardQuestioned() {
            question.askedByKeys = !cancel.activeFocus || cancel.visualFocus;
            question.open();
        }
    }

    FocusScope {
        anchors.fill: parent
        focus: true
        enabled: !question.visible
        LayoutMirroring.enabled: root.rightToLeft
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.Dialog
        Accessible.name: root.page.titleText
        Keys.onEscapePressed: root.page.cancel()
        Keys.onBackPressed: root.page.cancel()

        Item {
            id: bar

            // Of the buttons, where their texts are too long to stand beside each other.
            readonly property real shrinkage: Math.min(1, (width - root.gap) / (cancel.implicitWidth + send.implicitWidth))

            width: parent.width
            height: Math.max(56, cancel.height + 12)

            SheetButton {
                id: cancel

                anchors { left: parent.left; leftMargin: root.gap - leftPadding; verticalCenter: parent.verticalCenter }
                width: implicitWidth * bar.shrinkage
                text: root.page.cancelText
                textSize: root.textSize
                tint: root.tint
                pressedGround: root.pressed
                enabled: !root.page.isSending
                onClicked: root.page.cancel()
            }

            // In the middle of the bar, or of what the buttons leave of it; not where it would hardly be seen.
            Text {
                id: title

                readonly property bool fits: implicitWidth <= bar.width - 2 * Math.max(cancel.width, send.width)

                anchors {
                    left: cancel.right
                    leftMargin: fits ? Math.max(0, send.width - cancel.width) : 0
                    right: send.left
                    rightMargin: fits ? Math.max(0, cancel.width - send.width) : 0
                    verticalCenter: parent.verticalCenter
                }
                visible: implicitWidth < 1.25 * width
                text: root.page.isSending ? root.page.sendingText : root.page.titleText
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignHCenter
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 11
                elide: Text.ElideRight
                font { pixelSize: root.textSize; weight: Font.DemiBold }
                color: root.ink
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            SheetButton {
                id: send

                anchors { right: parent.right; rightMargin: root.gap - rightPadding; verticalCenter: parent.verticalCenter }
                width: implicitWidth * bar.shrinkage
                text: root.page.sendText
                textSize: root.textSize
                strong: true
                tint: root.tint
                pressedGround: root.pressed
                enabled: !root.page.isSending
                onClicked: root.page.send()
            }

            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: 1
                color: root.line
            }

            // That the mail is on its way, for how long nobody knows.
            Item {
                anchors { bottom: parent.bottom }
                width: parent.width
                height: 3
                clip: true
                visible: root.page.isSending
                Accessible.role: Accessible.ProgressBar
                Accessible.name: root.page.sendingText

                Rectangle {
                    width: parent.width / 3
                    height: parent.height
                    color: root.tint

                    NumberAnimation on x {
                        running: root.page.isSending
                        from: -bar.width / 3
                        to: bar.width
                        duration: 1200
                        loops: Animation.Infinite
                    }
                }
            }
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

            // What has the focus stays in sight when the window changes.
            function revealFocus() {
                if (message.activeFocus)
                    reveal(message, message.cursorRectangle);
                else if (subject.activeFocus)
                    reveal(subject, Qt.rect(0, 0, subject.width, subject.height));
                else if (again.activeFocus)
                    reveal(again, Qt.rect(0, 0, again.width, again.height));
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

                // Why the mail was not sent.
                Rectangle {
                    id: failure

                    width: parent.width
                    height: reasons.height + 2 * root.gap
                    visible: root.page.problem !== "" && !root.page.isSending
                    // Seen, and read out as what the focus is on.
                    onVisibleChanged: {
                        if (!visible)
                            return;
                        scroller.contentY = 0;
                        again.forceActiveFocus(send.visualFocus || again.visualFocus ? Qt.TabFocusReason : Qt.OtherFocusReason);
                    }
                    color: root.dark ? "#3b2426" : "#fdeceb"
                    Accessible.role: Accessible.AlertMessage
                    Accessible.name: root.page.problem
                    Accessible.description: root.page.problemDetail

                    Column {
                        id: reasons

                        x: root.gap
                        y: root.gap
                        width: parent.width - 2 * root.gap
                        spacing: 6

                        Text {
                            width: parent.width
                            text: root.page.problem
                            textFormat: Text.PlainText
                            wrapMode: Text.Wrap
                            horizontalAlignment: Text.AlignLeft
                            font { pixelSize: root.textSize; weight: Font.Medium }
                            color: root.ink
                        }

                        Text {
                            width: parent.width
                            visible: text !== ""
                            text: root.page.problemDetail
                            textFormat: Text.PlainText
                            wrapMode: Text.Wrap
                            maximumLineCount: 3
                            elide: Text.ElideRight
                            horizontalAlignment: Text.AlignLeft
                            font.pixelSize: Math.round(root.textSize * 0.8)
                            color: root.dark ? "#c7b7b8" : "#6a5556"
                        }

                        SheetButton {
                            id: again

                            anchors.left: parent.left
                            anchors.leftMargin: -leftPadding
                            width: Math.min(implicitWidth, parent.width)
                            text: root.page.againText
                            textSize: root.textSize
                            strong: true
                            tint: root.page.tint.legibleOn(root.dark ? "#3b2426" : "#fdeceb", root.dark)
                            pressedGround: root.pressed
                            Accessible.description: root.page.problem
                            onActiveFocusChanged: scroller.revealFocus()
                            onClicked: root.page.send()
                        }
                    }
                }

                Line {
                    id: recipientLine

                    sheet: root
                    label: root.page.toText

                    Text {
                        width: parent.width
                        y: recipientLine.room
                        text: root.page.recipient
                        textFormat: Text.PlainText
                        wrapMode: Text.WrapAnywhere
                        horizontalAlignment: Text.AlignLeft
                        font.pixelSize: root.textSize
                        color: root.ink
                        Accessible.role: Accessible.StaticText
                        Accessible.name: root.page.toText + " " + text
                    }
                }

                Line {
                    id: subjectLine

                    sheet: root
                    label: root.page.subjectText

                    T.TextField {
                        id: subject

                        width: parent.width
                        implicitHeight: contentHeight + topPadding + bottomPadding
                        topPadding: subjectLine.room
                        bottomPadding: subjectLine.room
                        text: root.page.subject
                        font.pixelSize: root.textSize
                        color: root.ink
                        selectionColor: root.tint
                        selectedTextColor: root.ground
                        selectByMouse: true
                        readOnly: root.page.isSending
                        onTextEdited: root.page.subject = text
                        // A long one shows its beginning unless it is being written.
                        autoScroll: activeFocus
                        onActiveFocusChanged: scroller.revealFocus()
                        Accessible.name: root.page.subjectText
                    }
                }

                Rectangle {
                    width: parent.width
                    height: message.height
                    color: root.page.hasColors ? "#ffffff" : "transparent"

                    T.TextArea {
                        id: message

                        width: parent.width
                        height: Math.max(contentHeight + topPadding + bottomPadding, scroller.height - parent.y)
                        padding: root.gap
                        topPadding: root.gap * 0.75
                        bottomPadding: root.gap + (more.visible ? more.height + root.gap : 0)
                        textFormat: TextEdit.RichText
                        wrapMode: TextEdit.Wrap
                        // Every paragraph lies as it is read; while there is none, the cursor stands where the language begins.
                        horizontalAlignment: length === 0 ? TextEdit.AlignLeft : undefined
                        font.pixelSize: root.textSize
                        color: root.page.hasColors ? "#000000" : root.ink
                        selectionColor: root.tint
                        selectedTextColor: root.ground
                        selectByMouse: true
                        readOnly: root.page.isSending
                        KeyNavigation.priority: KeyNavigation.BeforeItem
                        KeyNavigation.tab: cancel
                        KeyNavigation.backtab: subject
                        Keys.onPressed: event => {
                            event.accepted = event.matches(StandardKey.Paste);
                            if (event.accepted && !readOnly)
                                root.page.paste(selectionStart, selectionEnd);
                        }
                        onCursorRectangleChanged: scroller.revealFocus()
                        Component.onCompleted: {
                            root.page.fill(textDocument);
                            cursorPosition = 0;
                        }
                        Accessible.name: root.page.messageText

                        Text {
                            id: more

                            x: root.gap
                            y: message.topPadding + message.contentHeight + root.gap
                            width: parent.width - 2 * root.gap
                            visible: root.page.isTooLarge
                            text: root.page.tooLargeText
                            textFormat: Text.PlainText
                            wrapMode: Text.Wrap
                            horizontalAlignment: Text.AlignLeft
                            font.pixelSize: Math.round(root.textSize * 0.85)
                            color: root.quietInk
                            Accessible.role: Accessible.StaticText
                            Accessible.name: text
                        }

                        // Would paste what the user has selected elsewhere, with its images and styles.
                        MouseArea {
                            anchors.fill: parent
                            acceptedButtons: Qt.MiddleButton
                        }
                    }
                }
            }
        }

        Rectangle {
            anchors { right: parent.right; rightMargin: 3 }
            y: scroller.y + scroller.visibleArea.yPosition * scroller.height
            width: 4
            height: Math.max(24, scroller.visibleArea.heightRatio * scroller.height)
            radius: 2
            visible: scroller.interactive
            color: root.ink
            opacity: 0.3
        }

        T.Popup {
            id: question

            property bool askedByKeys: false

            width: Math.min(parent.width - 2 * root.gap, 26 * root.textSize)
            height: Math.min(parent.height - 2 * root.gap, keep.y + keep.height + 2 * padding)
            x: Math.round((parent.width - width) / 2)
            y: Math.round((parent.height - height) / 2)
            padding: root.gap
            modal: true
            focus: true
            closePolicy: T.Popup.CloseOnEscape
            onOpened: keep.forceActiveFocus(askedByKeys ? Qt.TabFocusReason : Qt.OtherFocusReason)
            onClosed: message.forceActiveFocus()

            T.Overlay.modal: Rectangle {
                color: "#66000000"
            }

            background: Rectangle {
                radius: root.corner
                color: root.dark ? "#2c2c2e" : "#ffffff"
            }

            Flickable {
                id: answers

                function showEnd() {
                    contentY = contentHeight - height;
                }

                anchors.fill: parent
                contentHeight: keep.y + keep.height
                onHeightChanged: if (keep.activeFocus) showEnd()
                onContentHeightChanged: if (keep.activeFocus) showEnd()
                boundsBehavior: Flickable.StopAtBounds
                interactive: contentHeight > height
                clip: interactive
                LayoutMirroring.enabled: root.rightToLeft
                LayoutMirroring.childrenInherit: true
                Accessible.role: Accessible.AlertMessage
                Accessible.name: root.page.discardQuestion

                Text {
                    id: asked

                    width: question.availableWidth
                    text: root.page.discardQuestion
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                    font.pixelSize: root.textSize
                    color: root.ink
                }

                SheetButton {
                    id: discard

                    y: asked.height + 14
                    width: parent.width
                    text: root.page.discardText
                    textSize: root.textSize
                    tint: root.alert
                    pressedGround: root.pressed
                    onActiveFocusChanged: if (activeFocus) answers.contentY = Math.min(y, answers.contentHeight - answers.height)
                    onClicked: root.page.discard()
                }

                SheetButton {
                    id: keep

                    y: discard.y + discard.height + 4
                    width: parent.width
                    text: root.page.keepText
                    textSize: root.textSize
                    strong: true
                    tint: root.page.tint.legibleOn(root.dark ? "#2c2c2e" : "#ffffff", root.dark)
                    pressedGround: root.pressed
                    Accessible.description: root.page.discardQuestion
                    onActiveFocusChanged: if (activeFocus) answers.showEnd()
                    onClicked: question.close()
                }
            }
        }
    }

    // A label and one value, beside it or, where there is no room, below it.
    component Line: Item {
        id: line

        required property Sheet sheet
        required property string label
        default property alias value: place.data

        readonly property bool stacked: width < 18 * sheet.textSize
        // Above and below the value.
        readonly property real room: Math.max(8, (44 - sheet.textSize * 1.35) / 2)

        width: parent ? parent.width : 0
        height: place.y + place.height + 1

        Text {
            id: caption

            anchors { left: parent.left; leftMargin: line.sheet.gap }
            y: line.room
            text: line.label
            textFormat: Text.PlainText
            font.pixelSize: line.sheet.textSize
            color: line.sheet.quietInk
        }

        Item {
            id: place

            anchors {
                left: line.stacked ? parent.left : caption.right
                leftMargin: line.stacked ? line.sheet.gap : 8
                right: parent.right
                rightMargin: line.sheet.gap
            }
            y: line.stacked ? caption.y + caption.height - line.room / 2 : 0
            height: childrenRect.y + childrenRect.height + (childrenRect.y > 0 ? line.room : 0)
        }

        Rectangle {
            anchors { left: parent.left; leftMargin: line.sheet.gap; right: parent.right; bottom: parent.bottom }
            height: 1
            color: line.sheet.line
        }
    }
}
