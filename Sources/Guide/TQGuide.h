#pragma once

#include "TQFoundation/TQGuideView.h"

#include <QtCore/qobject.h>
#include <QtCore/qvariant.h>
#include <QtQml/qqmlregistration.h>

namespace TQFoundation {

/// The guide as a host written in QML asks, builds and shows it: `TQGuide { tintColor: …; descriptions: … }`, and,
/// where shouldShowGuide() is true, showGuide().
class TQGuide : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant tintColor READ tintColor WRITE setTintColor NOTIFY tintColorChanged REQUIRED FINAL)
    Q_PROPERTY(
        QStringList descriptions READ descriptions WRITE setDescriptions NOTIFY descriptionsChanged REQUIRED FINAL)

public:
    using QObject::QObject;

    /// What the overlay is painted in. Read when it is shown.
    QVariant tintColor() const { return QVariant::fromValue(m_tintColor); }
    /// Takes a `tqColor`, a `color` or a text form of one; anything else is an error and changes nothing.
    void setTintColor(const QVariant &value);

    /// The paragraphs in the order shown, plain text. Read when the overlay is shown; without any the process stops.
    QStringList descriptions() const { return m_descriptions; }
    void setDescriptions(const QStringList &descriptions);

    /// TQGuideView::shouldShowGuide().
    Q_INVOKABLE bool shouldShowGuide() const { return TQGuideView::shouldShowGuide(); }

    /// Makes an overlay and shows it; TQGuideView::showGuide().
    Q_INVOKABLE void showGuide(QQuickWindow *inWindow = nullptr, QQuickItem *orInView = nullptr);

Q_SIGNALS:
    void tintColorChanged();
    void descriptionsChanged();

    /// The user has tapped past the last paragraph; the overlay is about to fade out.
    void completed();

private:
    Color m_tintColor;
    QStringList m_descriptions;
};

} // namespace TQFoundation
