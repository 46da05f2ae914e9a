#include "Pictures.h"

#include <QtCore/qfile.h>
#include <QtCore/qprocess.h>
#include <QtCore/qtemporarydir.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace TQFoundation {
namespace {

const QString root = QStringLiteral(SUPPORT_FOLDER "/../../");

struct Entry
{
    QString name;
    QString screen;
    QStringList options;

    friend void PrintTo(const Entry &entry, std::ostream *stream) { *stream << entry.name.toStdString(); }
};

// The pictures of the documents' gallery that need neither time nor a page: lines such as `picture NAME SCREEN
// OPTION...` of the program that makes them.
std::vector<Entry> entries()
{
    QFile script(root + QStringLiteral("tools/take-pictures"));
    if (!script.open(QIODevice::ReadOnly | QIODevice::Text))
        return {}; // GoogleTest reports that there is nothing to test
    std::vector<Entry> found;
    const QString text = QString::fromUtf8(script.readAll());
    for (const QString &line : text.mid(text.indexOf(u"gallery")).split(u'\n')) {
        const QStringList words = line.split(u' ');
        if (words.size() > 3 && words.first() == u"picture" && !line.contains(u"--background-only")
            && !line.contains(u"--open-browser"))
            found.push_back({words[1], words[2], words.mid(3)});
    }
    return found;
}

class Gallery : public testing::TestWithParam<Entry>
{};

TEST_P(Gallery, IsWhatTheExampleDraws)
{
    const QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("1"));
    QProcess example;
    example.setProcessEnvironment(environment);
    example.start(QStringLiteral(EXAMPLE), GetParam().options + QStringList{QStringLiteral("--shots"), folder.path()});
    ASSERT_TRUE(example.waitForFinished());
    EXPECT_EQ(example.exitCode(), 0);
    EXPECT_EQ(QString::fromUtf8(example.readAllStandardError()), QString());

    Testing::expectPictureInFile(QImage(folder.filePath(GetParam().screen + u".png")),
                                 root + QStringLiteral("docs/pictures/gallery/") + GetParam().name + u".png");
}

INSTANTIATE_TEST_SUITE_P(Documents, Gallery, testing::ValuesIn(entries()), [](const auto &test) {
    std::string name = test.param.name.toStdString();
    std::ranges::replace(name, '-', '_');
    return name;
});

} // namespace
} // namespace TQFoundation
