// Arbitrary messages of up to 1 MB. Those that isCheapToLayOut() accepts are shown in the real composer. None may cost
// the GUI thread more than 500 ms, neither to be shown nor to be laid out again at another width.

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
#include <string_view>
#include <vector>

using TQFoundation::Fuzzing::require;

namespace {

constexpr std::size_t maxSize = 1'000'000;

// Empty text closes the innermost tag that is open.
constexpr const char *pieces[] = {
    "",
    "",
    "",
    "x",
    " ",
    "\n",
    "\t",
    "word ",
    "&nbsp;",
    "&euml;",
    "&zwj;",
    "&there4;",
    "&#769;",
    "&#x301;",
    "中",
    "한",
    "é",
    "я",
    "😀",
    "א(x)",
    "\xE2\x80\xAB",
    "مرحبا ",
    "नमस्ते ",
    "<br>",
    "<hr>",
    "<img>",
    "<img src=a width=999 height=999>",
    "<meta name=\"qrichtext\" content=\"1\">",
    "<p>",
    "<p dir=rtl align=center>",
    "<p style='margin:99px'>",
    "<p style='text-indent:99px'>",
    "<p style='-qt-block-indent:99'>",
    "<p style='background-color:#abc'>",
    "</p>",
    "<li>",
    "<li style='list-style-type:decimal'>",
    "<div>",
    "<div style='white-space: pre-wrap'>",
    "<div style='padding:99px; width:1px; height:99px'>",
    "<b>",
    "<i>",
    "<u>",
    "<code>",
    "<a href=x>",
    "<span>",
    "<span style='font-size:99px'>",
    "<span style='font-size:19px; vertical-align:sub'>",
    "<span style='font-size:0px'>",
    "<span style='font-family:a; color:red'>",
    "<span style='font-family:serif; font-weight:700'>",
    "<span style='text-decoration:line-through'>",
    "<h1>",
    "<h6>",
    "<ul>",
    "<ul style='-qt-list-indent:99'>",
    "<ol start=999 type=i>",
    "<blockquote>",
    "<pre>",
    "<table>",
    "<table><tr><td>",
    "<table border=999 cellpadding=999 cellspacing=999>",
    "<table width=999%>",
    "<table><thead><tr><th>",
    "<tbody>",
    "<tr>",
    "<tr><td>",
    "<td>",
    "<td style='border-width:99px; padding:99px' width=50%>",
    "<th width=999%>",
    "</td><td>",
    "</td></tr><tr><td>",
    "<html><head>",
    "<body bgcolor=red>",
    "<title>",
    "<style type=\"text/css\">\np, li { white-space: pre-wrap; }\n</style>",
    "<style>\nhr { height: 1px; border-width: 0; }\n</style>",
    "<td colspan=99>",
    "<p style='white-space:pre'>",
};

// Appends \a piece, and adds its unclosed tags to \a open.
void append(std::string &html, std::vector<std::string> &open, std::string_view piece)
{
    if (piece.empty() && !open.empty()) {
        html += "</" + open.back() + '>';
        open.pop_back();
    }
    html += piece;
    for (auto begin = piece.find('<'); begin < piece.size(); begin = piece.find('<', begin + 1)) {
        const auto tag = piece.substr(begin + 1, piece.find_first_of(" >", begin) - begin - 1);
        const auto name = tag.substr(tag.starts_with('/') ? 1 : 0);
        constexpr std::string_view unnested[] = {"br", "hr", "img", "li", "meta", "p", "style"};
        if (std::ranges::find(unnested, name) != std::end(unnested))
            continue;
        if (name == tag)
            open.emplace_back(name);
        else if (!open.empty())
            open.pop_back();
    }
}

// Most bytes append a piece. Others repeat what was appended last, or append the next byte itself.
std::string body(FuzzedDataProvider &data)
{
    std::string html;
    std::vector<std::string> open;
    const bool isComplete = data.ConsumeBool();
    while (data.remaining_bytes() > 0 && html.size() < maxSize) {
        const auto operation = data.ConsumeIntegral<std::uint8_t>();
        if (operation < 220) {
            append(html, open, pieces[operation % std::size(pieces)]);
        } else if (operation < 250) {
            const auto size = std::min<std::size_t>(data.ConsumeIntegralInRange<std::size_t>(1, 255), html.size());
            const std::string last = html.substr(html.size() - size);
            const auto count = std::size_t{1} << data.ConsumeIntegralInRange<unsigned>(0, 16);
            for (std::size_t index = 0; index < count && html.size() + size <= maxSize; ++index)
                html += last;
        } else {
            html += static_cast<char>(data.ConsumeIntegral<std::uint8_t>());
        }
    }
    while (isComplete && !open.empty())
        append(html, open, {});
    return html;
}

bool isShown(const QString &html)
{
    return TQFoundation::isCheapToLayOut(html.toStdU16String());
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
    require(threadTime() - begin <= 300); // sanitizers take up to 20 times as long
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
