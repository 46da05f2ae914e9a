#include "TextMeasurement.h"

#include <QtCore/qstring.h>
#include <QtGui/qfont.h>
#include <QtGui/qfontmetrics.h>
#include <QtGui/qtextlayout.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace TQFoundation {
namespace {

struct Line
{
    double width = 0;
    double ascent = 0;
    double descent = 0;
};

std::vector<Line> layOut(const QString &text, const QFont &font)
{
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    QTextLayout layout(text, font);
    layout.setTextOption(option);

    std::vector<Line> lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(0);
        lines.push_back({line.naturalTextWidth(), line.ascent(), line.descent()});
    }
    layout.endLayout();
    return lines;
}

// QTextLayout overflows its 26.6 fixed point at 33,554,432 points, so long lines are halved. The characters around each
// cut are measured together and apart, which accounts for shaping across it.
Line longLine(const QString &text, const QFont &font, qsizetype limit)
{
    constexpr qsizetype context = 32;
    if (text.size() <= limit)
        return layOut(text, font).front();
    const auto width = [&font](const QString &part) { return layOut(part, font).front().width; };
    qsizetype middle = text.size() / 2;
    if (text[middle].isLowSurrogate())
        ++middle;
    const Line left = longLine(text.first(middle), font, limit);
    const Line right = longLine(text.sliced(middle), font, limit);
    const QString before = text.sliced(middle - context, context);
    const QString after = text.sliced(middle, context);
    const double seam = width(before + after) - width(before) - width(after);
    return {left.width + right.width + seam, std::max(left.ascent, right.ascent),
            std::max(left.descent, right.descent)};
}

std::vector<Line> linesOf(QString text, const QFont &font)
{
    text.replace(u'\n', QChar::LineSeparator);
    // Safe even if each character is 16 times as wide as high.
    const auto limit = std::max<qsizetype>(128, std::llround(2e6 / std::max(1.0, QFontMetricsF(font).height())));
    const QStringList parts = text.split(QChar::LineSeparator);
    if (std::ranges::all_of(parts, [limit](const QString &part) { return part.size() <= limit; }))
        return layOut(text, font);
    std::vector<Line> lines;
    for (const QString &part : parts)
        lines.push_back(longLine(part, font, limit));
    return lines;
}

} // namespace

QSizeF sizeOfString(const QString &string, const QFont &font)
{
    const double leading = QFontMetricsF(font).leading();
    double width = 0;
    double bottom = -leading;
    for (const Line &line : linesOf(string, font)) {
        width = std::max(width, line.width);
        // QPainter and QML's Text begin each line at a whole point.
        bottom = std::ceil(bottom + leading) + line.ascent + line.descent;
    }
    return {width, bottom};
}

double widthOfString(const QString &string, const QFont &font)
{
    return sizeOfString(string, font).width();
}

double heightOfString(const QString &string, const QFont &font)
{
    return sizeOfString(string, font).height();
}

} // namespace TQFoundation
