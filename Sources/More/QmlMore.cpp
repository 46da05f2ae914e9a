#include "QmlMore.h"

#include "QmlColor.h"

#include <QtQml/qjsengine.h>

namespace TQFoundation {
namespace {

bool isAbsent(const QVariant &value)
{
    return !value.isValid() || value.typeId() == QMetaType::Nullptr;
}

} // namespace

QString QmlMore::icpOrBlogText(const QVariant &icp) const
{
    return rowFor(icp, TQMore::icpOrBlogText, "icpOrBlogText");
}

QString QmlMore::icpOrBlogUrl(const QVariant &icp) const
{
    return rowFor(icp, TQMore::icpOrBlogUrl, "icpOrBlogUrl");
}

QString QmlMore::blogOrSocialText(const QVariant &icp) const
{
    return rowFor(icp, TQMore::blogOrSocialText, "blogOrSocialText");
}

QString QmlMore::blogOrSocialUrl(const QVariant &icp) const
{
    return rowFor(icp, TQMore::blogOrSocialUrl, "blogOrSocialUrl");
}

void QmlMore::openUrl(const QString &urlString, const QVariant &tintColor) const
{
    const auto tint = colorFromQml(tintColor);
    if (tint || isAbsent(tintColor))
        TQMore::openUrl(urlString, tint);
    else
        throwError("openUrl: expected tintColor as a tqColor, a color, undefined or null");
}

void QmlMore::sendFeedbackEmail(const QVariant &tintColor, const QString &message) const
{
    const auto tint = colorFromQml(tintColor);
    if (tint || isAbsent(tintColor))
        TQMore::sendFeedbackEmail(tint, message);
    else
        throwError("sendFeedbackEmail: expected tintColor as a tqColor, a color, undefined or null");
}

QString QmlMore::rowFor(const QVariant &icp, Row *row, const char *name) const
{
    if (isAbsent(icp))
        return row(std::nullopt);
    if (icp.typeId() == QMetaType::QString)
        return row(icp.toString());
    throwError(QByteArray(name) + ": expected icp as a string, undefined or null");
    return {};
}

void QmlMore::throwError(const QByteArray &message) const
{
    if (QJSEngine *const engine = qjsEngine(this))
        engine->throwError(QJSValue::TypeError, QString::fromLatin1(message));
}

} // namespace TQFoundation
