#pragma once

#include "TQFoundation/TQApp.h"

#include <QtCore/qlist.h>
#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

#define TQFOUNDATION_PROPERTY(name) Q_PROPERTY(TQFoundation::TQApp name READ name CONSTANT FINAL)
#define TQFOUNDATION_GETTER(name)                                                                                      \
    static TQApp name()                                                                                                \
    {                                                                                                                  \
        return TQApp::name;                                                                                            \
    }

namespace TQFoundation {

/// The QML singleton `TQApp`: the apps of the catalogue and the identity of the running host. All properties are
/// constant. GUI thread.
///
/// Each app is a property of type `tqApp`: `TQApp.larch`, `TQApp.juniper`, `TQApp.hazel`, `TQApp.ginkgo`, `TQApp.fir`,
/// `TQApp.elm`, `TQApp.dogwood`, `TQApp.cedar`, `TQApp.birch`, `TQApp.alder`. They are not enumerators, because QML
/// reads lower-case keys of an enumeration as undefined.
class QmlApp : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TQApp)
    QML_SINGLETON
    TQFOUNDATION_APPS(TQFOUNDATION_PROPERTY)
    /// `list<tqApp>`: the ten apps in catalogue order. `Repeater { model: TQApp.allCases }`.
    Q_PROPERTY(QList<TQFoundation::TQApp> allCases READ allCases CONSTANT FINAL)
    /// `string`: the host's display name; empty if unknown. Example: "Hazel Grid".
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    /// `string`: the host's marketing version; empty if unknown. Example: "2.3.1".
    Q_PROPERTY(QString version READ version CONSTANT FINAL)
    /// `string`: the host's build number; empty if unknown. Example: "57".
    Q_PROPERTY(QString buildNumber READ buildNumber CONSTANT FINAL)
    /// `string`: the title of a row that calls openDeveloperPage(), in the user's language; equal to
    /// `TQMore.moreAppText`. Example: "More Apps I Developed".
    Q_PROPERTY(QString developerPageText READ developerPageText CONSTANT FINAL)

public:
    using QObject::QObject;

    TQFOUNDATION_APPS(TQFOUNDATION_GETTER)
    static QList<TQApp> allCases();
    static QString name() { return TQApp::name(); }
    static QString version() { return TQApp::version(); }
    static QString buildNumber() { return TQApp::buildNumber(); }

    static QString developerPageText();

    /// Opens the store page that lists all the developer's apps in the system's handler, like a tap on a `TQAppView`.
    /// `onClicked: TQApp.openDeveloperPage()`.
    Q_INVOKABLE void openDeveloperPage() const;
};

} // namespace TQFoundation

#undef TQFOUNDATION_PROPERTY
#undef TQFOUNDATION_GETTER
