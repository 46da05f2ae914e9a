#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

namespace TQFoundation {

/// Whether the app is light or dark, as guide, sheets and background take it, and a signal when that changes.
///
/// In QML the singleton `TQAppearance`. Create it after the application object. GUI thread.
class TQFOUNDATION_EXPORT AppearanceObserver : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TQAppearance)
    QML_SINGLETON
    /// `bool`: whether the platform's appearance is dark; if the platform names none, whether the application's palette
    /// has light text on a dark window. `Rectangle { color: TQApp.hazel.tintColor.resolved(TQAppearance.isDark) }`
    /// follows every change.
    Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged FINAL)

public:
    /// Starts to observe platform and palette.
    explicit AppearanceObserver(QObject *parent = nullptr);

    /// The appearance at this moment.
    static Appearance current();

    /// Whether the appearance is dark.
    bool isDark() const { return m_isDark; }

    /// Notices changes of the application's palette.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// isDark() has another value, because the platform's appearance or the application's palette has changed.
    void isDarkChanged();

private:
    void update();

    bool m_isDark = current() == Appearance::dark;
};

} // namespace TQFoundation
