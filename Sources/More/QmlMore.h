#pragma once

#include "TQFoundation/TQMore.h"

#include <QtCore/qobject.h>
#include <QtCore/qvariant.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqmlregistration.h>

namespace TQFoundation {

/// The QML singleton `TQMore`. A filing text that is undefined or null is absent, any other value counts as its text. A
/// tint is a `tqColor` or a `color`; any other value is none.
class QmlMore : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TQMore)
    QML_SINGLETON
    Q_PROPERTY(QString privacyText READ privacyText CONSTANT FINAL)
    Q_PROPERTY(QString privacyUrl READ privacyUrl CONSTANT FINAL)
    Q_PROPERTY(QString feedbackText READ feedbackText CONSTANT FINAL)
    Q_PROPERTY(QString feedbackUrl READ feedbackUrl CONSTANT FINAL)
    Q_PROPERTY(QString reviewText READ reviewText CONSTANT FINAL)
    Q_PROPERTY(QString threadsText READ threadsText CONSTANT FINAL)
    Q_PROPERTY(QString threadsUrl READ threadsUrl CONSTANT FINAL)
    Q_PROPERTY(QString blogText READ blogText CONSTANT FINAL)
    Q_PROPERTY(QString blogUrl READ blogUrl CONSTANT FINAL)
    Q_PROPERTY(QString moreAppText READ moreAppText CONSTANT FINAL)
    Q_PROPERTY(QString moreAppUrl READ moreAppUrl CONSTANT FINAL)
    Q_PROPERTY(QString versionText READ versionText CONSTANT FINAL)

public:
    using QObject::QObject;

    static QString privacyText() { return TQMore::privacyText(); }
    static QString privacyUrl() { return TQMore::privacyUrl(); }
    static QString feedbackText() { return TQMore::feedbackText(); }
    static QString feedbackUrl() { return TQMore::feedbackUrl(); }
    static QString reviewText() { return TQMore::reviewText(); }
    static QString threadsText() { return TQMore::threadsText(); }
    static QString threadsUrl() { return TQMore::threadsUrl(); }
    static QString blogText() { return TQMore::blogText(); }
    static QString blogUrl() { return TQMore::blogUrl(); }
    static QString moreAppText() { return TQMore::moreAppText(); }
    static QString moreAppUrl() { return TQMore::moreAppUrl(); }
    static QString versionText() { return TQMore::versionText(); }

    Q_INVOKABLE QString icpOrBlogText(const QVariant &icp) const { return TQMore::icpOrBlogText(textOf(icp)); }
    Q_INVOKABLE QString icpOrBlogUrl(const QVariant &icp) const { return TQMore::icpOrBlogUrl(textOf(icp)); }
    Q_INVOKABLE QString blogOrSocialText(const QVariant &icp) const { return TQMore::blogOrSocialText(textOf(icp)); }
    Q_INVOKABLE QString blogOrSocialUrl(const QVariant &icp) const { return TQMore::blogOrSocialUrl(textOf(icp)); }

    Q_INVOKABLE void openUrl(const QString &urlString, const QVariant &tintColor = {}) const
    {
        TQMore::openUrl(urlString, colorOf(tintColor));
    }
    Q_INVOKABLE void sendFeedbackEmail(const QVariant &tintColor, const QString &message) const
    {
        TQMore::sendFeedbackEmail(colorOf(tintColor), message);
    }

private:
    static std::optional<Color> colorOf(const QVariant &tint)
    {
        if (tint.metaType() == QMetaType::fromType<Color>())
            return tint.value<Color>();
        if (tint.typeId() != QMetaType::QColor)
            return std::nullopt;
        const auto color = tint.value<QColor>();
        return Color({color.redF(), color.greenF(), color.blueF(), color.alphaF()});
    }

    static std::optional<QString> textOf(const QVariant &icp)
    {
        if (!icp.isValid() || icp.typeId() == QMetaType::Nullptr)
            return std::nullopt;
        return icp.toString();
    }
};

} // namespace TQFoundation
