#include "Options.h"

#include <QtCore/qcommandlineparser.h>
#include <QtCore/qmetaobject.h>
#include <QtCore/qtextstream.h>
#include <QtCore/qurl.h>

#include <cstdlib>

using TQFoundation::TQApp;

namespace {

[[noreturn]] void refuse(const QString &message)
{
    QTextStream(stderr) << "Grove: " << message << '\n';
    std::exit(2);
}

// An option with a value; without a placeholder, a flag.
QCommandLineOption option(const char *name, const char *description, const char *placeholder = nullptr,
                          const char *fallback = nullptr)
{
    return {QLatin1String(name), QLatin1String(description), QLatin1String(placeholder), QLatin1String(fallback)};
}

void addOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        option("app", "Which app of the catalogue to be.", "case", "hazel"),
        option("storefront", "The user's store: CHN, USA, ... or none.", "code", "none"),
        option("language", "The user's language, such as zh-Hans.", "tag"),
        option("dark", "Dark appearance."),
        option("size", "The window's size in points.", "widthxheight", "390x844"),
        option("text-size", "The text's size in percent of the system's.", "percent", "100"),
        option("reset-guide", "Show the app's guide again, as on the first launch."),
        option("background-only", "Show the animated background and nothing else."),
        option("frames", "Number of pictures of the background's cycle.", "count"),
        option("compose", "Begin a mail to the developer."),
        option("open-browser", "Show a page in the in-app browser.", "URL"),
        option("shots", "Write pictures of all screens, off-screen, instead of showing a window.", "folder"),
    });
}

TQApp appNamed(const QString &name)
{
    bool known = false;
    const int value = QMetaEnum::fromType<TQApp::Case>().keyToValue(name.toUtf8().constData(), &known);
    if (!known)
        refuse(QStringLiteral("no app is called '%1'").arg(name));
    return static_cast<TQApp::Case>(value);
}

QSize windowSize(const QString &text)
{
    const QStringList sides = text.split(u'x');
    const QSize size(sides.value(0).toInt(), sides.value(1).toInt());
    if (sides.size() != 2 || size.width() < 240 || size.height() < 240)
        refuse(QStringLiteral("'%1' is not a window size of at least 240x240").arg(text));
    return size;
}

// Also refuses text that is not a number: it counts as 0, and no range begins there.
int numberFrom(const QString &text, const char *name, int lowest, int highest)
{
    const int number = text.toInt();
    if (number < lowest || number > highest)
        refuse(QStringLiteral("--%1 takes a number from %2 to %3").arg(QLatin1String(name)).arg(lowest).arg(highest));
    return number;
}

} // namespace

Options Options::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    const QCommandLineOption help = parser.addHelpOption();
    if (!parser.parse(arguments))
        refuse(parser.errorText());
    if (parser.isSet(help)) {
        QTextStream(stdout) << parser.helpText();
        std::exit(0);
    }

    const auto isSet = [&parser](const char *name) { return parser.isSet(QLatin1String(name)); };
    const auto value = [&parser](const char *name) { return parser.value(QLatin1String(name)); };
    Options options;
    options.app = appNamed(value("app"));
    if (value("storefront") != u"none")
        options.storefront = value("storefront");
    options.language = value("language");
    options.dark = isSet("dark");
    options.size = windowSize(value("size"));
    options.textSize = numberFrom(value("text-size"), "text-size", 50, 400);
    options.resetGuide = isSet("reset-guide");
    options.backgroundOnly = isSet("background-only");
    if (isSet("frames"))
        options.frames = numberFrom(value("frames"), "frames", 1, 1000);
    options.compose = isSet("compose");
    options.openBrowser = value("open-browser");
    if (isSet("open-browser") && !QUrl(options.openBrowser, QUrl::StrictMode).isValid())
        refuse(QStringLiteral("'%1' is not a URL").arg(options.openBrowser));
    options.shots = value("shots");
    if (isSet("shots") && options.shots.isEmpty())
        refuse(QStringLiteral("--shots needs a folder"));
    return options;
}

QString Options::caseName() const
{
    return QLatin1String(QMetaEnum::fromType<TQApp::Case>().valueToKey(static_cast<int>(TQApp::Case(app))));
}
