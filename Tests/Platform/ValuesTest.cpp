#include "Scenes.h"

#include <TQFoundation/Color.h>
#include <TQFoundation/Platform.h>
#include <TQFoundation/TQApp.h>

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

TEST(Values, AreWrittenForADebugger)
{
    EXPECT_EQ(written(TQApp::hazel), QStringLiteral("TQApp(hazel)"));
    EXPECT_EQ(written(Appearance::light), QStringLiteral("light"));
    EXPECT_EQ(written(Appearance::dark), QStringLiteral("dark"));
    EXPECT_EQ(written(Rgba{1, 0.5F, 0, 0.25F}), QStringLiteral("Rgba(1, 0.5, 0, 0.25)"));
    EXPECT_EQ(written(Color(Rgba{1, 0.5F, 0})), QStringLiteral("Color(Rgba(1, 0.5, 0, 1))"));
    EXPECT_EQ(written(Color::label()), QStringLiteral("Color(Rgba(0, 0, 0, 1), Rgba(1, 1, 1, 1))"));
}

TEST(Values, AreWrittenFromAVariantToo)
{
    EXPECT_EQ(written(QVariant::fromValue(TQApp::fir)), QStringLiteral("QVariant(TQFoundation::TQApp, TQApp(fir))"));
}

TEST(Values, WritingOneLeavesTheStreamAsItWas)
{
    QString text;
    QDebug(&text) << TQApp::fir << Color(Rgba{0, 0, 0}) << Appearance::dark << 1;
    EXPECT_EQ(text.trimmed(), QStringLiteral("TQApp(fir) Color(Rgba(0, 0, 0, 1)) dark 1"));
}

TEST(Values, AForcedAppIsWrittenAndStopsNothing)
{
    EXPECT_TRUE(written(TQApp(static_cast<TQApp::Case>(99))).startsWith(QStringLiteral("TQApp(")));
}

TEST(Values, AScenesStateHasItsName)
{
    EXPECT_STREQ(QMetaEnum::fromType<ActivationState>().valueToKey(static_cast<int>(ActivationState::background)),
                 "background");
}

TEST(Values, AScenesWindowsAreWritten)
{
    QWindow window;
    const Scene scene = Testing::scene(ActivationState::foregroundActive, {&window}, &window);
    static const QRegularExpression expected(QStringLiteral(
        R"(\AScene\(.*foregroundActive, isWindowScene, .*SceneWindow\(QWindow\(0x[0-9a-f]+\), isKey\).*\)\z)"));
    EXPECT_TRUE(expected.match(written(scene)).hasMatch()) << written(scene).toStdString();
    EXPECT_EQ(written(SceneWindow{}), QStringLiteral("SceneWindow(QWindow(0x0))"));
}

TEST(Values, ScenesAreEqualWhenEverythingInThemIs)
{
    QWindow window;
    QWindow other;
    const Scene scene = Testing::scene(ActivationState::foregroundActive, {&window}, &window);
    EXPECT_EQ(scene, Testing::scene(ActivationState::foregroundActive, {&window}, &window));
    EXPECT_NE(scene, Testing::scene(ActivationState::background, {&window}, &window));
    EXPECT_NE(scene, Testing::scene(ActivationState::foregroundActive, {&window}));
    EXPECT_NE(scene, Testing::scene(ActivationState::foregroundActive, {&other}, &other));
}

} // namespace
} // namespace TQFoundation
