#pragma once

#include "TQFoundation/Color.h"

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace TQFoundation {

/// The QML singleton `TQAppearance`: whether the app is light or dark, as guide, sheets and background take it. GUI
/// thread.
class QmlAppearance : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TQAppearance)
    QML_SINGLETON
    /// `bool`: whether the platform's appearance is dark; if the platform names none, whether the application's palette
    /// has light text on a dark window. `Rectangle { color: TQApp.hazel.tintColor.resolved(TQAppearance.isDark) }`
    /// follows every change.
    Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged FINAL)

public:
    explicit QmlAppearance(QObject *parent = nullptr);

    /// The appearance at this moment.
    static Appearance current();

    bool isDark() const { return m_isDark; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void isDarkChanged();

private:
    void update();

    bool m_isDark = current() == Appearance::dark;
};

} // namespace TQFoundation
