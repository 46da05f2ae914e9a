#include "TextMeasurement.h"

#include <QtCore/qstring.h>
#include <QtGui/qfont.h>
#include <QtGui/qtextlayout.h>

#include <algorithm>

namespace TQFoundation {
namespace {

// QTextLayout breaks lines at this separator only.
QString withLineSeparators(QString string)
{
    string.replace(QStringLiteral("\r\n"), QString(QChar::LineSeparator));
    for (const QChar lineBreak : {QChar(u'\n'), QChar(u'\r'), QChar(QChar::ParagraphSeparator)})
        string.replace(lineBreak, QChar::LineSeparator);
    return string;
}

} // namespace

QSizeF sizeOfString(const QString &string, const QFont &font)
{
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    QTextLayout layout(withLineSeparators(string), font);
    layout.setTextOption(option);

    QSizeF size(0, 0);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(0);
        // QTextLine::height() would round each line up to a whole point.
        const double leading = line.lineNumber() == 0 ? 0 : std::max(0.0, line.leading());
        size.rwidth() = std::max(size.width(), line.naturalTextWidth());
        size.rheight() += leading + line.ascent() + line.descent();
    }
    layout.endLayout();
    return size;
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
