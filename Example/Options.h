#pragma once

#include <TQFoundation/TQApp.h>

#include <QtCore/qsize.h>
#include <QtCore/qstring.h>
#include <QtCore/qstringlist.h>

#include <optional>

/// The command line of the example.
struct Options
{
    /// Parses \a arguments, of which the first is the program. Ends the process with code 2 and a message on stderr if
    /// they are invalid, and with code 0 after printing the help. Any thread; needs no application object.
    static Options parse(const QStringList &arguments);

    /// Name of the app in the catalogue, such as "hazel".
    QString caseName() const;
    /// Whether the example writes pictures and ends, instead of showing a window.
    bool isPictureRun() const { return !shots.isEmpty(); }
    /// Whether one of the library's sheets is shown at the start.
    bool hasStartSheet() const { return compose || !openBrowser.isEmpty(); }

    TQFoundation::TQApp app = TQFoundation::TQApp::hazel; ///< The app that the example is.
    std::optional<QString> storefront; ///< Three-letter country code of the store; empty if unknown.
    QString language; ///< BCP 47 tag; empty for the system's language.
    bool dark = false; ///< Dark appearance.
    QSize size{390, 844}; ///< Window size in points, each side at least 240.
    int textSize = 100; ///< Percent of the system's text size, from 50 to 400.
    bool resetGuide = false; ///< Forget that the guide was shown.
    bool backgroundOnly = false; ///< Show the animated background and nothing else.
    int frames = 0; ///< Pictures of one background cycle, up to 1000; 0 for four fixed moments.
    bool compose = false; ///< Show the mail composer at the start.
    QString openBrowser; ///< URL to show in the in-app browser at the start; empty for no browser.
    QString shots; ///< Folder for pictures; empty to show a window.
};
