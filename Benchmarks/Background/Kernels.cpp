// BackgroundKernels KERNEL LINE LOTTIE: draws the 600 frames of a cycle in virtual time into a buffer of 1170 by 2532
// pixels, several times, and prints one line of JSON: the median CPU time and the sum of alpha of the middle frame. A
// kernel draws the line of the file LINE or the animation of the file LOTTIE.

#include "Line.h"
#include "StrokeMask.h"

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

using namespace TQFoundation;

namespace {

constexpr int width = 1170;
constexpr int height = 2532;
constexpr int frameCount = 600;
constexpr double scale = 3;

using Pixels = std::vector<std::uint32_t>; // premultiplied ARGB, row by row

/// Draws the frame with the given number over transparent pixels.
using Kernel = std::function<void(int frame, Pixels &pixels)>;

Moment momentOf(int frame)
{
    return Moment(frame / 60.0);
}

/// The library's software backend: computes only newly revealed coverage and paints only changed tiles.
class Ours
{
public:
    explicit Ours(const Line &line)
    {
        const auto point = [&](int at) -> Point {
            const QPainterPath::Element element = line.path.elementAt(at);
            return {scale * element.x, scale * element.y};
        };
        m_path = {point(0), {}, true};
        for (int at = 1; at + 2 < line.path.elementCount(); at += 3)
            m_path.curves.push_back({point(at), point(at + 1), point(at + 2)});
    }

    void operator()(int frame, Pixels &pixels)
    {
        if (frame == 0)
            startAnew(pixels);
        const Moment moment = momentOf(frame);
        m_mask.drawUpTo(moment.strokeEnd * m_length);
        const bool isRecolored = m_opacity != moment.opacity;
        setOpacity(moment.opacity);
        for (auto &[place, tile] : m_mask.tiles()) {
            if (tile.isChanged || isRecolored)
                paint(tile, pixels);
            tile.isChanged = false;
        }
    }

private:
    void startAnew(Pixels &pixels)
    {
        setOpacity(0);
        for (const auto &[place, tile] : m_mask.tiles())
            paint(tile, pixels);
        StrokeGeometry stroke = strokeGeometry(m_path, 2 * scale);
        m_length = stroke.length;
        m_mask = StrokeMask(std::move(stroke), scale);
    }

    void setOpacity(double opacity)
    {
        m_opacity = opacity;
        for (std::size_t covered = 0; covered < m_colors.size(); ++covered) {
            const double alpha = 51 * opacity * static_cast<double>(covered) / StrokeMask::samples;
            m_colors[covered] = static_cast<std::uint32_t>(std::lround(alpha)) << 24;
        }
    }

    void paint(const StrokeMask::Tile &tile, Pixels &pixels)
    {
        const int left = std::max(tile.left, 0);
        const int top = std::max(tile.top, 0);
        const int right = std::min(tile.left + tile.width, width);
        const int bottom = std::min(tile.top + tile.height, height);
        if (left >= right || top >= bottom)
            return;
        if (right - left == tile.width && bottom - top == tile.height) {
            m_mask.paint(tile, m_colors, &pixels[static_cast<std::size_t>(top) * width + left], width);
            return;
        }
        m_edge.assign(static_cast<std::size_t>(tile.width) * tile.height, 0);
        m_mask.paint(tile, m_colors, m_edge.data(), tile.width);
        for (int y = top; y < bottom; ++y) {
            std::copy_n(m_edge.begin() + (y - tile.top) * tile.width + (left - tile.left), right - left,
                        pixels.begin() + y * width + left);
        }
    }

    Path m_path; // in pixels
    double m_length = 0;
    StrokeMask m_mask;
    StrokeMask::Colors m_colors{};
    double m_opacity = 0;
    Pixels m_edge; // a tile that is partly outside the picture
};

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
    const Kernel kernel = name == u"ours" ? Kernel(Ours(line))
        : name == u"qpainter"             ? withQPainter(line)
        : name == u"cairo"                ? withCairo(line)
        : name == u"rlottie"              ? withRlottie(QString::fromLocal8Bit(argv[3]))
                                          : nullptr;
    if (!kernel)
        return 3; // the file is missing
    Pixels pixels(static_cast<std::size_t>(width) * height);
    double ink = 0;
    std::vector<double> cycles;
    // Warm-up: the first cycle clears the picture and fills the caches.
    const auto runCycle = [&](bool counts) {
        const double before = cpuTime();
        for (int frame = 0; frame < frameCount; ++frame) {
            kernel(frame, pixels);
            if (!counts && frame == frameCount / 2) {
                for (const std::uint32_t pixel : pixels)
                    ink += (pixel >> 24) / 255.0;
            }
        }
        if (counts)
            cycles.push_back(cpuTime() - before);
    };
    runCycle(false);
    const double start = cpuTime();
    while (cycles.size() < 5 || cpuTime() - start < 500)
        runCycle(true);
    const auto middle = cycles.begin() + static_cast<std::ptrdiff_t>(cycles.size() / 2);
    std::ranges::nth_element(cycles, middle);
    QTextStream(stdout) << "{\"kernel\": \"" << name << "\", \"process\": " << *middle << ", \"ink\": " << ink << "}\n";
    return 0;
}
