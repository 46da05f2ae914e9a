// BackgroundWindow ALTERNATIVE SECONDS LINE [LOTTIE]: shows the animated line in a window, warms up for a second,
// measures for SECONDS of real time, and prints the cost as one line of JSON.
//
// LINE is a file with the path data of the line. `ours` writes it and the others read it, so that all draw the same
// line. LOTTIE is the same line as a Lottie animation. `ours-20` shows twenty backgrounds. `ticks` prints the cost of
// replacing a line by the next. `host` draws all the time, `host-1` does so beside one background.

#include "Line.h"
#include "Memory.h"
#include "ShapeLayer.h"

#include <TQFoundation/AnimationView.h>
#include <TQFoundation/DesktopPlatform.h>

#include <QtCore/qelapsedtimer.h>
#include <QtCore/qtextstream.h>
#include <QtCore/qtimer.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qrasterwindow.h>
#include <QtQml/qqml.h>
#include <QtQuick/qquickpainteditem.h>
#include <QtQuick/qquickview.h>

#include <sys/resource.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <ctime>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

using namespace TQFoundation;

namespace {

constexpr QSize phone(390, 844);
constexpr auto frameTime = std::chrono::nanoseconds(1'000'000'000 / 60);

class Phone final : public DesktopPlatform
{
public:
    QSizeF screenBounds() const override { return phone; }
    double screenScale() const override { return 3; }
};

/// Strokes the whole line in each frame.
class PaintedLine : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(double strokeEnd MEMBER m_strokeEnd NOTIFY strokeEndChanged)

public:
    explicit PaintedLine(QQuickItem *parent = nullptr) : QQuickPaintedItem(parent)
    {
        connect(this, &PaintedLine::strokeEndChanged, this, [this] { update(); });
    }

    void paint(QPainter *painter) override { line->stroke(*painter, m_strokeEnd, 1); }

    static inline const Line *line = nullptr;

Q_SIGNALS:
    void strokeEndChanged();

private:
    double m_strokeEnd = 0;
};

/// The same in a window without a scene.
class RasterLine final : public QRasterWindow
{
public:
    explicit RasterLine(const Line &line) : m_line(line)
    {
        m_clock.start();
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, [this] { update(); });
        m_timer.start(std::chrono::duration_cast<std::chrono::milliseconds>(frameTime));
    }

    std::atomic<int> frames = 0;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(QRect({}, size()), Qt::white);
        const Moment moment(static_cast<double>(m_clock.elapsed() % 10'000) / 1000);
        m_line.stroke(painter, moment.strokeEnd, moment.opacity);
        ++frames;
    }

private:
    const Line &m_line;
    QElapsedTimer m_clock;
    QTimer m_timer;
};

double cpuTime(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

/// Resources that the process has used so far. GUI thread only.
struct Usage
{
    explicit Usage(int framesSoFar) : frames(framesSoFar)
    {
        rusage used{};
        getrusage(RUSAGE_THREAD, &used);
        wakeUps = used.ru_nvcsw;
    }

    double process = cpuTime(CLOCK_PROCESS_CPUTIME_ID); // milliseconds, as is the next
    double main = cpuTime(CLOCK_THREAD_CPUTIME_ID);
    long wakeUps = 0;
    int frames;
};

// Writes the line of the background to a file, for the alternatives.
void writeLine(const AnimationView &view, const QString &file)
{
    QFile data(file);
    if (!view.shapeLayer() || !data.open(QIODevice::WriteOnly))
        qFatal("cannot write the line");
    QTextStream stream(&data);
    const Path &path = view.shapeLayer()->path;
    const auto write = [&](const Point &point) { stream << point.x << ' ' << point.y << ' '; };
    stream << "M ";
    write(path.start);
    for (const CubicCurve &curve : path.curves) {
        stream << "C ";
        write(curve.control1);
        write(curve.control2);
        write(curve.end);
    }
    stream << "Z\n";
}

void measure(const QString &alternative, int seconds, const std::atomic<int> &frames)
{
    using namespace std::chrono_literals;
    QTimer::singleShot(1s, Qt::PreciseTimer, qApp, [&frames, alternative, seconds] {
        QTimer::singleShot(seconds * 1s, Qt::PreciseTimer, qApp, [&frames, alternative, before = Usage(frames.load())] {
            const Usage after(frames.load());
            QTextStream(stdout) << "{\"alternative\": \"" << alternative
                                << "\", \"frames\": " << after.frames - before.frames
                                << ", \"process\": " << after.process - before.process << ", \"main\": "
                                << after.main - before.main
                                // Without the wake-up that ends the measurement.
                                << ", \"wakeUps\": " << after.wakeUps - before.wakeUps - 1
                                << ", \"memory\": " << memory() << "}\n";
            std::_Exit(0);
        });
    });
}

double median(std::vector<double> numbers)
{
    const auto middle = numbers.begin() + numbers.size() / 2;
    std::ranges::nth_element(numbers, middle);
    return *middle;
}

/// Draws a new line every tenth of a second and measures CPU time: of the tick on the GUI thread, and the extra cost on
/// the render thread of the first frame of a line over the frames after it.
class TickMeter
{
public:
    TickMeter(QQuickWindow &window, QObject &view)
    {
        QObject::connect(
            &window, &QQuickWindow::beforeSynchronizing, &window, [this] { m_isFirst = true; }, Qt::DirectConnection);
        QObject::connect(
            &window, &QQuickWindow::frameSwapped, &window, [this] { noteFrame(); }, Qt::DirectConnection);
        QObject::connect(&m_timer, &QTimer::timeout, &window, [this, &view] { tick(view); });
        m_timer.start(100);
    }

private:
    void tick(QObject &view)
    {
        if (m_ticks.size() == 100)
            finish();
        const double before = cpuTime(CLOCK_THREAD_CPUTIME_ID);
        QMetaObject::invokeMethod(&view, "updateTimer");
        m_ticks.push_back(cpuTime(CLOCK_THREAD_CPUTIME_ID) - before);
    }

    // On the render thread, which synchronises the line only after a tick.
    void noteFrame()
    {
        const double now = cpuTime(CLOCK_THREAD_CPUTIME_ID);
        const double used = now - std::exchange(m_before, now);
        const std::scoped_lock lock(m_mutex);
        (std::exchange(m_isFirst, false) ? m_firstFrames : m_otherFrames).push_back(used);
    }

    void finish()
    {
        const std::scoped_lock lock(m_mutex);
        const double tick = median(m_ticks) + median(m_firstFrames) - median(m_otherFrames);
        QTextStream(stdout) << "{\"alternative\": \"ticks\", \"tick\": " << 1000 * tick
                            << ", \"main\": " << 1000 * median(m_ticks) << "}\n";
        std::_Exit(0);
    }

    QTimer m_timer;
    std::vector<double> m_ticks; // milliseconds each, as are the next
    std::mutex m_mutex;
    std::vector<double> m_firstFrames;
    std::vector<double> m_otherFrames;
    bool m_isFirst = false;
    double m_before = 0;
};

/// Limits all alternatives to the same frame rate, because Xvfb has no vsync. Requests further frames on its own if
/// \a swapsAnyway. Counts the frames in \a frames on the render thread.
void paceFrames(QQuickView &view, bool swapsAnyway, std::atomic<int> &frames)
{
    QObject::connect(
        &view, &QQuickWindow::frameSwapped, &view,
        [&view, &frames, swapsAnyway] {
            static auto next = std::chrono::steady_clock::now();
            ++frames;
            next = std::max(next + frameTime, std::chrono::steady_clock::now());
            std::this_thread::sleep_until(next);
            if (swapsAnyway)
                view.update();
        },
        Qt::DirectConnection);
}

void setProperties(QQuickView &view, const QString &alternative, const Line *line, const QString &lottie)
{
    if (const int count = alternative.section(u'-', 1).toInt(); count > 0)
        view.setInitialProperties({{QStringLiteral("count"), count}});
    PaintedLine::line = line;
    if (alternative == u"shapes")
        view.setInitialProperties({{QStringLiteral("line"), line->svg}, {QStringLiteral("length"), line->length}});
    if (alternative == u"lottie")
        view.setInitialProperties({{QStringLiteral("source"), QUrl::fromLocalFile(lottie)}});
}

void showFile(QQuickView &view, const QString &name)
{
    view.setSource(QUrl(u"qrc:/Background/" + name + u".qml"));
    if (view.status() != QQuickView::Ready)
        qFatal("cannot load the alternative");
    view.show();
}

int measureRaster(const Line &line, int seconds)
{
    RasterLine window(line);
    window.resize(phone);
    window.show();
    measure(QStringLiteral("raster"), seconds, window.frames);
    return QGuiApplication::exec();
}

int measureBackground(QQuickView &view, const QString &alternative, int seconds, const QString &file,
                      std::atomic<int> &frames)
{
    showFile(view, QStringLiteral("ours"));
    const QList<QQuickItem *> items = view.rootObject()->childItems();
    QQuickItem *background = *std::ranges::find(items, QStringLiteral("background"), &QObject::objectName);
    auto *animation = qobject_cast<AnimationView *>(background->childItems().value(0));
    if (alternative == u"ours")
        writeLine(*animation, file);
    if (alternative == u"ours-hidden")
        background->setVisible(false);
    if (alternative == u"ticks") {
        const TickMeter meter(view, *animation);
        return QGuiApplication::exec();
    }
    measure(alternative, seconds, frames);
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_SCALE_FACTOR", "3");
    qputenv("QSG_RENDER_LOOP", "threaded");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString alternative = arguments.value(1);
    const int seconds = arguments.value(2).toInt();
    const QString file = arguments.value(3);
    if (seconds <= 0 || file.isEmpty())
        qFatal("BackgroundWindow ALTERNATIVE SECONDS LINE [LOTTIE]");
    installPlatform(std::make_unique<Phone>());
    static std::atomic<int> frames = 0;

    const bool isOurs = alternative.startsWith(u"ours") || alternative == u"ticks";
    const bool isStill = alternative == u"idle" || alternative == u"empty" || alternative == u"rectangle";
    const bool isHost = alternative.startsWith(u"host");
    const std::optional<Line> line = isOurs || isStill || isHost ? std::nullopt : std::optional<Line>(file);
    if (alternative == u"raster")
        return measureRaster(*line, seconds);

    qmlRegisterType<PaintedLine>("Benchmark", 1, 0, "PaintedLine");
    QQuickView view;
    view.resize(phone);
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    setProperties(view, alternative, line ? &*line : nullptr, arguments.value(4));
    if (isHost) {
        QObject::connect(
            &view, &QQuickWindow::frameSwapped, &view, [] { ++frames; }, Qt::DirectConnection);
        QObject::connect(&view, &QQuickWindow::frameSwapped, &view, &QQuickWindow::update, Qt::QueuedConnection);
        showFile(view, QStringLiteral("host"));
        measure(alternative, seconds, frames);
        return QGuiApplication::exec();
    }
    paceFrames(view, isStill && alternative != u"idle", frames);
    if (isOurs)
        return measureBackground(view, alternative, seconds, file, frames);
    showFile(view, alternative == u"empty" ? QStringLiteral("idle") : alternative);
    measure(alternative, seconds, frames);
    return QGuiApplication::exec();
}

#include "Window.moc"
