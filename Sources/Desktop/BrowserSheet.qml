import QtQuick
import TQFoundation

// The in-app browser: a web page below a bar with the name of its site. The page cannot draw outside its own rectangle.
Sheet {
    id: root

    required property BrowserPage page

    readonly property color tint: page.tint.legibleOn(ground, dark)

    function load() {
        view.load();
        view.forceActiveFocus();
    }

    widest: 1000
    tallest: 900

    onOpened: load()

    FocusScope {
        anchors.fill: parent
        focus: true
        LayoutMirroring.enabled: root.rightToLeft
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.Dialog
        Accessible.name: bar.site

        // Shortcuts, because the web view consumes key events.
        Shortcut {
            sequences: ["Escape", "Back"]
            onActivated: root.page.closed()
        }

        BrowserBar {
            id: bar

            width: parent.width
            sheet: root
            tint: root.tint
            web: view
            site: root.page.siteOf(notice.coversPage && root.page.problem !== BrowserPage.Crashed ? view.requestedUrl : view.url)
            onCloseClicked: root.page.closed()
            onReloadClicked: root.load()
        }

        Item {
            anchors { top: bar.bottom; left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: root.narrow ? 0 : root.corner }

            BrowserView {
                id: view

                anchors.fill: parent
                visible: !notice.coversPage
                Accessible.ignored: notice.coversPage
                page: root.page
            }

            BrowserNotice {
                id: notice

                anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
                sheet: root
                page: root.page
                hasContent: view.hasContent
                onReplacesPageChanged: {
                    if (replacesPage && !bar.closeButton.activeFocus && !bar.reloadButton.activeFocus)
                        retryButton.forceActiveFocus();
                }
                onRetryClicked: root.load()
            }
        }
    }
}
