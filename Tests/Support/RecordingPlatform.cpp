#include "RecordingPlatform.h"

#include "TickGrid.h"

#include <QtCore/qmetaobject.h>
#include <QtGui/qcolor.h>

#include <algorithm>
#include <utility>

namespace TQFoundation::Testing {

namespace {

QString toText(const Color &color)
{
    const auto hex = [&color](Appearance appearance) {
        const Rgba rgba = color.resolved(appearance);
        return QColor::fromRgbF(rgba.red, rgba.green, rgba.blue, rgba.alpha).name(QColor::HexArgb);
    };
    return hex(Appearance::light) + u' ' + hex(Appearance::dark);
}

} // namespace

void RecordingMailComposer::setMailComposeDelegate(const std::shared_ptr<ViewController> &next)
{
    delegate = next;
    m_platform.record(next ? QStringLiteral("composer.setMailComposeDelegate(controller)")
                           : QStringLiteral("composer.setMailComposeDelegate(null)"));
}

void RecordingMailComposer::setNavigationBarTintColor(const Color &color)
{
    m_platform.record(u"composer.setNavigationBarTintColor(" + toText(color) + u')');
}

void RecordingMailComposer::setToRecipients(const QStringList &addresses)
{
    m_platform.record(u"composer.setToRecipients(" + addresses.join(u", ") + u')');
}

void RecordingMailComposer::setSubject(const QString &subject)
{
    m_platform.record(u"composer.setSubject(" + subject + u')');
}

void RecordingMailComposer::setMessageBody(const QString &body, bool isHtml)
{
    m_platform.record(u"composer.setMessageBody(" + body
                      + (isHtml ? QStringLiteral(", html)") : QStringLiteral(", plain)")));
}

void RecordingMailComposer::appear(QQuickWindow *)
{
    m_platform.record(QStringLiteral("composer.appear()"));
}

void RecordingMailComposer::disappear()
{
    m_platform.record(QStringLiteral("composer.disappear()"));
}

void RecordingInAppBrowser::setPreferredControlTintColor(const Color &color)
{
    m_platform.record(u"browser.setPreferredControlTintColor(" + toText(color) + u')');
}

void RecordingInAppBrowser::setDismissButtonStyle(DismissButtonStyle style)
{
    m_platform.record(u"browser.setDismissButtonStyle("
                      + QLatin1String(QMetaEnum::fromType<DismissButtonStyle>().valueToKey(static_cast<int>(style)))
                      + u')');
}

void RecordingInAppBrowser::setModalPresentationStyle(ModalPresentationStyle style)
{
    m_platform.record(u"browser.setModalPresentationStyle("
                      + QLatin1String(QMetaEnum::fromType<ModalPresentationStyle>().valueToKey(static_cast<int>(style)))
                      + u')');
}

void RecordingInAppBrowser::appear(QQuickWindow *)
{
    m_platform.record(QStringLiteral("browser.appear()"));
}

void RecordingInAppBrowser::disappear()
{
    m_platform.record(QStringLiteral("browser.disappear()"));
}

class RecordingTimer final : public RepeatingTimer, public std::enable_shared_from_this<RecordingTimer>
{
public:
    RecordingTimer(RecordingPlatform &platform, double interval, std::function<void()> tick)
        : m_platform(&platform),
          m_interval(interval),
          m_start(platform.m_now),
          m_tick(std::move(tick))
    {}

    void fire() override
    {
        record(QStringLiteral("timer.fire()"));
        run();
    }

    void schedule() override
    {
        record(QStringLiteral("timer.schedule()"));
        if (!m_platform || !m_tick || isScheduled())
            return;
        m_platform->m_scheduled.push_back(shared_from_this());
        m_next = nextTick(m_start, m_interval, m_platform->m_now);
    }

    void invalidate() override
    {
        record(QStringLiteral("timer.invalidate()"));
        if (m_platform)
            std::erase(m_platform->m_scheduled, shared_from_this());
        const auto tick = std::exchange(m_tick, nullptr);
    }

    // Called when the platform is destroyed before the timer.
    void detach() { m_platform = nullptr; }

    double nextMoment() const { return m_next; }

    void tickOnGrid()
    {
        m_next = nextTick(m_start, m_interval, m_platform->m_now);
        run();
    }

private:
    bool isScheduled() { return std::ranges::count(m_platform->m_scheduled, shared_from_this()) > 0; }

    void record(const QString &call) const
    {
        if (m_platform)
            m_platform->record(call);
    }

    void run()
    {
        if (const auto tick = m_tick)
            tick();
    }

    RecordingPlatform *m_platform;
    const double m_interval;
    const double m_start;
    double m_next = 0; // once scheduled
    std::function<void()> m_tick;
};

// Invalidating breaks reference cycles between a timer and the objects captured by its tick.
RecordingPlatform::~RecordingPlatform()
{
    while (!m_scheduled.empty()) {
        const auto timer = m_scheduled.back();
        timer->invalidate();
    }
    for (const auto &timer : timers) {
        if (const auto alive = timer.lock())
            std::static_pointer_cast<RecordingTimer>(alive)->detach();
    }
}

void RecordingPlatform::advance(double seconds)
{
    const double end = m_now + seconds;
    for (;;) {
        const auto first = std::ranges::min_element(m_scheduled, {}, &RecordingTimer::nextMoment);
        if (first == m_scheduled.end() || (*first)->nextMoment() > end)
            break;
        const auto timer = *first;
        m_now = std::max(m_now, timer->nextMoment());
        timer->tickOnGrid();
    }
    m_now = end;
}

void RecordingPlatform::record(const QString &call) const
{
    if (records)
        calls.append(call);
}

QSizeF RecordingPlatform::screenBounds() const
{
    record(QStringLiteral("screenBounds()"));
    return bounds;
}

double RecordingPlatform::screenScale() const
{
    record(QStringLiteral("screenScale()"));
    return scale;
}

std::optional<QString> RecordingPlatform::storefrontCountryCode() const
{
    ++storefrontReads;
    record(QStringLiteral("storefrontCountryCode()"));
    return storefront;
}

QVariant RecordingPlatform::infoDictionaryValue(const QString &key) const
{
    record(u"infoDictionaryValue(" + key + u')');
    return infoDictionary.value(key);
}

QVariant RecordingPlatform::userDefault(const QString &key) const
{
    record(u"userDefault(" + key + u')');
    return defaults.value(key);
}

void RecordingPlatform::setUserDefault(const QString &key, const QVariant &value)
{
    record(u"setUserDefault(" + key + u", " + value.toString() + u')');
    defaults.insert(key, value);
}

QList<Scene> RecordingPlatform::connectedScenes() const
{
    record(QStringLiteral("connectedScenes()"));
    return scenes;
}

void RecordingPlatform::openUrl(const QUrl &url)
{
    record(u"openUrl(" + url.toString(QUrl::FullyEncoded) + u')');
}

bool RecordingPlatform::canSendMail() const
{
    record(QStringLiteral("canSendMail()"));
    return mailCanBeSent;
}

std::shared_ptr<MailComposer> RecordingPlatform::makeMailComposer()
{
    record(QStringLiteral("makeMailComposer()"));
    if (sheets)
        return sheets->makeMailComposer();
    const auto made = std::make_shared<RecordingMailComposer>(*this);
    mailComposer = made;
    return made;
}

std::shared_ptr<InAppBrowser> RecordingPlatform::makeInAppBrowser(const QUrl &url)
{
    record(u"makeInAppBrowser(" + url.toString(QUrl::FullyEncoded) + u')');
    if (sheets)
        return sheets->makeInAppBrowser(url);
    const auto made = std::make_shared<RecordingInAppBrowser>(*this);
    inAppBrowser = made;
    return made;
}

void RecordingPlatform::softImpact()
{
    record(QStringLiteral("softImpact()"));
}

double RecordingPlatform::mediaTime() const
{
    return m_now;
}

std::shared_ptr<RepeatingTimer> RecordingPlatform::makeTimer(double interval, std::function<void()> tick)
{
    record(u"makeTimer(" + QString::number(interval) + u')');
    const auto timer = std::make_shared<RecordingTimer>(*this, interval, std::move(tick));
    timers.push_back(timer);
    return timer;
}

QString RecordingPlatform::resourceRoot() const
{
    return root;
}

InstalledRecordingPlatform::InstalledRecordingPlatform()
{
    auto platform = std::make_unique<RecordingPlatform>();
    m_platform = platform.get();
    m_former = installPlatform(std::move(platform));
}

InstalledRecordingPlatform::~InstalledRecordingPlatform()
{
    installPlatform(std::move(m_former));
}

} // namespace TQFoundation::Testing
