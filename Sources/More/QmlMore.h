#pragma once

#include "TQFoundation/TQMore.h"

#include <QtCore/qobject.h>
#include <QtCore/qvariant.h>
#include <QtQml/qqmlregistration.h>

namespace TQFoundation {

/// The QML singleton `TQMore`: titles and links of a More screen's rows, in the user's language, and what opens them.
/// All properties are constant. GUI thread.
///
/// A filing `icp` is a string, or absent if undefined or null. A tint is a `tqColor`, a `color` or a text form of one
/// ("red", "#f00"), or absent if undefined or null. Any other value throws a TypeError that names the parameter.
class QmlMore : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TQMore)
    QML_SINGLETON
    /// `string`: the title of the privacy policy row. Example: "Privacy Policy".
    Q_PROPERTY(QString privacyText READ privacyText CONSTANT FINAL)
    /// `string`: the page of the privacy policy. Example: `TQMore.openUrl(TQMore.privacyUrl)`.
    Q_PROPERTY(QString privacyUrl READ privacyUrl CONSTANT FINAL)
    /// `string`: the title of the row that calls sendFeedbackEmail(). Example: "Contact".
    Q_PROPERTY(QString feedbackText READ feedbackText CONSTANT FINAL)
    /// `string`: the contact page, for users who cannot send mail. Example: "https://tqstudio.example/contact-en".
    Q_PROPERTY(QString feedbackUrl READ feedbackUrl CONSTANT FINAL)
    /// `string`: the title of the row that opens `app.reviewLink`. Example: "Rate on the App Store".
    Q_PROPERTY(QString reviewText READ reviewText CONSTANT FINAL)
    /// `string`: the title of the social page row. Example: "Follow me on Social Media Platforms".
    Q_PROPERTY(QString threadsText READ threadsText CONSTANT FINAL)
    /// `string`: the page that lists the developer's social pages. Example: `TQMore.openUrl(TQMore.threadsUrl)`.
    Q_PROPERTY(QString threadsUrl READ threadsUrl CONSTANT FINAL)
    /// `string`: the title of the website row. Example: "Browse My Personal Website".
    Q_PROPERTY(QString blogText READ blogText CONSTANT FINAL)
    /// `string`: the developer's website. Example: "https://tqstudio.example/en".
    Q_PROPERTY(QString blogUrl READ blogUrl CONSTANT FINAL)
    /// `string`: the title of the row that leads to the developer's other apps. Example: "More Apps I Developed".
    Q_PROPERTY(QString moreAppText READ moreAppText CONSTANT FINAL)
    /// `string`: the store page that lists all the developer's apps. Example: `TQMore.openUrl(TQMore.moreAppUrl)`.
    Q_PROPERTY(QString moreAppUrl READ moreAppUrl CONSTANT FINAL)
    /// `string`: the host's version and build number. Example: "Version 2.3.1(57)".
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

    /// The title of the first region row: the filing in mainland China, else blogText. `TQMore.icpOrBlogText(app.icp)`.
    Q_INVOKABLE QString icpOrBlogText(const QVariant &icp) const;
    /// The link of the first region row: the filing site, else blogUrl. `TQMore.icpOrBlogUrl(app.icp)`.
    Q_INVOKABLE QString icpOrBlogUrl(const QVariant &icp) const;
    /// The title of the second region row: blogText below a filing, else threadsText.
    /// `TQMore.blogOrSocialText(app.icp)`.
    Q_INVOKABLE QString blogOrSocialText(const QVariant &icp) const;
    /// The link of the second region row: blogUrl below a filing, else threadsUrl. `TQMore.blogOrSocialUrl(app.icp)`.
    Q_INVOKABLE QString blogOrSocialUrl(const QVariant &icp) const;

    /// Opens a link in the system's handler, or the filing site in the in-app browser: see TQMore::openUrl().
    /// `TQMore.openUrl(TQMore.blogUrl, app.tintColor)`.
    Q_INVOKABLE void openUrl(const QString &urlString, const QVariant &tintColor = {}) const;

    /// Presents a mail composer addressed to the developer: see TQMore::sendFeedbackEmail().
    /// `TQMore.sendFeedbackEmail(app.tintColor, "<p>Hello</p>")`.
    Q_INVOKABLE void sendFeedbackEmail(const QVariant &tintColor, const QString &message) const;

private:
    using Row = QString(const std::optional<QString> &icp);
    QString rowFor(const QVariant &icp, Row *row, const char *name) const;
    void throwError(const QByteArray &message) const;
};

} // namespace TQFoundation
