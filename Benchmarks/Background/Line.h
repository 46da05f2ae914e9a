#pragma once

#include <QtCore/qbytearray.h>
#include <QtCore/qfile.h>
#include <QtGui/qpainter.h>
#include <QtGui/qpainterpath.h>
#include <QtGui/qpen.h>

#include <algorithm>

/// The line that all alternatives draw, read from SVG path data: "M x y C x y x y x y … Z", in points.
struct Line
{
    explicit Line(const QString &file)
    {
        QFile data(file);
        if (!data.open(QIODevice::ReadOnly))
            qFatal("cannot read the line");
        svg = QString::fromLatin1(data.readAll()).trimmed();
        QList<double> numbers;
        const QStringList words = svg.split(u' ');
        for (const QString &word : words) {
            bool isNumber = false;
            const double number = word.toDouble(&isNumber);
            if (isNumber)
                numbers += number;
        }
        path.moveTo(numbers.value(0), numbers.value(1));
        for (qsizetype at = 2; at + 5 < numbers.size(); at += 6) {
            path.cubicTo(numbers[at], numbers[at + 1], numbers[at + 2], numbers[at + 3], numbers[at + 4],
                         numbers[at + 5]);
        }
        path.closeSubpath();
        length = path.length();
    }

    /// Strokes the line up to a share of its length, with the width and opacity of the background.
    void stroke(QPainter &painter, double strokeEnd, double opacity) const
    {
        if (strokeEnd <= 0)
            return;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(opacity);
        QPen pen(QColor(0, 0, 0, 51), 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
        pen.setMiterLimit(10);
        if (strokeEnd < 1)
            pen.setDashPattern({strokeEnd * length / 2, length}); // in widths of the pen
        painter.strokePath(path, pen);
    }

    QString svg;
    QPainterPath path;
    double length = 0;
};

/// Opacity and stroke end at a time of the ten-second cycle.
struct Moment
{
    explicit Moment(double seconds)
        : opacity(seconds < 1 ? seconds : std::clamp(1 - (seconds - 9.2), 0.0, 1.0)),
          strokeEnd(std::clamp(seconds / 9, 0.0, 1.0))
    {}

    double opacity;
    double strokeEnd;
};
