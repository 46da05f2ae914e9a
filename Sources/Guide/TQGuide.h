#pragma once

#include "TQFoundation/TQGuideView.h"

#include <QtCore/qobject.h>
#include <QtCore/qvariant.h>
#include <QtQml/qqmlregistration.h>

namespace TQFoundation {

/// QML type of the guide: declare `TQGuide { tintColor: …; descriptions: … }` and call showGuide() if shouldShowGuide()
/// is true.
///
/// Each call of showGuide() makes an overlay of its own, which stays if this object is destroyed. GUI thread.
class TQGuide : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant tintColor READ tintColor WRITE setTintColor NOTIFY tintColorChanged REQUIRED FINAL)
    Q_PROPERTY(
        QStringList descriptions READ descriptions WRITE setDescriptions NOTIFY descriptionsChanged REQUIRED FINAL)

public:
    using QObject::QObject;

    /// Colour of the whole overlay, a `tqColor`. Read by showGuide().
    QVariant tintColor() const { return QVariant::fromValue(m_tintColor); }
    /// Changes the colour of overlays that are shown later. Takes a `tqColor`, a `color` or a text form of one; any
    /// other value is a QML error and changes nothing.
    void setTintColor(const QVariant &value);

    /// The paragraphs in the order shown, plain text. Read by showGuide(), which stops the process if they are empty.
    QStringList descriptions() const { return m_descriptions; }
    /// Changes the paragraphs of overlays that are shown later.
    void setDescriptions(const QStringList &descriptions);

    /// Whether the guide has not been finished in this installation: TQGuideView::shouldShowGuide().
    Q_INVOKABLE bool shouldShowGuide() const { return TQGuideView::shouldShowGuide(); }

    /// Makes an overlay and shows it in the key window. \a inWindow, and then \a orInView, are used only if the key
    /// window is missing or not one of Qt Quick.
    Q_INVOKABLE void showGuide(QQuickWindow *inWindow = nullptr, QQuickItem *orInView = nullptr);

Q_SIGNALS:
    void tintColorChanged(); ///< Emitted if setTintColor() changes the color.
    void descriptionsChanged(); ///< Emitted if setDescriptions() changes the paragraphs.

    /// Emitted once for each overlay, when the user taps past its last paragraph and before it fades out.
    void completed();

private:
    Color m_tintColor;
    QStringList m_descriptions;
};

} // namespace TQFoundation
