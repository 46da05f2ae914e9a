// BackgroundKernels KERNEL LINE LOTTIE: draws the 600 frames of a cycle, in virtual time, each whole, into one buffer
// of 1170 by 2532 pixels, and prints the CPU time and how much ink the middle frame holds as one line of JSON. Nothing
// is shown. Every kernel draws the line of the file LINE, or the animation of the file LOTTIE.

#include "Line.h"

#include <QtCore/qstring.h>
#include <QtCore/qtextstream.h>
#include <QtGui/qimage.h>

#include <cairo.h>
#include <rlottie_capi.h>

#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr int width = 1170;
constexpr int height = 2532;
constexpr int frameCount = 600;
constexpr double scale = 3;

using Pixels = std::vector<std::uint32_t>; // premultiplied ARGB, row by row

/// Draws the frame of that number over transparent pixels.
using Kernel = std::function<void(int frame, Pixels &pixels)>;

Moment momentOf(int frame)
{
    return Moment(frame / 60.0);
}

// The library's own coverage code belongs here.
Kernel ours(const Line &)
{
    return nullptr;
}

Kernel withQPainter(const Line &line)
{
    return [line](int frame, Pixels &pixels) {
        QImage image(reinterpret_cast<uchar *>(pixels.data()), width, height, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.scale(scale, scale);
        const Moment moment = momentOf(frame);
        line.stroke(painter, moment.strokeEnd, moment.opacity);
    };
}

Kernel withCairo(const Line &line)
{
    return [line](int frame, Pixels &pixels) {
        std::ranges::fill(pixels, 0);
        cairo_surface_t *surface = cairo_image_surface_create_for_data(reinterpret_cast<unsigned char *>(pixels.data()),
                                                                       CAIRO_FORMAT_ARGB32, width, height, width * 4);
        cairo_t *context = cairo_create(surface);
        cairo_scale(context, scale, scale);
        const QPainterPath::Element start = line.path.elementAt(0);
        cairo_move_to(context, start.x, start.y);
        for (int at = 1; at + 2 < line.path.elementCount(); at += 3) {
            const QPainterPath::Element one = line.path.elementAt(at);
            const QPainterPath::Element two = line.path.elementAt(at + 1);
            const QPainterPath::Element end = line.path.elementAt(at + 2);
            cairo_curve_to(context, one.x, one.y, two.x, two.y, end.x, end.y);
        }
        cairo_close_path(context);
        const Moment moment = momentOf(frame);
        const double dashes[] = {moment.strokeEnd * line.length, 2 * line.length};
        if (moment.strokeEnd < 1)
            cairo_set_dash(context, dashes, 2, 0);
        cairo_set_line_width(context, 2);
        cairo_set_miter_limit(context, 10);
        cairo_set_source_rgba(context, 0, 0, 0, 0.2 * moment.opacity);
        if (moment.strokeEnd > 0)
            cairo_stroke(context);
        cairo_destroy(context);
        cairo_surface_destroy(surface);
    };
}

Kernel withRlottie(const QString &file)
{
    const std::shared_ptr<Lottie_Animation> animation(lottie_animation_from_file(file.toLocal8Bit().constData()),
                                                      lottie_animation_destroy);
    return [animation](int frame, Pixels &pixels) {
        lottie_animation_render(animation.get(), static_cast<std::size_t>(frame), pixels.data(), width, height,
                                width * 4);
    };
}

double cpuTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 4)
        qFatal("BackgroundKernels KERNEL LINE LOTTIE");
    const QString name = QString::fromLocal8Bit(argv[1]);
    const Line line(QString::fromLocal8Bit(argv[2]));
    const Kernel kernel = name == u"ours" ? ours(line)
        : name == u"qpainter"             ? withQPainter(line)
        : name == u"cairo"                ? withCairo(line)
        : name == u"rlottie"              ? withRlottie(QString::fromLocal8Bit(argv[3]))
                                          : nullptr;
    if (!kernel)
        return 3; // not there
    Pixels pixels(static_cast<std::size_t>(width) * height);
    kernel(frameCount / 2, pixels);
    double ink = 0;
    for (const std::uint32_t pixel : pixels)
        ink += (pixel >> 24) / 255.0;
    const double before = cpuTime();
    for (int frame = 0; frame < frameCount; ++frame)
        kernel(frame, pixels);
    QTextStream(stdout) << "{\"kernel\": \"" << name << "\", \"process\": " << cpuTime() - before
                        << ", \"ink\": " << ink << "}\n";
    return 0;
}
