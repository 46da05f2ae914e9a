// A stored flag of any type and value. The guide counts as shown only if it is true or a number equal to 1.

#include "RecordingPlatform.h"
#include "Require.h"

#include <TQFoundation/TQGuideView.h>

#include <QtCore/qdatetime.h>
#include <QtGui/qguiapplication.h>

#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>

using TQFoundation::Fuzzing::require;

namespace {

struct Stored
{
    QVariant value;
    bool isShown = false;
};

template <typename Number>
Stored number(FuzzedDataProvider &data)
{
    const auto value =
        data.ConsumeBool() ? static_cast<Number>(1) : static_cast<Number>(data.ConsumeIntegral<qint64>());
    return {QVariant::fromValue(value), value == static_cast<Number>(1)};
}

template <typename Real>
Stored real(FuzzedDataProvider &data)
{
    const Real value = data.ConsumeFloatingPoint<Real>();
    return {QVariant::fromValue(value), value == Real(1)};
}

Stored stored(FuzzedDataProvider &data)
{
    const auto kind = data.ConsumeIntegralInRange(0, 15);
    const auto text = [&] { return QString::fromStdString(data.ConsumeRandomLengthString()); };
    switch (kind) {
    case 0: {
        const bool value = data.ConsumeBool();
        return {value, value};
    }
    case 1:
        return number<int>(data);
    case 2:
        return number<uint>(data);
    case 3:
        return number<qlonglong>(data);
    case 4:
        return number<qulonglong>(data);
    case 5:
        return real<float>(data);
    case 6:
        return real<double>(data);
    case 7:
        return {text(), false};
    case 8:
        return {text().toUtf8(), false};
    case 9:
        return {QStringList{text(), text()}, false};
    case 10:
        return {QVariantList{true, 1, text()}, false};
    case 11:
        return {QVariantMap{{text(), true}}, false};
    case 12:
        return {QDateTime::fromMSecsSinceEpoch(data.ConsumeIntegral<qint64>()), false};
    case 13:
        return {QVariant(QMetaType(data.ConsumeIntegral<int>() & 0xFFFF)), false};
    case 14:
        return {QVariant::fromValue(QVariant(true)), true}; // a nested variant is unwrapped
    default:
        return {};
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    // Some types, such as pictures, need the application object.
    static int count = 1;
    static char name[] = "Fuzzer";
    static char *arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments);
    static TQFoundation::Testing::InstalledRecordingPlatform platform;
    FuzzedDataProvider data(bytes, size);
    const Stored flag = stored(data);
    platform->calls.clear();
    platform->defaults = {{QStringLiteral("KeyOfDidShowGuide"), flag.value}};
    require(TQFoundation::TQGuideView::shouldShowGuide() != flag.isShown);
    require(platform->calls == QStringList{QStringLiteral("userDefault(KeyOfDidShowGuide)")});
    return 0;
}
