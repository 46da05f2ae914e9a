#include "QmlValue.h"
#include "RecordingPlatform.h"

#include <TQFoundation/TQApp.h>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::qmlValue;

TEST(QmlApp, HasAPropertyForEveryCase)
{
    const InstalledRecordingPlatform platform;
    const auto cases = QMetaEnum::fromType<TQApp::Case>();
    ASSERT_EQ(cases.keyCount(), static_cast<int>(TQApp::allCases().size()));
    for (int index = 0; index < cases.keyCount(); ++index) {
        const QByteArray expression = QByteArray("TQApp.") + cases.key(index);
        EXPECT_EQ(qmlValue("tqApp", expression.constData()).value<TQApp>(), TQApp(TQApp::Case(cases.value(index))));
    }
}

TEST(QmlApp, ListsAllCasesInOrder)
{
    const InstalledRecordingPlatform platform;
    QStringList ids;
    for (const TQApp app : TQApp::allCases())
        ids += app.id();
    EXPECT_EQ(qmlValue("string", "TQApp.allCases.map(app => app.id).join()"), QVariant(ids.join(u',')));
    EXPECT_EQ(qmlValue("string", "TQApp.allCases[0].id"), qmlValue("string", "TQApp.larch.id"));
}

TEST(QmlApp, GivesCasesAllMembers)
{
    const InstalledRecordingPlatform platform;
    EXPECT_EQ(qmlValue("string", "TQApp.larch.id"), QVariant(QStringLiteral("9990000001")));
    EXPECT_EQ(qmlValue("string", "TQApp.larch.icp"), QVariant(QStringLiteral("ICP-2099000001-1A")));
    EXPECT_EQ(qmlValue("bool", "TQApp.alder.icp === undefined"), QVariant(true));
    EXPECT_EQ(qmlValue("int", "TQApp.hazel.guideText.length"), QVariant(6));
    EXPECT_EQ(qmlValue("string", "TQApp.larch.reviewLink"),
              QVariant(QStringLiteral("https://apps.apple.com/app/id9990000001?action=write-review")));
    EXPECT_EQ(qmlValue("string", "TQApp.larch.appLink"),
              QVariant(QStringLiteral("https://apps.apple.com/app/id9990000001")));
}

TEST(QmlApp, ReadsTheHostIdentity)
{
    const InstalledRecordingPlatform platform;
    platform->infoDictionary = {{QStringLiteral("CFBundleDisplayName"), QStringLiteral("Grove")},
                                {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("2.3.1")},
                                {QStringLiteral("CFBundleVersion"), QStringLiteral("57")}};
    EXPECT_EQ(qmlValue("string", "TQApp.name + TQApp.version + TQApp.buildNumber"),
              QVariant(QStringLiteral("Grove2.3.157")));
}

} // namespace
} // namespace TQFoundation
