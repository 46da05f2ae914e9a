#pragma once

#include "TQApp.h"

#include <QtCore/qlist.h>
#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace TQFoundation {

/// The QML singleton `TQApp`: the cases of the catalogue and what is known of the running host.
///
/// The cases are properties, because QML reads lower-case keys of an enumeration as undefined.
class QmlApp : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TQApp)
    QML_SINGLETON
    Q_PROPERTY(TQFoundation::TQApp larch READ larch CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::TQApp juniper READ juniper CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::TQApp hazel READ hazel CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::TQApp ginkgo READ ginkgo CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::TQApp fir READ fir CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::TQApp elm READ elm CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::TQApp dogwood READ dogwood CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::TQApp cedar READ cedar CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::TQApp birch READ birch CONSTANT FINAL)
    Q_PROPERTY(TQFoundation::TQApp alder READ alder CONSTANT FINAL)
    Q_PROPERTY(QList<TQFoundation::TQApp> allCases READ allCases CONSTANT FINAL)
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    Q_PROPERTY(QString version READ version CONSTANT FINAL)
    Q_PROPERTY(QString buildNumber READ buildNumber CONSTANT FINAL)
    Q_PROPERTY(QString developerPageText READ developerPageText CONSTANT FINAL)

public:
    using QObject::QObject;

    static TQApp larch() { return TQApp::larch; }
    static TQApp juniper() { return TQApp::juniper; }
    static TQApp hazel() { return TQApp::hazel; }
    static TQApp ginkgo() { return TQApp::ginkgo; }
    static TQApp fir() { return TQApp::fir; }
    static TQApp elm() { return TQApp::elm; }
    static TQApp dogwood() { return TQApp::dogwood; }
    static TQApp cedar() { return TQApp::cedar; }
    static TQApp birch() { return TQApp::birch; }
    static TQApp alder() { return TQApp::alder; }
    static QList<TQApp> allCases();
    static QString name() { return TQApp::name(); }
    static QString version() { return TQApp::version(); }
    static QString buildNumber() { return TQApp::buildNumber(); }

    /// What leads to the developer's store page, in the user's language.
    static QString developerPageText();

    /// Hands the store page that lists all the developer's apps to the system, as a tap on a `TQAppView` does. Does
    /// nothing where its address is no URL.
    Q_INVOKABLE void openDeveloperPage() const;
};

} // namespace TQFoundation
