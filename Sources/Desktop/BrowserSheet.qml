import QtQuick
import QtWebEngine
import TQFoundation

// A web page under a bar that says whose it is. Nothing of the page reaches beyond its own rectangle.
Sheet {
    id: root

    required property BrowserPage page

    readonly property color tint: page.tint.legibleOn(ground, dark)
    // Of the page there is something to see.
    readonly property bool hasContent: web.contentsSize.height > 0

    // The page that is shown or should be.
    property url aim: page.url

    widest: 1000
    tallest: 900

    function load() {
        // What has never come cannot be reloaded.
        if (page.problem === BrowserPage.NoProblem && hasContent)
            web.reload();
        else
            web.url = aim;
        web.forceActiveFocus();
    }

    onOpened: load()

    Connections {
        target: root.page

        function onProblemChanged() {
            if (root.page.problem === BrowserPage.Slow)
                web.stop();
        }
    }

    // What a server sends along with an error is for the user to read, unless it is nothing. The web view tells of the
    // error before it has the text.
    readonly property Timer emptiness: Timer {
        interval: 700
        onTriggered: {
            root.page.endLoading();
            web.runJavaScript("document.documentElement.innerText.trim() === ''", isEmpty => {
                if (isEmpty && !web.loading)
                    root.page.fail(BrowserPage.Unreachable);
            });
        }
    }

    // A download that nobody accepts is not made.
    readonly property WebEngineProfile forgetful: WebEngineProfile {
        offTheRecord: true
    }

    FocusScope {
        anchors.fill: parent
        focus: true
        LayoutMirroring.enabled: root.rightToLeft
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.Dialog
        Accessible.name: root.page.siteOf(web.url)

        // A page would keep the keys to itself.
        Shortcut {
            sequences: ["Escape", "Back"]
            onActivated: root.page.closed()
        }

        Item {
            id: bar

            width: parent.width
            height: Math.max(56, site.height + 16)

            SheetButton {
                id: close

                anchors { left: parent.left; leftMargin: 6; verticalCenter: parent.verticalCenter }
                horizontalPadding: 0
                verticalPadding: 0
                text: root.page.closeText
                tint: root.tint
                pressedGround: root.pressed
                onClicked: root.page.closed()

                contentItem: Icon {
                    Stroke {
                        color: root.tint
                        anchors.centerIn: parent
                        length: 20
                        turn: 45
                    }

                    Stroke {
                        color: root.tint
                        anchors.centerIn: parent
                        length: 20
                        turn: -45
                    }
                }
            }

            SheetButton {
                id: back

                anchors { left: close.right; verticalCenter: parent.verticalCenter }
                horizontalPadding: 0
                verticalPadding: 0
                text: root.page.backText
                tint: root.tint
                pressedGround: root.pressed
                enabled: web.canGoBack
                onClicked: web.goBack()

                contentItem: Icon {
                    opacity: back.enabled ? 1 : 0.3
                    rotation: root.rightToLeft ? 180 : 0

                    Stroke {
                        color: root.tint
                        x: 15
                        y: 21
                        length: 14
                        pivot: 1
                        turn: 45
                    }

                    Stroke {
                        color: root.tint
                        x: 15
                        y: 21
                        length: 14
                        pivot: 1
                        turn: -45
                    }
                }
            }

            Text {
                id: site

                anchors { left: parent.left; right: parent.right; margins: 2 * close.width + 6; verticalCenter: parent.verticalCenter }
                text: root.page.siteOf(web.url)
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Math.round(0.7 * root.textSize)
                // The end of a host's name says whose it is.
                elide: Text.ElideLeft
                font { pixelSize: root.textSize; weight: Font.DemiBold }
                color: root.ink
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            SheetButton {
                id: reload

                anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
                horizontalPadding: 0
                verticalPadding: 0
                text: root.page.reloadText
                tint: root.tint
                pressedGround: root.pressed
                onClicked: root.load()

                // Three quarters of a ring with a head.
                contentItem: Icon {
                    Rectangle {
                        x: 13
                        y: 13
                        width: 18
                        height: 18
                        radius: 9
                        color: "transparent"
                        border { width: 2; color: root.tint }
                    }

                    Rectangle {
                        x: 22
                        y: 11
                        width: 11
                        height: 11
                        color: reload.down ? root.pressed : root.ground
                    }

                    Stroke {
                        color: root.tint
                        x: 19
                        y: 13
                        length: 7
                        pivot: 6
                        turn: 45
                    }

                    Stroke {
                        color: root.tint
                        x: 19
                        y: 13
                        length: 7
                        pivot: 6
                        turn: -45
                    }
                }
            }

            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: 1
                color: root.line
            }

            Rectangle {
                anchors { left: parent.left; bottom: parent.bottom }
                width: parent.width * Math.max(0.05, web.loadProgress / 100)
                height: 3
                visible: web.loading
                color: root.tint
                Accessible.role: Accessible.ProgressBar
                Accessible.name: web.loadProgress + "%"
            }
        }

        Item {
            id: place

            anchors { top: bar.bottom; left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: root.narrow ? 0 : root.corner }

            WebEngineView {
                id: web

                anchors.fill: parent
                visible: !notice.covers
                Accessible.ignored: notice.covers
                profile: root.forgetful
                // As a page that says nothing of its colours expects it.
                backgroundColor: "#ffffff"
                settings {
                    errorPageEnabled: false
                    fullScreenSupportEnabled: false
                    javascriptCanOpenWindows: false
                    localContentCanAccessFileUrls: false
                    navigateOnDropEnabled: false
                    pluginsEnabled: false
                    unknownUrlSchemePolicy: WebEngineSettings.DisallowUnknownUrlSchemes
                }

                onLoadingChanged: info => {
                    root.emptiness.stop();
                    if (info.status === WebEngineView.LoadStartedStatus) {
                        root.aim = info.url;
                        root.page.beginLoading();
                    } else if (info.status === WebEngineView.LoadFailedStatus && info.errorDomain === WebEngineLoadingInfo.HttpStatusCodeDomain)
                        root.emptiness.restart();
                    else if (info.status === WebEngineView.LoadFailedStatus)
                        root.page.fail(info.errorDomain === WebEngineView.CertificateErrorDomain ? BrowserPage.Insecure : BrowserPage.Unreachable);
                    else if (info.status === WebEngineView.LoadStoppedStatus && !root.hasContent)
                        root.page.fail(BrowserPage.Unreachable);
                    else
                        root.page.endLoading();
                }
                onRenderProcessTerminated: root.page.fail(BrowserPage.Crashed)
                onNavigationRequested: request => {
                    if (root.page.mayOpen(request.url, request.isMainFrame))
                        request.accept();
                    else
                        request.reject();
                }
                onNewWindowRequested: request => {
                    if (request.userInitiated && root.page.mayOpen(request.requestedUrl, true))
                        url = request.requestedUrl;
                }
                onCertificateError: error => error.rejectCertificate()

                // What a page asks of the user or of the device, it does not get.
                onAuthenticationDialogRequested: request => {
                    request.accepted = true;
                    request.dialogReject();
                }
                onColorDialogRequested: request => {
                    request.accepted = true;
                    request.dialogReject();
                }
                onContextMenuRequested: request => request.accepted = true
                onFeaturePermissionRequested: (securityOrigin, feature) => grantFeaturePermission(securityOrigin, feature, false)
                onFileDialogRequested: request => {
                    request.accepted = true;
                    request.dialogReject();
                }
                onFileSystemAccessRequested: request => request.reject()
                onJavaScriptDialogRequested: request => {
                    request.accepted = true;
                    request.dialogReject();
                }
                onQuotaRequested: request => request.reject()
                onRegisterProtocolHandlerRequested: request => request.reject()
                onSelectClientCertificate: selection => selection.selectNone()
                onTooltipRequested: request => request.accepted = true
                onTouchSelectionMenuRequested: request => request.accepted = true
                onJavaScriptConsoleMessage: {}
            }

            // Why there is no page, or why there is no more of it.
            Rectangle {
                id: notice

                readonly property bool covers: root.page.problem !== BrowserPage.NoProblem && !(root.page.problem === BrowserPage.Slow && root.hasContent)

                anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
                height: covers ? parent.height : Math.min(parent.height, words.height + 2 * root.gap)
                visible: root.page.problem !== BrowserPage.NoProblem
                color: covers || !root.dark ? root.ground : "#2c2c2e"
                // The keys that the page had are for what stands in its place.
                readonly property bool replaces: visible && covers
                onReplacesChanged: {
                    if (replaces && !close.activeFocus && !reload.activeFocus)
                        again.forceActiveFocus();
                }
                Accessible.role: Accessible.AlertMessage
                Accessible.name: root.page.problemText

                Rectangle {
                    width: parent.width
                    height: 1
                    visible: !notice.covers
                    color: root.line
                }

                Flickable {
                    id: scroller

                    function showEnd() {
                        contentY = contentHeight - height;
                    }

                    anchors.fill: parent
                    contentHeight: Math.max(height, words.height + 2 * root.gap)
                    onHeightChanged: if (again.activeFocus) showEnd()
                    onContentHeightChanged: if (again.activeFocus) showEnd()
                    boundsBehavior: Flickable.StopAtBounds
                    interactive: contentHeight > height
                    clip: interactive

                    Column {
                        id: words

                        anchors.centerIn: parent
                        width: Math.min(parent.width - 2 * root.gap, 26 * root.textSize)
                        spacing: notice.covers ? 12 : 0

                        Text {
                            width: parent.width
                            text: root.page.problemText
                            textFormat: Text.PlainText
                            wrapMode: Text.Wrap
                            horizontalAlignment: Text.AlignHCenter
                            font.pixelSize: root.textSize
                            color: root.ink
                        }

                        SheetButton {
                            id: again

                            anchors.horizontalCenter: parent.horizontalCenter
                            width: Math.min(implicitWidth, parent.width)
                            text: root.page.againText
                            textSize: root.textSize
                            strong: true
                            tint: root.page.tint.legibleOn(notice.color, root.dark)
                            pressedGround: root.pressed
                            Accessible.description: root.page.problemText
                            onActiveFocusChanged: if (activeFocus) scroller.showEnd()
                            onClicked: root.load()
                        }
                    }
                }
            }
        }
    }

    component Icon: Item {
        implicitWidth: 44
        implicitHeight: 44
    }

    component Stroke: Rectangle {
        id: stroke

        property real length
        property real turn
        property real pivot: length / 2 // what it is turned about: the middle, or the centre of a round end

        width: length
        height: 2
        radius: 1
        antialiasing: true
        transform: Rotation { origin { x: stroke.pivot; y: 1 } angle: stroke.turn }
    }
}
