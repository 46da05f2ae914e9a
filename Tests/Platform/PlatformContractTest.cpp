#include "KeyboardFocus.h"
#include "RecordingPlatform.h"
#include "Scenes.h"

#include <TQFoundation/DesktopPlatform.h>
#include <TQFoundation/TQMore.h>

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtCore/qthread.h>
#include <QtGui/qdesktopservices.h>
#include <QtQuick/qquickwindow.h>
#include <QtTest/qtest.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <thread>
#include <type_traits>
#include <vector>

namespace TQFoundation {
namespace {

/// Receives the URLs that Qt would open.
class UrlHandler : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> urls;

public Q_SLOTS:
    void open(const QUrl &url) { urls += url; }
};

/// The product, with a sendmail program that comes and goes and a URL handler instead of the system's.
class Desktop
{
public:
    Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("https"), &m_handler, "open"); }
    ~Desktop() { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    Platform &operator*() { return m_platform; }

    static std::unique_ptr<Platform> make() { return std::make_unique<DesktopPlatform>(); }

    void setMailAvailable(bool isAvailable)
    {
        QFile program(m_platform.folder.filePath(QStringLiteral("sendmail")));
        if (!isAvailable) {
            program.remove();
            return;
        }
        ASSERT_TRUE(program.open(QIODevice::WriteOnly));
        program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }

    void showKeyWindow(QQuickWindow &window) { ASSERT_TRUE(Testing::showWithFocus(window)); }

    void passTime(double seconds) { QThread::usleep(static_cast<unsigned long>(seconds * 1e6)); }

    void allowThreads() {}

    QList<QUrl> openedUrls() const { return m_handler.urls; }

private:
    struct MailPlatform : DesktopPlatform
    {
        QTemporaryDir folder;
        QStringList programFolders() const override { return {folder.path()}; }
    };

    MailPlatform m_platform;
    UrlHandler m_handler;
};

/// The fake, with the answers that the desktop gives.
class Recording
{
public:
    Recording()
    {
        m_platform.infoDictionary.insert(QStringLiteral("CFBundleName"), QCoreApplication::applicationName());
    }

    Platform &operator*() { return m_platform; }

    static std::unique_ptr<Platform> make() { return std::make_unique<Testing::RecordingPlatform>(); }

    void setMailAvailable(bool isAvailable) { m_platform.mailCanBeSent = isAvailable; }

    void showKeyWindow(QQuickWindow &window)
    {
        window.show();
        m_platform.scenes = Testing::keyScene(&window);
    }

    void passTime(double seconds) { m_platform.stall(seconds); }

    void allowThreads() { m_platform.records = false; }

    QList<QUrl> openedUrls() const
    {
        QList<QUrl> urls;
        for (const QString &call : std::as_const(m_platform.calls)) {
            if (call.startsWith(u"openUrl("))
                urls += QUrl(call.mid(8, call.size() - 9));
        }
        return urls;
    }

private:
    Testing::RecordingPlatform m_platform;
};

/// The promises of Platform that every implementation keeps, except those of timers.
template <typename Subject>
class PlatformContract : public testing::Test
{
protected:
    Subject subject;
};

struct SubjectName
{
    template <typename Subject>
    static std::string GetName(int)
    {
        return std::is_same_v<Subject, Desktop> ? "Desktop" : "Recording";
    }
};

using Subjects = testing::Types<Desktop, Recording>;
TYPED_TEST_SUITE(PlatformContract, Subjects, SubjectName);

TYPED_TEST(PlatformContract, ScreenHasFiniteSizeAndPositiveScale)
{
    const Platform &platform = *this->subject;
    const QSizeF bounds = platform.screenBounds();
    EXPECT_TRUE(std::isfinite(bounds.width()) && std::isfinite(bounds.height()));
    EXPECT_TRUE(bounds.width() >= 0 && bounds.height() >= 0);
    EXPECT_TRUE(std::isfinite(platform.screenScale()) && platform.screenScale() > 0);
}

TYPED_TEST(PlatformContract, StorefrontIsThreeLettersOrMissing)
{
    if (const auto code = (*this->subject).storefrontCountryCode()) {
        EXPECT_EQ(code->size(), 3);
        EXPECT_TRUE(std::ranges::all_of(*code, [](QChar letter) { return letter >= u'A' && letter <= u'Z'; }));
    }
}

TYPED_TEST(PlatformContract, InfoDictionaryEntryKeepsItsType)
{
    const QVariant name = (*this->subject).infoDictionaryValue(QStringLiteral("CFBundleName"));
    EXPECT_EQ(name.typeId(), QMetaType::QString);
    EXPECT_EQ(name, QVariant(QCoreApplication::applicationName()));
}

TYPED_TEST(PlatformContract, MissingInfoDictionaryEntryIsInvalid)
{
    EXPECT_FALSE((*this->subject).infoDictionaryValue(QStringLiteral("NoSuchEntry")).isValid());
    EXPECT_FALSE((*this->subject).infoDictionaryValue(QString()).isValid());
}

TYPED_TEST(PlatformContract, MissingUserDefaultIsInvalid)
{
    EXPECT_FALSE((*this->subject).userDefault(QStringLiteral("NoSuchSetting")).isValid());
}

TYPED_TEST(PlatformContract, UserDefaultIsReadBackWithItsType)
{
    Platform &platform = *this->subject;
    const QVariantMap values{{QStringLiteral("flag"), true},
                             {QStringLiteral("number"), 57},
                             {QStringLiteral("share"), 0.25},
                             {QStringLiteral("text"), QStringLiteral("Grün, \"a\"; b\nc")},
                             {QStringLiteral("texts"), QStringList{QStringLiteral("a"), QStringLiteral("b")}}};
    for (auto value = values.begin(); value != values.end(); ++value)
        platform.setUserDefault(value.key(), value.value());
    for (const bool isWritten : {false, true}) {
        for (auto value = values.begin(); value != values.end(); ++value) {
            const QVariant read = platform.userDefault(value.key());
            EXPECT_EQ(read, value.value()) << value.key().toStdString() << isWritten;
            EXPECT_EQ(read.typeId(), value.value().typeId()) << value.key().toStdString() << isWritten;
        }
        QCoreApplication::processEvents();
    }
}

TYPED_TEST(PlatformContract, LastValueOfAUserDefaultWins)
{
    Platform &platform = *this->subject;
    const QString key = QStringLiteral("changed");
    for (const QVariant &value : {QVariant(1), QVariant(QStringLiteral("two")), QVariant(false)}) {
        platform.setUserDefault(key, value);
        EXPECT_EQ(platform.userDefault(key), value);
    }
    EXPECT_FALSE(platform.userDefault(QStringLiteral("unchanged")).isValid());
}

TYPED_TEST(PlatformContract, SceneHasTheKeyWindow)
{
    QQuickWindow window;
    this->subject.showKeyWindow(window);
    const QList<Scene> scenes = (*this->subject).connectedScenes();
    ASSERT_EQ(scenes.size(), 1);
    EXPECT_EQ(scenes[0], (Scene{ActivationState::foregroundActive, true, {{&window, true}}}));
}

TYPED_TEST(PlatformContract, SceneWindowIsNullOnceDestroyed)
{
    auto window = std::make_unique<QQuickWindow>();
    this->subject.showKeyWindow(*window);
    const QList<Scene> scenes = (*this->subject).connectedScenes();
    window.reset();
    ASSERT_EQ(scenes.value(0).windows.size(), 1);
    EXPECT_FALSE(scenes[0].windows[0].window);
}

TYPED_TEST(PlatformContract, HandsUrlsOnUnchangedAndInOrder)
{
    const QList<QUrl> urls{QUrl(QStringLiteral("https://links.example/a%20b?c=%C3%A9&d=1#e")),
                           QUrl(QStringLiteral("https://links.example/（1）"))};
    for (const QUrl &url : urls)
        (*this->subject).openUrl(url);
    EXPECT_EQ(this->subject.openedUrls(), urls);
}

TYPED_TEST(PlatformContract, AsksAtEachUseWhetherMailCanBeSent)
{
    for (const bool isAvailable : {false, true, false, true}) {
        this->subject.setMailAvailable(isAvailable);
        EXPECT_EQ((*this->subject).canSendMail(), isAvailable);
    }
}

TYPED_TEST(PlatformContract, MakesNewMailComposersEvenWithoutMail)
{
    for (const bool isAvailable : {false, true}) {
        this->subject.setMailAvailable(isAvailable);
        const auto one = (*this->subject).makeMailComposer();
        const auto other = (*this->subject).makeMailComposer();
        ASSERT_TRUE(one && other);
        EXPECT_NE(one, other);
        EXPECT_EQ(one.use_count(), 1) << "owned by the caller alone";
        EXPECT_FALSE(one->presentedViewController());
    }
}

TYPED_TEST(PlatformContract, MailComposerDoesNotOwnItsDelegate)
{
    const auto composer = (*this->subject).makeMailComposer();
    auto delegate = std::make_shared<ViewController>();
    composer->setMailComposeDelegate(delegate);
    EXPECT_EQ(delegate.use_count(), 1);
    composer->setMailComposeDelegate(nullptr);
}

TYPED_TEST(PlatformContract, MakesNewInAppBrowsers)
{
    const QUrl url(QStringLiteral("https://links.example"));
    const auto one = (*this->subject).makeInAppBrowser(url);
    const auto other = (*this->subject).makeInAppBrowser(url);
    ASSERT_TRUE(one && other);
    EXPECT_NE(one, other);
    EXPECT_EQ(one.use_count(), 1) << "owned by the caller alone";
    EXPECT_FALSE(one->presentedViewController());
    EXPECT_TRUE(this->subject.openedUrls().isEmpty()) << "nothing is loaded before it is presented";
}

TYPED_TEST(PlatformContract, SoftImpactIsAlwaysAllowed)
{
    for (int round = 0; round < 3; ++round)
        (*this->subject).softImpact();
}

TYPED_TEST(PlatformContract, MediaTimeCountsSecondsWithoutGoingBack)
{
    const Platform &platform = *this->subject;
    for (const double seconds : {0.0, 0.002, 0.01}) {
        const double before = platform.mediaTime();
        this->subject.passTime(seconds);
        EXPECT_GE(platform.mediaTime() - before, seconds - 1e-9);
        EXPECT_LT(platform.mediaTime() - before, seconds + 10);
    }
}

TYPED_TEST(PlatformContract, ResourceRootIsFolderOfTheNib)
{
    const QString root = (*this->subject).resourceRoot();
    EXPECT_FALSE(root.endsWith(u'/'));
    EXPECT_TRUE(QFile::exists(QString(root + u"/Nibs/TQGuideView.qml"))) << root.toStdString();
}

TYPED_TEST(PlatformContract, AnswersAnyThread)
{
    this->subject.allowThreads();
    const Platform &platform = *this->subject;
    const auto answers = [&platform] {
        return QVariantList{platform.storefrontCountryCode().value_or(QString()),
                            platform.infoDictionaryValue(QStringLiteral("CFBundleName")), platform.resourceRoot(),
                            platform.mediaTime() >= 0};
    };
    const QVariantList expected = answers();
    std::vector<QVariantList> found(4);
    std::vector<std::thread> threads;
    for (QVariantList &list : found)
        threads.emplace_back([&list, &answers] { list = answers(); });
    for (std::thread &thread : threads)
        thread.join();
    for (const QVariantList &list : found)
        EXPECT_EQ(list, expected);
}

TYPED_TEST(PlatformContract, InstallingReturnsTheFormerPlatform)
{
    auto made = TypeParam::make();
    Platform *const mine = made.get();
    auto former = installPlatform(std::move(made));
    Platform *const first = former.get();
    EXPECT_EQ(&platform(), mine);
    EXPECT_EQ(installPlatform(std::move(former)).get(), mine);
    EXPECT_EQ(&platform(), first);
}

} // namespace
} // namespace TQFoundation

#include "PlatformContractTest.moc"
