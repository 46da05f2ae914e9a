// Arbitrary messages of up to 1 MB. Those that layoutCost() accepts are shown in the real composer. None may cost the
// GUI thread more than 500 ms, neither to be shown nor to be laid out again at another width.

#include "LayoutCost.h"
#include "Require.h"

#include <TQFoundation/MailComposer.h>
#include <TQFoundation/Platform.h>

#include <QtGui/qguiapplication.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <fuzzer/FuzzedDataProvider.h>
#include <iostream>
#include <string>

using TQFoundation::layoutCost;
using TQFoundation::maxLayoutCost;
using TQFoundation::Fuzzing::require;

namespace {

constexpr std::size_t maxSize = 1'000'000;

constexpr const char *pieces[] = {
    "x",
    " ",
    "\n",
    "\t",
    "word ",
    "&nbsp;",
    "&#x301;",
    "&#1488;",
    "中",
    "é",
    "😀",
    "א(x)",
    "\xE2\x80\xAB",
    "مرحبا ",
    "नमस्ते ",
    "<p>",
    "</p>",
    "<br>",
    "<div>",
    "</div>",
    "<b>",
    "</b>",
    "<i>",
    "<u>",
    "<big>",
    "<small>",
    "<sub>",
    "<h1>",
    "</h1>",
    "<ul>",
    "</ul>",
    "<ol start=9999>",
    "<li>",
    "<blockquote>",
    "</blockquote>",
    "<pre>",
    "</pre>",
    "<hr>",
    "<center>",
    "<table>",
    "</table>",
    "<table border=9999 cellpadding=9999>",
    "<table align=left width='9999%'>",
    "<tr>",
    "<td>",
    "<td colspan=9>",
    "<td colspan=99>",
    "<td rowspan=99>",
    "<th>",
    "<thead>",
    "<tbody>",
    "<caption>",
    "<img>",
    "<img src=a width=9999 height=9999>",
    "<img align=left>",
    "<a href=x>",
    "<a name=x>",
    "</a>",
    "<font size=7>",
    "<font face=a>",
    "<font face=b>",
    "<font color=red>",
    "<span style='font-size:99px'>",
    "<span style='font-size:1pt'>",
    "<p style='margin:9999px'>",
    "<p style='line-height:9999%'>",
    "<p style='text-indent:9999px'>",
    "<p dir=rtl>",
    "<p style='white-space:pre'>",
    "<p style='white-space:pre-wrap'>",
    "<p style='background-color:#abc'>",
    "<td style='border:99px solid red'>",
    "<td style='padding:9999px'>",
    "<ul style='-qt-list-indent:9999'>",
    "<p style='-qt-block-indent:9999'>",
    "<style>",
    "</style>",
    "*{color:red}",
    "p{margin:1px}",
    ".a,",
    "p,",
    "#a{}",
    "<p class=a>",
    "<p id=a>",
    "<!--",
    "-->",
    "<title>",
    "<head>",
    "<body>",
    "<html>",
    "<dl>",
    "<dt>",
    "<dd>",
    "<s>",
    "<td width='50%'>",
    "<tt>",
    "<sup>",
    "<code>",
    "</span>",
    "</font>",
    "</td>",
    "</tr>",
    "</li>",
};

// Most bytes append a piece. Others repeat what was appended last, or append the next byte itself.
std::string body(FuzzedDataProvider &data)
{
    std::string html;
    while (data.remaining_bytes() > 0 && html.size() < maxSize) {
        const auto operation = data.ConsumeIntegral<std::uint8_t>();
        if (operation < std::size(pieces)) {
            html += pieces[operation];
        } else if (operation < 230) {
            const auto size = std::min<std::size_t>(data.ConsumeIntegralInRange<std::size_t>(1, 255), html.size());
            const std::string last = html.substr(html.size() - size);
            const auto count = std::size_t{1} << data.ConsumeIntegralInRange<unsigned>(0, 16);
            for (std::size_t index = 0; index < count && html.size() + size <= maxSize; ++index)
                html += last;
        } else {
            html += static_cast<char>(data.ConsumeIntegral<std::uint8_t>());
        }
    }
    return html;
}

bool isShown(const QString &html)
{
    return layoutCost(html.toStdU16String()) <= maxLayoutCost;
}

// The longest message that begins with a prefix, repeats a unit and is still shown.
QString fullest(const QString &prefix, const QString &unit)
{
    qsizetype count = 1;
    const auto fits = [&](qsizetype repeats) {
        return prefix.size() + repeats * unit.size() < qsizetype(maxSize) && isShown(prefix + unit.repeated(repeats));
    };
    while (!unit.isEmpty() && fits(2 * count))
        count *= 2;
    for (qsizetype step = count / 2; step > 0; step /= 2)
        count += fits(count + step) ? step : 0;
    return prefix + unit.repeated(count);
}

// Processor time of this thread in milliseconds, so that other programs do not count.
double threadTime()
{
    std::timespec time{};
    require(clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time) == 0);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

struct Cost
{
    double shown;
    double resized;
};

Cost costOf(const QString &html)
{
    QQuickWindow window;
    window.resize(390, 844);
    window.show();
    QCoreApplication::processEvents();
    const auto root = TQFoundation::ViewController::rootOf(&window);
    const double begin = threadTime();
    const auto composer = TQFoundation::platform().makeMailComposer();
    composer->setMessageBody(html, true);
    root->present(composer);
    QCoreApplication::processEvents();
    window.grabWindow();
    const double shown = threadTime();
    window.resize(320, 568);
    QCoreApplication::processEvents();
    window.grabWindow();
    return {shown - begin, threadTime() - shown};
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QSG_RENDER_LOOP", "basic");
    new QGuiApplication(*argc, *argv); // outlives the fuzzer's exit
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    costOf(QStringLiteral("loads the engine, the sheet and its fonts"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const auto prefixSize = data.ConsumeIntegralInRange<std::size_t>(0, 255);
    FuzzedDataProvider prefix(bytes, std::min(prefixSize, size / 2));
    const QString html = fullest(QString::fromStdString(body(prefix)), QString::fromStdString(body(data)));
    const double begin = threadTime();
    const bool hasCost = isShown(html);
    require(threadTime() - begin <= 100);
    if (!hasCost)
        return 0;
    const auto [shown, resized] = costOf(html);
    if (shown > 500 || resized > 500)
        std::cerr << shown << " ms, " << resized << " ms: " << html.left(300).toStdString() << "... " << html.size()
                  << '\n';
    require(shown <= 500 && resized <= 500);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
