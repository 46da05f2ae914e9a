#include "RecordingPlatform.h"
#include "Scenes.h"

#include <QtCore/qdebug.h>
#include <QtCore/qmetaobject.h>
#include <QtCore/qregularexpression.h>

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

template <typename Value>
QString written(const Value &value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

TEST(Scene, NamesItsActivationStates)
{
    EXPECT_STREQ(QMetaEnum::fromType<ActivationState>().valueToKey(static_cast<int>(ActivationState::background)),
                 "background");
}

TEST(Scene, WritesItsWindowsToDebug)
{
    QWindow window;
    const Scene scene = Testing::scene(ActivationState::foregroundActive, {&window}, &window);
    static const QRegularExpression expected(QStringLiteral(
        R"(\AScene\([\w:]*foregroundActive, isWindowScene, QList\(SceneWindow\(QWindow\(0x[0-9a-f]+\), isKey\)\)\)\z)"));
    EXPECT_TRUE(expected.match(written(scene)).hasMatch()) << written(scene).toStdString();
    EXPECT_EQ(written(SceneWindow{}), QStringLiteral("SceneWindow(QWindow(0x0))"));

    QString text;
    QDebug(&text) << SceneWindow{} << SceneWindow{} << 1;
    EXPECT_EQ(text.trimmed(), QStringLiteral("SceneWindow(QWindow(0x0)) SceneWindow(QWindow(0x0)) 1"));
    text.clear();
    QDebug(&text) << Scene{} << Scene{} << 1;
    static const QRegularExpression unattached(QStringLiteral(R"(\A(Scene\([\w:]*unattached, QList\(\)\) ){2}1\s*\z)"));
    EXPECT_TRUE(unattached.match(text).hasMatch()) << text.toStdString();
}

TEST(Scene, IsEqualIfAllMembersAre)
{
    QWindow window;
    QWindow other;
    const Scene scene = Testing::scene(ActivationState::foregroundActive, {&window}, &window);
    EXPECT_EQ(scene, Testing::scene(ActivationState::foregroundActive, {&window}, &window));
    EXPECT_NE(scene, Testing::scene(ActivationState::background, {&window}, &window));
    EXPECT_NE(scene, Testing::scene(ActivationState::foregroundActive, {&window}));
    EXPECT_NE(scene, Testing::scene(ActivationState::foregroundActive, {&other}, &other));
}

TEST(Platform, ReturnsPreviousPlatformWhenAnotherIsInstalled)
{
    auto first = std::make_unique<Testing::RecordingPlatform>();
    Platform *const firstAddress = first.get();
    const auto standard = installPlatform(std::move(first));
    ASSERT_TRUE(standard);
    EXPECT_EQ(&platform(), firstAddress);
    EXPECT_EQ(installPlatform(nullptr).get(), firstAddress);
    EXPECT_NE(&platform(), standard.get()) << "null installs a new default platform";
    EXPECT_NE(&platform(), firstAddress);
}

} // namespace
} // namespace TQFoundation
