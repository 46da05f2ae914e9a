// Grove, the example host app: is one app of the catalogue and shows that app's guide and More screen.

#include "AppearanceSwitch.h"
#include "GrovePlatform.h"
#include "Options.h"
#include "PicturePlatform.h"
#include "Pictures.h"
#include "StartSheet.h"

#include <QtCore/qdir.h>
#include <QtCore/qlocale.h>
#include <QtCore/qtextstream.h>
#include <QtCore/qtranslator.h>
#include <QtGui/qfont.h>
#include <QtGui/qfontinfo.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlapplicationengine.h>
#include <QtQuick/qquickwindow.h>

#include <memory>
#include <span>
#include <utility>

using namespace TQFoundation;

namespace {

QStringList argumentList(int argc, char **argv)
{
    QStringList arguments;
    for (const char *argument : std::span(argv, static_cast<std::size_t>(argc)))
        arguments += QString::fromLocal8Bit(argument);
    return arguments;
}

// Before the application object: Qt reads these variables when it is made.
void chooseDisplay(const Options &options)
{
    if (options.isPictureRun()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_BACKEND", "software");
        if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
            qputenv("QT_SCALE_FACTOR", "2");
        return;
    }
#ifdef Q_OS_LINUX
    // If no display answers, the last one of the list is taken, and the example writes pictures.
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

// Names the settings file: each app of the catalogue keeps its own.
void nameApplication(const Options &options)
{
    QCoreApplication::setOrganizationName(QStringLiteral("TQ Studio"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("tqstudio.example"));
    QCoreApplication::setApplicationName(u"Grove " + options.caseName());
    QGuiApplication::setDesktopFileName(QStringLiteral("example.tqstudio.grove"));
}

// The platform lives as long as the process.
GrovePlatform &install(const Options &options)
{
    std::unique_ptr<GrovePlatform> made;
    if (options.isPictureRun())
        made = std::make_unique<PicturePlatform>(options);
    else
        made = std::make_unique<GrovePlatform>(options);
    GrovePlatform &installed = *made;
    installPlatform(std::move(made));
    if (options.resetGuide)
        installed.setUserDefault(QStringLiteral("KeyOfDidShowGuide"), false);
    return installed;
}

void applyTextSettings(const Options &options)
{
    if (options.textSize != 100) {
        QFont font = QGuiApplication::font();
        font.setPointSizeF(QFontInfo(font).pointSizeF() * options.textSize / 100);
        QGuiApplication::setFont(font);
    }
    QGuiApplication::setLayoutDirection(QLocale().textDirection());
}

// The first of the user's languages that has a table: with its script, else with its country, else alone.
void loadTable(QTranslator &translator)
{
    for (const QString &tag : QLocale().uiLanguages()) {
        const QLocale locale(tag);
        const QString path = QStringLiteral(":/Translations/Grove_") + QLocale::languageToCode(locale.language());
        const auto load = [&](const QString &suffix) {
            return translator.load(path + suffix, {}, QStringLiteral("."));
        };
        if (load(u'_' + QLocale::scriptToCode(locale.script()))
            || load(u'_' + QLocale::territoryToCode(locale.territory())) || load({}))
            return;
    }
}

QQuickWindow *loadWindow(QQmlApplicationEngine &engine, const Options &options)
{
    engine.setInitialProperties(
        {{QStringLiteral("app"), QVariant::fromValue(options.app)},
         {QStringLiteral("iconSource"), QUrl(QStringLiteral("qrc:/Icons/%1.png").arg(options.caseName()))},
         {QStringLiteral("width"), options.size.width()},
         {QStringLiteral("height"), options.size.height()},
         {QStringLiteral("animated"), !options.isPictureRun()},
         {QStringLiteral("backgroundOnly"), options.backgroundOnly}});
    engine.load(QUrl(QStringLiteral("qrc:/Grove/Main.qml")));
    return qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
}

// A sheet is presented on the key window, so this waits until the window is active.
void presentSheetOnceActive(QQuickWindow *window, const Options &options)
{
    window->setProperty("screenName", QStringLiteral("more"));
    QObject::connect(
        window, &QWindow::activeChanged, window, [options] { presentStartSheet(options); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    window->requestActivate();
}

} // namespace

int main(int argc, char *argv[])
{
    Options options = Options::parse(argumentList(argc, argv));
    chooseDisplay(options);
    if (!options.language.isEmpty())
        QLocale::setDefault(QLocale(options.language));

    QGuiApplication application(argc, argv);
    if (!options.isPictureRun() && QGuiApplication::platformName() == u"offscreen") {
        options.shots = QDir::current().filePath(QStringLiteral("shots"));
        QTextStream(stdout) << "There is no display; pictures of the screens are written instead:\n";
    }
    nameApplication(options);
    AppearanceSwitch appearance(install(options));
    applyTextSettings(options);
    QTranslator translator;
    loadTable(translator);
    QCoreApplication::installTranslator(&translator);

    QQmlApplicationEngine engine;
    QQuickWindow *const window = loadWindow(engine, options);
    if (!window)
        return 1;
    QObject::connect(window, SIGNAL(appearanceChosen(bool)), &appearance, SLOT(setDark(bool)));
    if (options.isPictureRun())
        return Pictures::take(window, options) ? 0 : 1;
    if (options.hasStartSheet())
        presentSheetOnceActive(window, options);
    return QGuiApplication::exec();
}
