#include <TQFoundation/DesktopPlatform.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include <memory>
#include <optional>

namespace {

// A system with a store.
class StorePlatform : public TQFoundation::DesktopPlatform
{
public:
    explicit StorePlatform(const QString &country) : m_country(country) {}

    std::optional<QString> storefrontCountryCode() const override { return m_country; }

private:
    QString m_country;
};

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("TQ Studio"));
    // The country code from the command line, CHN or USA.
    const QString country = QCoreApplication::arguments().value(1, QStringLiteral("USA"));
    TQFoundation::installPlatform(std::make_unique<StorePlatform>(country));

    QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/Juniper/Main.qml")));
    return engine.rootObjects().isEmpty() ? 1 : application.exec();
}
