#include <TQFoundation/Bundle.h>
#include <TQFoundation/DesktopPlatform.h>
#include <TQFoundation/Environment.h>
#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQMore.h>

#include <QtCore/qdir.h>
#include <QtCore/qlocale.h>
#include <QtCore/qtranslator.h>
#include <QtGui/qguiapplication.h>

#include <benchmark/benchmark.h>

#include <cstdlib>

using namespace TQFoundation;

namespace {

class SharpScreen final : public DesktopPlatform
{
public:
    double screenScale() const override { return 3; }
};

template <typename Read>
benchmark::internal::Benchmark *measure(const char *name, Read read)
{
    return benchmark::RegisterBenchmark(name, [read](benchmark::State &state) {
        for (auto _ : state)
            benchmark::DoNotOptimize(read());
    });
}

constexpr int pixels = 108; // side of an icon of 36 points at scale 3

// All icons except hazel's, from another folder, scaled like TQApp::icon().
qsizetype prepareRowFrom(const QDir &folder)
{
    constexpr const char *names[] = {"larch-page", "juniper-page", "ginkgo-page", "fir",       "elm-page",
                                     "dogwood",    "cedar",        "birch",       "alder-page"};
    qsizetype bytes = 0;
    for (const char *name : names) {
        const QImage artwork(folder.filePath(QLatin1String(name) + QStringLiteral(".png")));
        if (artwork.isNull())
            std::abort();
        bytes += artwork.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).sizeInBytes();
    }
    return bytes;
}

qsizetype prepareRow()
{
    qsizetype bytes = 0;
    for (const TQApp app : TQApp::allCases()) {
        if (app != TQApp::hazel)
            bytes += app.icon().sizeInBytes();
    }
    return bytes;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    QLocale::setDefault(QLocale(QStringLiteral("de-DE")));
    installPlatform(std::make_unique<SharpScreen>());
    const QGuiApplication application(argc, argv);

    QTranslator german;
    if (!german.load(QStringLiteral(":/qt-project.org/imports/TQFoundation/Translations/TQFoundation_de.qm")))
        return 1;
    const QString key = QStringLiteral("Privacy Policy");
    if (localizedInLibrary(key) != german.translate("TQFoundation", "Privacy Policy") || localizedInLibrary(key) == key)
        return 1;

    if (TQApp::larch.icon().size() != QSize(pixels, pixels))
        return 1;

    measure("id", [] { return TQApp::hazel.id(); });
    measure("icp", [] { return TQApp::hazel.icp(); });
    measure("tintColor", [] { return TQApp::hazel.tintColor(); });
    measure("guideText", [] { return TQApp::hazel.guideText(); });
    measure("appLink", [] { return TQApp::hazel.appLink(); });
    measure("name", [] { return TQApp::name(); });
    measure("versionText", [] { return TQMore::versionText(); });
    measure("localizedInLibrary", [key] { return localizedInLibrary(key); });
    measure("bare QTranslator", [&german] { return german.translate("TQFoundation", "Privacy Policy"); });
    // Qt scales large images on several threads, so the CPU time of the process counts.
    measure("icon row", prepareRow)->MeasureProcessCPUTime();
    measure("icon row of 1024-pixel artwork", [] {
        return prepareRowFrom(QDir(QStringLiteral(LARGE_ICONS)));
    })->MeasureProcessCPUTime();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
