#include <TQFoundation/TQApp.h>

#include <QGuiApplication>
#include <QMetaEnum>
#include <QQmlComponent>
#include <QQmlEngine>

#include <cstdlib>
#include <memory>

using namespace TQFoundation;

// Built against a library to which one name, one row and one icon were added: the app is everywhere.
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);

    constexpr TQApp app = TQApp::sorrel;
    static_assert(TQApp::allCases().back() == app);
    static_assert(TQApp(TQApp::Case::sorrel) == app);
    if (app.id() != u"9990000011" || app.tintColor() != Color(Rgba{0.5F, 0.25F, 0.125F})
        || !app.icp().value_or(QString()).endsWith(u"-10A") || app.icon().isNull() || !app.guideText().isEmpty()
        || app.reviewLink() != u"https://apps.apple.com/app/id9990000011?action=write-review")
        qFatal("the app is not what its row says");

    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQml
        import TQFoundation

        QtObject {
            property tqApp app: TQApp.sorrel
            property tqApp last: TQApp.allCases[TQApp.allCases.length - 1]
            property TQAppIcon icon: TQAppIcon { app: TQApp.sorrel }
        })",
                      {});
    const std::unique_ptr<QObject> page(component.create());
    if (!page)
        qFatal("%s", qPrintable(component.errorString()));
    const auto *icon = page->property("icon").value<QObject *>();
    if (page->property("app").value<TQApp>() != app || page->property("last").value<TQApp>() != app
        || icon->property("caseName") != QStringLiteral("Sorrel") || icon->property("empty").toBool())
        qFatal("the app is not in QML");
    return EXIT_SUCCESS;
}
