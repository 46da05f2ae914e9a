import QtQuick
import QtWebEngine
import TQFoundation

// The web view of the in-app browser. Reports loading and problems to its BrowserPage, and denies whatever a page
// requests of the user or the device.
WebEngineView {
    id: root

    required property BrowserPage page

    readonly property bool hasContent: contentsSize.height > 0
    // The page that began to load last.
    property url requestedUrl: page.url

    // Owns a profile that keeps nothing on disk and refuses downloads, because nothing accepts them: from Qt 6.9 on its
    // prototype, because any other way logs a warning; before, the profile itself.
    readonly property QtObject profileOwner: {
        try {
            return Qt.createQmlObject("import QtWebEngine; WebEngineProfilePrototype {}", root);
        } catch (olderQt) {
            return Qt.createQmlObject("import QtWebEngine; WebEngineProfile { offTheRecord: true }", root);
        }
    }

    readonly property bool hasPrototype: profileOwner.instance !== undefined // qmllint disable

    // Reloads the shown page, or loads the requested one after a problem.
    function load() {
        if (page.problem === BrowserPage.NoProblem && hasContent)
            reload();
        else if (page.problem === BrowserPage.Crashed || !hasContent || page.siteOf(url) === page.siteOf(requestedUrl))
            url = requestedUrl;
        else
            follow(requestedUrl);
    }

    // Navigates as a link in the shown page would. `url` remains the address of the shown page until another one
    // arrives; assigning to `url` would change it at once, so that the shown page could pose as another site.
    function follow(target: url) {
        runJavaScript(page.linkScript(target), WebEngineScript.ApplicationWorld); // qmllint disable unqualified
    }

    profile: hasPrototype ? profileOwner.instance() : profileOwner // qmllint disable
    // A prototype cannot outlive the view: Qt WebEngine destroys its profile when the app ends.
    Component.onDestruction: {
        if (!hasPrototype)
            page.destroyLater(profileOwner);
    }
    // The default of web pages that set no colours of their own.
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
        errorPageCheck.stop();
        if (info.status === WebEngineView.LoadStartedStatus) {
            requestedUrl = info.url;
            page.beginLoading();
        } else if (info.status === WebEngineView.LoadFailedStatus && info.errorDomain === WebEngineLoadingInfo.HttpStatusCodeDomain)
            errorPageCheck.restart();
        else if (info.status === WebEngineView.LoadFailedStatus)
            page.fail(info.errorDomain === WebEngineView.CertificateErrorDomain ? BrowserPage.Insecure : BrowserPage.Unreachable);
        else if (info.status === WebEngineView.LoadStoppedStatus && !hasContent)
            page.fail(BrowserPage.Unreachable);
        else
            page.endLoading();
    }
    onRenderProcessTerminated: page.fail(BrowserPage.Crashed)
    onNavigationRequested: request => {
        if (page.canOpen(request.url, request.isMainFrame))
            request.accept();
        else
            request.reject();
    }
    onNewWindowRequested: request => {
        if (request.userInitiated && page.canOpen(request.requestedUrl, true))
            follow(request.requestedUrl);
    }

    // A request that is answered here is not shown to the user.
    onAuthenticationDialogRequested: request => request.dialogReject()
    onCertificateError: error => error.rejectCertificate()
    onColorDialogRequested: request => request.dialogReject()
    onContextMenuRequested: request => request.accepted = true
    onFileDialogRequested: request => request.dialogReject()
    onFileSystemAccessRequested: request => request.reject()
    onJavaScriptConsoleMessage: {}
    onJavaScriptDialogRequested: request => {
        // The user may always leave a page.
        if (request.type === JavaScriptDialogRequest.DialogTypeBeforeUnload)
            request.dialogAccept();
        else
            request.dialogReject();
    }
    onRegisterProtocolHandlerRequested: request => request.reject()
    onSelectClientCertificate: selection => selection.selectNone()
    onTooltipRequested: request => request.accepted = true
    onTouchSelectionMenuRequested: request => request.accepted = true

    // Signals that only some versions of Qt emit: permissionRequested replaces featurePermissionRequested from 6.8 on.
    Connections {
        target: root
        ignoreUnknownSignals: true

        function onFeaturePermissionRequested(securityOrigin, feature) {
            root.grantFeaturePermission(securityOrigin, feature, false);
        }
        function onPermissionRequested(permission) {
            permission.deny();
        }
        function onQuotaRequested(request) {
            request.reject();
        }
    }

    Connections {
        target: root.page

        function onProblemChanged() {
            if (root.page.problem === BrowserPage.TimedOut)
                root.stop();
        }
    }

    // Replaces the server's error page if it is empty. The web view reports the error before it has received the text.
    Timer {
        id: errorPageCheck

        interval: 700
        onTriggered: {
            root.page.endLoading();
            root.runJavaScript("document.documentElement.innerText.trim() === ''", isEmpty => {
                if (isEmpty && !root.loading)
                    root.page.fail(BrowserPage.Unreachable);
            });
        }
    }
}
