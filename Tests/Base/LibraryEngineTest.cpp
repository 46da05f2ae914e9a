#include "LibraryEngine.h"

#include "DeathTest.h"

#include <QtCore/qfile.h>
#include <QtCore/qpointer.h>
#include <QtCore/qtemporarydir.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qjsengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace TQFoundation {
namespace {

class LibraryEngine : public testing::Test
{
protected:
    QString write(const QByteArray &qml) const
    {
        const QString path = folder.filePath(QStringLiteral("Nib.qml"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("import QtQuick\n" + qml);
        return path;
    }

    const QTemporaryDir folder;
};

TEST_F(LibraryEngine, CreatesAnObjectWithInitialProperties)
{
    const auto object = makeFromNib(write("Item { required property int number }"), {{QStringLiteral("number"), 7}});
    ASSERT_TRUE(object);
    EXPECT_EQ(object->property("number"), QVariant(7));
    EXPECT_EQ(QJSEngine::objectOwnership(object.get()), QJSEngine::CppOwnership);
}

TEST_F(LibraryEngine, ReturnsNullForMissingOrBrokenFiles)
{
    EXPECT_FALSE(makeFromNib(QStringLiteral("/no/such.qml")));
    EXPECT_FALSE(makeFromNib(QStringLiteral(":/no/such.qml")));
    EXPECT_FALSE(makeFromNib(write("Item {")));
}

TEST_F(LibraryEngine, FindsQmlModulesByFolder)
{
    EXPECT_TRUE(hasQmlModule(QStringLiteral("QtQuick")));
    EXPECT_TRUE(hasQmlModule(QStringLiteral("TQFoundation"))) << "in a resource";
    EXPECT_FALSE(hasQmlModule(QStringLiteral("No/Such")));
}

TEST_F(LibraryEngine, DeletesInTheEventLoop)
{
    QQuickWindow window;
    const QPointer<QQuickItem> item = new QQuickItem(window.contentItem());
    deferredDelete(item);
    ASSERT_TRUE(item);
    EXPECT_EQ(item->parentItem(), nullptr);
    EXPECT_EQ(item->parent(), applicationScope());
    QCoreApplication::sendPostedEvents(item, QEvent::DeferredDelete);
    EXPECT_FALSE(item);
}

[[noreturn]] void askInTheNextApplication()
{
    const bool isFound = hasQmlModule(QStringLiteral("QtQuick"));
    QCoreApplication::instance()->~QCoreApplication();
    int count = 1;
    char name[] = "Tests";
    char *arguments[] = {name, nullptr};
    const QGuiApplication next(count, arguments);
    std::_Exit(isFound && hasQmlModule(QStringLiteral("QtQuick")) ? 0 : 1);
}

TEST(LibraryEngineDeathTest, WorksInTheNextApplication)
{
    EXPECT_EXIT(askInTheNextApplication(), testing::ExitedWithCode(0), Testing::noMessage);
}

[[noreturn]] void deleteAfterTheApplication()
{
    const QPointer<QObject> object = new QObject;
    QCoreApplication::instance()->~QCoreApplication();
    deferredDelete(object);
    std::_Exit(object ? 1 : 0);
}

TEST(LibraryEngineDeathTest, DeletesAtOnceAfterTheApplication)
{
    EXPECT_EXIT(deleteAfterTheApplication(), testing::ExitedWithCode(0), Testing::noMessage);
}

[[noreturn]] void exitWithAWindow()
{
    hideWindowsAtExit();
    auto *const window = new QQuickWindow;
    window->show();
    QObject::connect(window, &QWindow::visibleChanged, window, [] { std::fputs("hidden", stderr); });
    std::exit(0);
}

TEST(LibraryEngineDeathTest, HidesWindowsAtExit)
{
    EXPECT_EXIT(exitWithAWindow(), testing::ExitedWithCode(0), "^hidden$");
}

} // namespace
} // namespace TQFoundation
