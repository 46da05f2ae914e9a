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

/// The QML singleton `TQApp`: the cases of the catalogue and what is known of the running host.
///
/// The cases are properties, because QML reads lower-case keys of an enumeration as undefined.
class QmlApp : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TQApp)
    QML_SINGLETON
    TQFOUNDATION_APPS(TQFOUNDATION_PROPERTY)
    Q_PROPERTY(QList<TQFoundation::TQApp> allCases READ allCases CONSTANT FINAL)
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    Q_PROPERTY(QString version READ version CONSTANT FINAL)
    Q_PROPERTY(QString buildNumber READ buildNumber CONSTANT FINAL)
    Q_PROPERTY(QString developerPageText READ developerPageText CONSTANT FINAL)

public:
    using QObject::QObject;

    TQFOUNDATION_APPS(TQFOUNDATION_GETTER)
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

#undef TQFOUNDATION_PROPERTY
#undef TQFOUNDATION_GETTER
