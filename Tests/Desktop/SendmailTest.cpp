#include <TQFoundation/DesktopPlatform.h>

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

class PlatformWithFolders : public DesktopPlatform
{
public:
    QStringList folders;

protected:
    QStringList programFolders() const override { return folders; }
};

TEST(Sendmail, IsExecutableFileInOneOfTheFolders)
{
    const QTemporaryDir first;
    const QTemporaryDir second;
    PlatformWithFolders platform;
    EXPECT_FALSE(platform.canSendMail());
    platform.folders = {QString(), QStringLiteral("/no/such/folder"), first.path(), second.path()};
    EXPECT_FALSE(platform.canSendMail());
    ASSERT_TRUE(QDir(first.path()).mkdir(QStringLiteral("sendmail")));
    EXPECT_FALSE(platform.canSendMail()) << "a folder";
    QFile program(second.filePath(QStringLiteral("sendmail")));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    EXPECT_FALSE(platform.canSendMail()) << "not executable";
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_TRUE(platform.canSendMail());
    program.remove();
    EXPECT_FALSE(platform.canSendMail()) << "looked up each time";
}

TEST(Sendmail, IsSearchedInSystemFoldersThenPath)
{
    qputenv("PATH", "/one::/two");
    struct Platform : DesktopPlatform
    {
        using DesktopPlatform::programFolders;
    };
    EXPECT_EQ(Platform().programFolders(),
              (QStringList{QStringLiteral("/usr/sbin"), QStringLiteral("/usr/lib"), QStringLiteral("/one"),
                           QStringLiteral("/two")}));
    qputenv("PATH", "/three");
    EXPECT_EQ(Platform().programFolders().last(), QStringLiteral("/three")) << "read each time";
}

} // namespace
} // namespace TQFoundation
