#include <TQFoundation/TextMeasurement.h>

#include <QtCore/qsize.h>
#include <QtCore/qstring.h>
#include <QtGui/qfont.h>
#include <QtGui/qfontdatabase.h>
#include <QtGui/qfontmetrics.h>
#include <QtGui/qimage.h>
#include <QtGui/qpainter.h>

#include <gtest/gtest.h>

#include <cmath>

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
    EXPECT_NEAR(height(QStringLiteral("a\nb\nc")), 2 * QFontMetricsF(font).lineSpacing() + line, 1.0 / 32);
}

TEST_F(TextMeasurement, SpacesLinesAsTheFontDoes)
{
    for (const QString &family : QFontDatabase::families()) {
        QFont other(family);
        other.setPixelSize(40);
        const QFontMetricsF metrics(other);
        if (std::abs(heightOfString(QStringLiteral("a"), other) - metrics.height()) > 1.01)
            continue; // another font stands in
        // Hinting may round a line and the font's own figure differently. A layout takes no negative leading.
        EXPECT_NEAR(heightOfString(QStringLiteral("a\na"), other) - heightOfString(QStringLiteral("a"), other),
                    metrics.height() + std::max(0.0, metrics.leading()), 1.01)
            << family.toStdString() << ", whose leading is " << metrics.leading();
        if (HasFailure())
            break;
    }
}

TEST_F(TextMeasurement, StartsALineAtEveryLineBreak)
{
    const double two = height(QStringLiteral("a\nb"));
    EXPECT_GT(two, line);
    for (const char16_t *text : {u"a\r\nb", u"a\rb", u"a\u2028b", u"a\u2029b", u"a\n", u"\na", u"\n"})
        EXPECT_EQ(height(QString::fromUtf16(text)), two);
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
    EXPECT_NEAR(width(joined + QStringLiteral(" abc")), width(QStringLiteral("abc ") + joined), 0.5);
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
