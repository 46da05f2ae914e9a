#include "QmlValue.h"
#include "RecordingPlatform.h"

#include <TQFoundation/Color.h>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::qmlValue;

constexpr Color red(Rgba{1, 0, 0});

TEST(QmlColor, ResolvesForLightAndDark)
{
    const InstalledRecordingPlatform platform;
    EXPECT_EQ(qmlValue("color", "TQApp.hazel.tintColor.light").value<QColor>(), QColor(Qt::black));
    EXPECT_EQ(qmlValue("color", "TQApp.hazel.tintColor.dark").value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(qmlValue("color", "TQApp.hazel.tintColor.resolved(true)").value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(qmlValue("color", "TQApp.birch.tintColor.resolved(false)").value<QColor>().rgb(), qRgb(148, 23, 81));
    EXPECT_EQ(qmlValue("tqColor", "TQApp.fir.tintColor").value<Color>(), Color::systemGray());
}

TEST(QmlColor, FindsLegibleColorsForEachBackground)
{
    const InstalledRecordingPlatform platform;
    for (const char *background : {"white", "black"}) {
        const auto legible =
            qmlValue("color", QByteArray("TQApp.fir.tintColor.legibleOn('") + background + "', false)").value<QColor>();
        const auto isWhite = QByteArray(background) == "white";
        EXPECT_EQ(legible.lightnessF() < 0.5, isWhite) << background;
    }
}

// The types with a colour property, and that property.
class ColorProperty : public testing::TestWithParam<std::pair<std::string, std::string>>
{
protected:
    ColorProperty()
    {
        engine.setOutputWarningsToStandardError(false);
        QObject::connect(&engine, &QQmlEngine::warnings, &engine, [this](const QList<QQmlError> &list) {
            for (const QQmlError &error : list)
                errors += error.toString();
        });
    }

    // The object of a host whose colour property is bound to the expression.
    std::unique_ptr<QObject> create(const QByteArray &expression)
    {
        QQmlComponent component(&engine);
        const QByteArray descriptions = QByteArray(type()) == "TQGuide" ? "descriptions: []" : "";
        component.setData("import QtQuick\nimport TQFoundation\n" + QByteArray(type())
                              + " { property color other: 'red';" + "property string text: '#f00'; " + name() + ": "
                              + expression + "; " + descriptions + " }",
                          QUrl(QStringLiteral("qrc:/Host.qml")));
        std::unique_ptr<QObject> object(component.create());
        EXPECT_TRUE(object) << component.errorString().toStdString();
        return object;
    }

    static const char *type() { return GetParam().first.c_str(); }
    static const char *name() { return GetParam().second.c_str(); }

    const InstalledRecordingPlatform platform;
    QQmlEngine engine;
    QStringList errors;
};

TEST_P(ColorProperty, AcceptsTqColor)
{
    const auto object = create("TQApp.elm.tintColor");
    EXPECT_EQ(object->property(name()).value<Color>(), Color::systemRed());
    EXPECT_EQ(errors, QStringList());
}

TEST_P(ColorProperty, AcceptsColorsAndTheirTextForms)
{
    for (const char *expression : {"'red'", "'#f00'", "'#ffff0000'", "Qt.rgba(1, 0, 0, 1)", "other", "text"}) {
        const auto object = create(expression);
        EXPECT_EQ(object->property(name()).value<Color>(), red) << expression;
        EXPECT_EQ(errors, QStringList());
    }
}

TEST_P(ColorProperty, FollowsAColorBinding)
{
    const auto object = create("other");
    object->setProperty("other", QColor(Qt::blue));
    EXPECT_EQ(object->property(name()).value<Color>(), Color(Rgba{0, 0, 1}));
}

TEST_P(ColorProperty, RejectsOtherValuesWithAnErrorThatNamesIt)
{
    for (const char *expression : {"'reddish'", "''", "3", "true", "null", "undefined", "({})", "[]", "TQApp.hazel"}) {
        errors.clear();
        const auto object = create(expression);
        EXPECT_EQ(object->property(name()).value<Color>(), Color()) << expression;
        ASSERT_EQ(errors.size(), 1) << expression;
        EXPECT_TRUE(errors.first().startsWith(QStringLiteral("qrc:/Host.qml:3:1: ")));
        EXPECT_TRUE(errors.first().endsWith(QLatin1String(name()) + u": expected a tqColor or a color"));
    }
}

TEST_P(ColorProperty, KeepsItsColorAfterAnError)
{
    const auto object = create("'red'");
    object->setProperty(name(), QStringLiteral("reddish"));
    EXPECT_EQ(object->property(name()).value<Color>(), red);
    EXPECT_EQ(errors.size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Types, ColorProperty,
                         testing::Values(std::pair("TQGuide", "tintColor"),
                                         std::pair("TQRandomBackgroundView", "color")));

} // namespace
} // namespace TQFoundation
