// Grove is a host app of the catalogue: it says which app it is and shows that app's guide and More screen.

#include <TQFoundation/DesktopPlatform.h>
#include <TQFoundation/InAppBrowser.h>
#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>
#include <TQFoundation/TQMore.h>
#include <TQFoundation/ViewController.h>

#include <QtCore/qcommandlineparser.h>
#include <QtCore/qdir.h>
#include <QtCore/qeventloop.h>
#include <QtCore/qlocale.h>
#include <QtCore/qmetaobject.h>
#include <QtCore/qtextstream.h>
#include <QtCore/qtimer.h>
#include <QtCore/qtranslator.h>
#include <QtGui/qfont.h>
#include <QtGui/qfontinfo.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpalette.h>
#include <QtQml/qqmlapplicationengine.h>
#include <QtQuick/qquickwindow.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <utility>

using namespace TQFoundation;

namespace {

struct Options
{
    TQApp app = TQApp::hazel;
    std::optional<QString> storefront;
    QString language;
    bool dark = false;
    QSize size{390, 844};
    int textSize = 100; // in percent of the system's
    bool resetGuide = false;
    bool backgroundOnly = false;
    int frames = 0; // of the background's cycle; none for a few moments of it
    bool compose = false;
    QString openBrowser; // the address of a page; empty for none
    QString shots; // the folder for pictures; empty for a window
};

/// A desktop whose screen is the example's window and whose storefront is what the command line says.
class GrovePlatform : public DesktopPlatform
{
public:
    explicit GrovePlatform(const Options &options) : m_size(options.size), m_storefront(options.storefront) {}

    QSizeF screenBounds() const override { return m_size; }
    std::optional<QString> storefrontCountryCode() const override { return m_storefront; }

private:
    QSizeF m_size;
    std::optional<QString> m_storefront;
};

/// A timer that only runs when it is told to.
class StillTimer final : public RepeatingTimer
{
public:
    explicit StillTimer(std::function<void()> tick) : m_tick(std::move(tick)) {}

    void fire() override { m_tick(); }
    void schedule() override {}
    void invalidate() override
    {
        m_tick = [] {};
    }

private:
    std::function<void()> m_tick;
};

/// For pictures: every time is the first launch, nothing is stored, no other program is started, and the background
/// stands still.
class PicturePlatform final : public GrovePlatform
{
public:
    using GrovePlatform::GrovePlatform;

    QVariant userDefault(const QString &) const override { return {}; }
    void setUserDefault(const QString &, const QVariant &) override {}
    void openUrl(const QUrl &) override {}
    bool canSendMail() const override { return true; }
    double mediaTime() const override { return now; }
    std::shared_ptr<RepeatingTimer> makeTimer(double, std::function<void()> tick) override
    {
        return std::make_shared<StillTimer>(std::move(tick));
    }

    std::atomic<double> now = 0;
};

std::optional<TQApp> appNamed(const QString &name)
{
    bool known = false;
    const int value = QMetaEnum::fromType<TQApp::Case>().keyToValue(name.toUtf8().constData(), &known);
    return known ? std::optional<TQApp>(static_cast<TQApp::Case>(value)) : std::nullopt;
}

std::optional<QSize> sizeNamed(const QString &text)
{
    const QStringList sides = text.split(u'x');
    const QSize size(sides.value(0).toInt(), sides.value(1).toInt());
    return sides.size() == 2 && size.width() >= 240 && size.height() >= 240 ? std::optional(size) : std::nullopt;
}

[[noreturn]] void refuse(const QString &message)
{
    QTextStream(stderr) << "Grove: " << message << '\n';
    std::exit(2);
}

Options parseOptions(const QStringList &arguments)
{
    const QCommandLineOption app(QStringLiteral("app"), QStringLiteral("Which app of the catalogue to be."),
                                 QStringLiteral("case"), QStringLiteral("hazel"));
    const QCommandLineOption storefront(QStringLiteral("storefront"),
                                        QStringLiteral("The user's store: CHN, USA, ... or none."),
                                        QStringLiteral("code"), QStringLiteral("none"));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("The user's language, such as zh-Hans."), QStringLiteral("tag"));
    const QCommandLineOption dark(QStringLiteral("dark"), QStringLiteral("Dark appearance."));
    const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("The window's size in points."),
                                  QStringLiteral("widthxheight"), QStringLiteral("390x844"));
    const QCommandLineOption textSize(QStringLiteral("text-size"),
                                      QStringLiteral("The text's size in percent of the system's."),
                                      QStringLiteral("percent"), QStringLiteral("100"));
    const QCommandLineOption resetGuide(QStringLiteral("reset-guide"),
                                        QStringLiteral("Show the app's guide again, as on the first launch."));
    const QCommandLineOption backgroundOnly(QStringLiteral("background-only"),
                                            QStringLiteral("Show the animated background and nothing else."));
    const QCommandLineOption frames(QStringLiteral("frames"),
                                    QStringLiteral("Take so many pictures of the background's cycle."),
                                    QStringLiteral("count"));
    const QCommandLineOption compose(QStringLiteral("compose"), QStringLiteral("Begin a mail to the developer."));
    const QCommandLineOption openBrowser(QStringLiteral("open-browser"),
                                         QStringLiteral("Show a page in the in-app browser."), QStringLiteral("URL"));
    const QCommandLineOption shots(QStringLiteral("shots"),
                                   QStringLiteral("Walk through the screens off-screen and write pictures."),
                                   QStringLiteral("folder"));
    QCommandLineParser parser;
    parser.addOptions({app, storefront, language, dark, size, textSize, resetGuide, backgroundOnly, frames, compose,
                       openBrowser, shots});
    const QCommandLineOption help = parser.addHelpOption();
    if (!parser.parse(arguments))
        refuse(parser.errorText());
    if (parser.isSet(help)) {
        QTextStream(stdout) << parser.helpText();
        std::exit(0);
    }

    Options options;
    const auto named = appNamed(parser.value(app));
    if (!named)
        refuse(QStringLiteral("no app is called '%1'").arg(parser.value(app)));
    options.app = *named;
    const auto windowSize = sizeNamed(parser.value(size));
    if (!windowSize)
        refuse(QStringLiteral("'%1' is no window size").arg(parser.value(size)));
    options.size = *windowSize;
    options.textSize = parser.value(textSize).toInt();
    if (options.textSize < 50 || options.textSize > 400)
        refuse(QStringLiteral("'%1' is no text size from 50 to 400").arg(parser.value(textSize)));
    if (parser.value(storefront) != u"none")
        options.storefront = parser.value(storefront);
    options.language = parser.value(language);
    options.dark = parser.isSet(dark);
    options.resetGuide = parser.isSet(resetGuide);
    options.backgroundOnly = parser.isSet(backgroundOnly);
    options.frames = parser.value(frames).toInt();
    if (parser.isSet(frames) && (options.frames < 1 || options.frames > 1000))
        refuse(QStringLiteral("--frames takes a number from 1 to 1000"));
    options.compose = parser.isSet(compose);
    options.openBrowser = parser.value(openBrowser);
    if (parser.isSet(openBrowser) && !QUrl(options.openBrowser, QUrl::StrictMode).isValid())
        refuse(QStringLiteral("'%1' is no URL").arg(options.openBrowser));
    options.shots = parser.value(shots);
    if (parser.isSet(shots) && options.shots.isEmpty())
        refuse(QStringLiteral("--shots needs a folder"));
    return options;
}

void chooseDisplay(const Options &options)
{
    if (!options.shots.isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_BACKEND", "software");
        if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
            qputenv("QT_SCALE_FACTOR", "2");
        return;
    }
#ifdef Q_OS_LINUX
    // Where no display answers, the last of the list is taken and pictures are made instead.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        QByteArray platforms = "offscreen";
        if (!qEnvironmentVariableIsEmpty("DISPLAY"))
            platforms.prepend("xcb;");
        if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
            platforms.prepend("wayland;");
        qputenv("QT_QPA_PLATFORM", platforms);
    }
#endif
}

QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

TQGuideView *guideIn(const QQuickWindow &window)
{
    const QList<QQuickItem *> items = window.contentItem()->childItems();
    const auto guide = std::ranges::find_if(items, [](QQuickItem *item) { return qobject_cast<TQGuideView *>(item); });
    return guide == items.end() ? nullptr : static_cast<TQGuideView *>(*guide);
}

bool writePicture(QQuickWindow *window, const QString &folder, const QString &name)
{
    QCoreApplication::processEvents();
    const QString path = QDir(folder).filePath(name + u".png");
    if (!QDir().mkpath(folder) || !window->grabWindow().save(path)) {
        QTextStream(stderr) << "Grove: cannot write " << path << '\n';
        return false;
    }
    QTextStream(stdout) << QDir(path).absolutePath() << '\n';
    return true;
}

// What the rows Contact and, for any page, the filing do.
void showSheet(const Options &options)
{
    if (options.compose)
        TQMore::sendFeedbackEmail(options.app.tintColor(), {});
    const auto top = TQMore::topViewController();
    if (options.openBrowser.isEmpty() || !top)
        return;
    const auto browser = platform().makeInAppBrowser(QUrl(options.openBrowser, QUrl::StrictMode));
    browser->setPreferredControlTintColor(options.app.tintColor());
    top->present(browser);
}

// Shows the guide, where the app has one, and each screen without animation, and writes what the window then holds.
bool takePictures(QQuickWindow *window, const Options &options)
{
    QStringList screens{QStringLiteral("home"), QStringLiteral("more")};
    if (guideIn(*window))
        screens.prepend(QStringLiteral("guide"));
    if (options.compose || !options.openBrowser.isEmpty())
        screens.append(QStringLiteral("sheet"));
    for (const QString &screen : std::as_const(screens)) {
        QQuickItem *guide = guideIn(*window);
        if (screen == u"guide") {
            while (guide->opacity() < 1)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        } else if (screen == u"sheet") {
            // Until it has slid in and what it shows is there.
            const auto below = TQMore::topViewController();
            showSheet(options);
            QEventLoop shown;
            QTimer enough;
            QObject::connect(&enough, &QTimer::timeout, &shown, &QEventLoop::quit);
            enough.start(options.compose ? 500 : 3000);
            shown.exec();
            if (TQMore::topViewController() == below) {
                QTextStream(stderr) << "Grove: the sheet cannot be shown\n";
                return false;
            }
        } else {
            if (guide)
                guide->setParentItem(nullptr);
            window->setProperty("screenName", screen);
        }
        if (!writePicture(window, options.shots, screen))
            return false;
    }
    return true;
}

// The background alone: as it fades in, half drawn, complete, and fading out; or a whole cycle in even steps.
bool takeBackgroundPictures(QQuickWindow *window, const Options &options)
{
    const auto take = [&](double seconds, const QString &name) {
        static_cast<PicturePlatform &>(platform()).now = seconds;
        window->update();
        return writePicture(window, options.shots, u"background-" + name);
    };
    for (int frame = 0; frame < options.frames; ++frame) {
        if (!take(10.0 * frame / options.frames, QStringLiteral("%1").arg(frame, 3, 10, QLatin1Char('0'))))
            return false;
    }
    return options.frames > 0 || std::ranges::all_of(std::array{0.5, 4.5, 9.1, 9.9}, [&](double seconds) {
               return take(seconds, QString::number(seconds));
           });
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (const char *argument : std::span(argv, static_cast<std::size_t>(argc)))
        arguments += QString::fromLocal8Bit(argument);
    Options options = parseOptions(arguments);
    chooseDisplay(options);
    if (!options.language.isEmpty())
        QLocale::setDefault(QLocale(options.language));

    QGuiApplication application(argc, argv);
    if (options.shots.isEmpty() && QGuiApplication::platformName() == u"offscreen") {
        options.shots = QDir::current().filePath(QStringLiteral("shots"));
        QTextStream(stdout) << "There is no display, so here are pictures of the screens:\n";
    }
    // Whose settings they are: each app of the catalogue keeps its own.
    const auto *caseName = QMetaEnum::fromType<TQApp::Case>().valueToKey(static_cast<int>(TQApp::Case(options.app)));
    QCoreApplication::setOrganizationName(QStringLiteral("TQ Studio"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("tqstudio.example"));
    QCoreApplication::setApplicationName(u"Grove " + QLatin1String(caseName));
    if (options.shots.isEmpty())
        installPlatform(std::make_unique<GrovePlatform>(options));
    else
        installPlatform(std::make_unique<PicturePlatform>(options));
    if (options.resetGuide)
        platform().setUserDefault(QStringLiteral("KeyOfDidShowGuide"), false);

    if (options.textSize != 100) {
        QFont font = QGuiApplication::font();
        font.setPointSizeF(QFontInfo(font).pointSizeF() * options.textSize / 100);
        QGuiApplication::setFont(font);
    }
    if (options.dark)
        QGuiApplication::setPalette(darkPalette());
    QGuiApplication::setLayoutDirection(QLocale().textDirection());

    QTranslator translator;
    for (const QString &tag : QLocale().uiLanguages()) {
        const QLocale locale(tag);
        const QString language = QLocale::languageToCode(locale.language());
        const QString path = QStringLiteral(":/Translations/Grove_");
        if (translator.load(path + language + u'_' + QLocale::scriptToCode(locale.script()), {}, QStringLiteral("."))
            || translator.load(path + language + u'_' + QLocale::territoryToCode(locale.territory()), {},
                               QStringLiteral("."))
            || translator.load(path + language, {}, QStringLiteral(".")))
            break;
    }
    QCoreApplication::installTranslator(&translator);

    QQmlApplicationEngine engine;
    const QUrl iconSource(u"qrc:/Icons/" + QLatin1String(caseName) + u".png");
    engine.setInitialProperties({{QStringLiteral("app"), QVariant::fromValue(options.app)},
                                 {QStringLiteral("iconSource"), iconSource},
                                 {QStringLiteral("width"), options.size.width()},
                                 {QStringLiteral("height"), options.size.height()},
                                 {QStringLiteral("animated"), options.shots.isEmpty()},
                                 {QStringLiteral("backgroundOnly"), options.backgroundOnly}});
    engine.load(QUrl(QStringLiteral("qrc:/Grove/Main.qml")));
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window)
        return 1;
    if (!options.shots.isEmpty()) {
        const auto take = options.backgroundOnly ? takeBackgroundPictures : takePictures;
        return take(window, options) ? 0 : 1;
    }
    if (options.compose || !options.openBrowser.isEmpty()) {
        // Sheets are shown on the window that has the keyboard.
        window->setProperty("screenName", QStringLiteral("more"));
        QObject::connect(
            window, &QWindow::activeChanged, window, [options] { showSheet(options); },
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
        window->requestActivate();
    }
    return QGuiApplication::exec();
}
