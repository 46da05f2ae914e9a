#include <TQFoundation/TextMeasurement.h>

#include <QtCore/qsize.h>
#include <QtCore/qstring.h>
#include <QtGui/qfont.h>
#include <QtGui/qfontdatabase.h>
#include <QtGui/qfontmetrics.h>
#include <QtGui/qimage.h>
#include <QtGui/qpainter.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

namespace TQFoundation {
namespace {

class TextMeasurement : public testing::Test
{
protected:
    static QFont makeFont()
    {
        QFont font(QStringLiteral("Noto Sans"));
        font.setPointSizeF(17.3);
        font.setHintingPreference(QFont::PreferNoHinting);
        return font;
    }

    // The first and the last row with ink of a text that QPainter draws; null if it draws nothing.
    static std::optional<std::pair<int, int>> inkedRows(const QString &text, const QFont &font)
    {
        QImage image(font.pixelSize(), static_cast<int>(heightOfString(text, font)) + 2 * font.pixelSize(),
                     QImage::Format_Grayscale8);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(font);
        painter.drawText(image.rect(), Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, text);
        painter.end();
        std::optional<std::pair<int, int>> rows;
        for (int y = 0; y < image.height(); ++y) {
            if (std::any_of(image.constScanLine(y), image.constScanLine(y) + image.width(),
                            [](uchar p) { return p < 255; }))
                rows = {rows ? rows->first : y, y};
        }
        return rows;
    }

    static std::unique_ptr<QObject> qmlText(QQmlEngine &engine, const QString &text, const QFont &font)
    {
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nText { textFormat: Text.PlainText }", {});
        std::unique_ptr<QObject> item(
            component.createWithInitialProperties({{QStringLiteral("text"), text}, {QStringLiteral("font"), font}}));
        EXPECT_TRUE(item);
        return item;
    }

    double width(const QString &text) const { return widthOfString(text, font); }
    double height(const QString &text) const { return heightOfString(text, font); }

    const QFont font = makeFont();
    const double line = QFontMetricsF(font).height();
};

TEST_F(TextMeasurement, IsOneLineHighForEmptyStrings)
{
    EXPECT_EQ(width(QString()), 0);
    EXPECT_EQ(width(QStringLiteral("")), 0);
    EXPECT_DOUBLE_EQ(height(QString()), line);
}

TEST_F(TextMeasurement, SizeIsWidthAndHeight)
{
    for (const char16_t *text :
         {u"", u"Wave", u"two\nlines", u"汉字", u"مرحبا", u"👩‍👩‍👧", u"e\u0301", u" \t "}) {
        const QString string = QString::fromUtf16(text);
        EXPECT_EQ(sizeOfString(string, font), QSizeF(width(string), height(string)));
    }
}

TEST_F(TextMeasurement, WidthIsAdvancePlusLastOverhang)
{
    const QFontMetricsF metrics(font);
    for (const char16_t *text : {u"Wave", u"AVAVAV", u"a b", u"汉字", u"مرحبا بكم"}) {
        const QString string = QString::fromUtf16(text);
        EXPECT_GE(width(string), metrics.horizontalAdvance(string) - 1.0 / 32);
        EXPECT_LE(width(string), metrics.horizontalAdvance(string) + 2);
    }
    EXPECT_NEAR(width(QStringLiteral("Wave")), metrics.horizontalAdvance(QStringLiteral("Wave")), 1.0 / 32);
}

TEST_F(TextMeasurement, IsNotRounded)
{
    EXPECT_NE(width(QStringLiteral("Wave")), std::round(width(QStringLiteral("Wave"))));
    EXPECT_NE(line, std::round(line));
    EXPECT_DOUBLE_EQ(height(QStringLiteral("Wave")), line);
    EXPECT_DOUBLE_EQ(height(QStringLiteral("a\nb\nc")), 2 * std::ceil(QFontMetricsF(font).lineSpacing()) + line);
}

TEST_F(TextMeasurement, HeightIsThatOfQPainter)
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const int sizes[] = {7, 12, 15, 33, 64};
    int lines = 0;
    for (const QString &family : QFontDatabase::families()) {
        QFont other(family);
        for (const int size : sizes) {
            other.setPixelSize(size);
            painter.setFont(other);
            for (const int count : {1, 2, lines++ % 50 + 1}) {
                const QString text = QStringList(count, QStringLiteral("x")).join(u'\n');
                const QRectF expected = painter.boundingRect(QRectF(), Qt::AlignLeft | Qt::AlignTop, text);
                ASSERT_NEAR(heightOfString(text, other), expected.height(), 1.0 / 32)
                    << family.toStdString() << ", " << size << " pixels, " << count << " lines";
            }
        }
    }
}

TEST_F(TextMeasurement, HeightIsThatOfInkedPixels)
{
    const int sizes[] = {7, 12, 15, 33, 64};
    int number = 0;
    for (const QString &family : QFontDatabase::families()) {
        QFont other(family);
        other.setPixelSize(sizes[number % 5]);
        const QString letter = QStringLiteral("x");
        const QString text = QStringList(number++ % 50 + 1, letter).join(u'\n');
        const auto first = inkedRows(letter, other);
        const auto all = inkedRows(text, other);
        if (!first)
            continue;
        ASSERT_TRUE(all);
        EXPECT_EQ(all->first, first->first) << family.toStdString();
        EXPECT_EQ(all->second - first->second, heightOfString(text, other) - heightOfString(letter, other))
            << family.toStdString() << ", " << other.pixelSize() << " pixels, " << text.count(u'\n') + 1 << " lines";
    }
}

TEST_F(TextMeasurement, StacksLinesAsQmlTextDoes)
{
    QQmlEngine engine;
    for (const char *family : {"DejaVu Sans", "Noto Sans", "Noto Serif"}) {
        for (const int count : {1, 2, 20}) {
            QFont other(QLatin1String(family), -1);
            other.setPixelSize(15);
            const QString text = QStringList(count, QStringLiteral("Wave")).join(u'\n');
            EXPECT_EQ(std::ceil(heightOfString(text, other)), qmlText(engine, text, other)->property("contentHeight"));
        }
    }
}

// Without breaks at the end: newer versions of Qt leave out the empty last line.
TEST_F(TextMeasurement, BreaksLinesWhereQmlTextDoes)
{
    QQmlEngine engine;
    for (const char16_t *text :
         {u"a\nb", u"a\r\nb", u"a\n\rb", u"a\rb", u"a\u2028b", u"a\u2029b", u"a\u0085b", u"a\vb", u"a\fb",
          u"a\x1c"
          u"b",
          u"a\x1d"
          u"b",
          u"a\x1e"
          u"b",
          u"a\x1f"
          u"b",
          u"a\u2029", u"a\r", u"\na", u"\r", u"\u2029"}) {
        const QString string = QString::fromUtf16(text);
        const auto item = qmlText(engine, string, font);
        const auto name = string.toUtf8().toPercentEncoding().toStdString();
        EXPECT_EQ(std::ceil(height(string)), item->property("contentHeight")) << name;
        EXPECT_NEAR(width(string), item->property("contentWidth").toDouble(), 1.0 / 32) << name;
    }
}

TEST_F(TextMeasurement, BreaksLinesAtLineFeedAndLineSeparatorOnly)
{
    const double two = height(QStringLiteral("a\nb"));
    for (const char16_t *text : {u"a\r\nb", u"a\u2028b", u"a\n", u"\na", u"\n"})
        EXPECT_EQ(height(QString::fromUtf16(text)), two);
    for (const char16_t *text : {u"a\rb", u"a\u2029b", u"a\r"})
        EXPECT_EQ(height(QString::fromUtf16(text)), line);
}

TEST_F(TextMeasurement, MeasuresLinesBeyondFixedPoint)
{
    QFont huge = font;
    huge.setPixelSize(2000);
    const double four = widthOfString(QStringLiteral("WAVE"), huge);
    const double pitch = (widthOfString(QStringLiteral("WAVE").repeated(100), huge) - four) / 99;
    constexpr int words = 20000;
    const QString text = QStringLiteral("WAVE").repeated(words);
    EXPECT_NEAR(widthOfString(text, huge) / (four + pitch * (words - 1)), 1, 1e-9);
    EXPECT_EQ(heightOfString(text, huge), heightOfString(QStringLiteral("W"), huge));
    EXPECT_EQ(widthOfString(QStringLiteral("a\n") + text + QStringLiteral("\nb"), huge), widthOfString(text, huge));
    EXPECT_EQ(heightOfString(text + u'\n' + text, huge), heightOfString(QStringLiteral("W\nW"), huge));
    const double mixed = heightOfString(QStringLiteral("W汉"), huge); // in two fonts
    EXPECT_GT(mixed, heightOfString(QStringLiteral("W"), huge));
    EXPECT_EQ(heightOfString(text + u'汉', huge), mixed);
    EXPECT_EQ(heightOfString(u'汉' + text, huge), mixed);
}

TEST_F(TextMeasurement, MeasuresShortTextInAHugeFont)
{
    QFont huge = font;
    huge.setPixelSize(100'000);
    EXPECT_NEAR(widthOfString(QString(40, u'n'), huge) / widthOfString(QStringLiteral("n"), huge), 40, 0.5);
}

TEST_F(TextMeasurement, ShapesAcrossThePartsOfLongLines)
{
    // A huge font makes the parts short.
    QFont huge = font;
    huge.setPixelSize(10000);
    for (const char16_t *text : {u"AVAfi ", u"مرحبا ", u"汉字", u"e\u0301👩‍👩‍👧"}) {
        const QString word = QString::fromUtf16(text);
        const double ten = widthOfString(word.repeated(10), huge);
        const double pitch = (ten - widthOfString(word, huge)) / 9;
        EXPECT_NEAR(widthOfString(word.repeated(210), huge) / (ten + 200 * pitch), 1, 1e-6) << word.toStdString();
    }
}

TEST_F(TextMeasurement, WidthIsThatOfTheWidestLine)
{
    EXPECT_EQ(width(QStringLiteral("i\nWave\nll")), width(QStringLiteral("Wave")));
    EXPECT_EQ(width(QStringLiteral("\n\n")), 0);
}

TEST_F(TextMeasurement, CountsTrailingBlanks)
{
    EXPECT_GT(width(QStringLiteral("a ")), width(QStringLiteral("a")));
    EXPECT_GT(width(QStringLiteral(" ")), 0);
    EXPECT_EQ(width(QStringLiteral("wide   \na")), width(QStringLiteral("wide   ")));
}

TEST_F(TextMeasurement, DoesNotWrapLongLines)
{
    EXPECT_DOUBLE_EQ(height(QStringLiteral("word ").repeated(5000)), line);
}

TEST_F(TextMeasurement, GivesCombiningMarksNoWidth)
{
    EXPECT_NEAR(width(QStringLiteral("e\u0301")), width(QStringLiteral("\u00e9")), 0.5);
    EXPECT_NEAR(width(QStringLiteral("x\u0323\u0302")), width(QStringLiteral("x")), 0.5);
}

TEST_F(TextMeasurement, MeasuresEmojiSequencesAsOne)
{
    const double one = width(QStringLiteral("👩"));
    EXPECT_GT(one, 0);
    EXPECT_NEAR(width(QStringLiteral("👩‍👩‍👧")), one, one / 4);
    EXPECT_NEAR(width(QStringLiteral("🇩🇪")), one, one / 4);
}

TEST_F(TextMeasurement, CountsFallbackFontsWithTheirHeight)
{
    EXPECT_GE(height(QStringLiteral("a汉")), line);
    EXPECT_GE(height(QStringLiteral("汉")), QFontMetricsF(font).boundingRect(QStringLiteral("汉")).height());
}

TEST_F(TextMeasurement, ShapesRightToLeftText)
{
    const QString joined = QStringLiteral("بيت");
    EXPECT_LT(width(joined), width(QStringLiteral("ب")) + width(QStringLiteral("ي")) + width(QStringLiteral("ت")));
    const double before = width(QStringLiteral("abc ") + joined);
    EXPECT_NEAR(width(joined + QStringLiteral(" abc")), before, 0.02 * before);
}

TEST_F(TextMeasurement, ContainsTheDrawnPixels)
{
    const QString text = QStringLiteral("nnnn\nmm");
    const QSizeF size = sizeOfString(text, font);
    QImage image(400, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawText(QRectF(0, 0, 400, 200), Qt::AlignLeft | Qt::AlignTop, text);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (x > size.width() + 1 || y > size.height() + 1) {
                ASSERT_EQ(qAlpha(image.pixel(x, y)), 0) << x << ',' << y;
            }
        }
    }
}

TEST_F(TextMeasurement, MeasuresHostileText)
{
    QString nul = QStringLiteral("ab");
    nul[1] = QChar::Null;
    EXPECT_GE(width(nul), 0);
    EXPECT_GE(width(QString(QChar(0xD800))), 0);
    EXPECT_GT(width(QStringLiteral("<b>a</b>")), width(QStringLiteral("a"))) << "markup is text";
    EXPECT_GE(width(QString(1000, QChar(0x202E))), 0);
}

} // namespace
} // namespace TQFoundation
