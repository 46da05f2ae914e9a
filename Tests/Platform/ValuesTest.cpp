#include <TQFoundation/Color.h>
#include <TQFoundation/TQApp.h>

#include <QtCore/qdebug.h>

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
    EXPECT_EQ(written(TQApp::fir), QStringLiteral("TQApp(fir)"));
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

} // namespace
} // namespace TQFoundation
