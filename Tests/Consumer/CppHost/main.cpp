#include <TQFoundation/AppearanceObserver.h>
#include <TQFoundation/DesktopPlatform.h>
#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>

#include <QGuiApplication>
#include <QQuickWindow>

using namespace TQFoundation;

namespace {

class StorePlatform : public DesktopPlatform
{
public:
    std::optional<QString> storefrontCountryCode() const override { return QStringLiteral("USA"); }
};

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("TQ Studio"));
    installPlatform(std::make_unique<StorePlatform>());

    QQuickWindow window;
    window.setTitle(TQApp::name());
    window.resize(390, 844);
    window.show();

    AppearanceObserver appearance;
    const auto setColor = [&window] {
        const Rgba tint = TQApp::hazel.tintColor().resolved(AppearanceObserver::current());
        window.setColor(QColor::fromRgbF(tint.red, tint.green, tint.blue, tint.alpha));
    };
    setColor();
    QObject::connect(&appearance, &AppearanceObserver::isDarkChanged, &window, setColor);

    const TQApp app = TQApp::hazel;
    if (!app.guideText().isEmpty() && TQGuideView::shouldShowGuide()) {
        const auto guide = TQGuideView::initFromNib(app.tintColor(), app.guideText(), [] { qInfo("Welcome."); });
        guide->showGuide(&window);
    }
    return application.exec();
}
