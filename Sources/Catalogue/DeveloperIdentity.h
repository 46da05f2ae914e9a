#pragma once

#include "TQFoundation/Color.h"

#include <QtCore/qglobal.h>

#include <span>
#include <string_view>

/// All texts that name the developer, the apps or the store. To replace the developer, change them and run
/// tools/replace-developer, which changes translation tables, tests and documents too.
namespace TQFoundation::DeveloperIdentity {

/// The name of the developer: organisation of the hosts, maintainer of the packages. Not used by the library.
inline constexpr const char *name = "TQ Studio";

/// The holder of the copyright, as in LICENSE. Not used by the library.
inline constexpr const char *copyrightHolder = "The TQFoundation authors";

/// The English pages of the developer's website. A translation table may replace them with pages in its language.
//: A page of the website: the page in this language if the site has one, else the same address.
inline constexpr const char *privacyPage =
    QT_TRANSLATE_NOOP("TQFoundation", "https://tqstudio.example/privacy-policy-en");
//: A page of the website: the page in this language if the site has one, else the same address.
inline constexpr const char *contactPage = QT_TRANSLATE_NOOP("TQFoundation", "https://tqstudio.example/contact-en");
//: A page of the website: the page in this language if the site has one, else the same address.
inline constexpr const char *homePage = QT_TRANSLATE_NOOP("TQFoundation", "https://tqstudio.example/en");

/// The recipient of feedback mail.
inline constexpr const char *supportAddress = "support@tqstudio.example";

/// The page that lists the developer's social pages.
inline constexpr const char *socialPage = "https://links.example/tqstudio";

/// The name of the store.
inline constexpr const char *storeName = "App Store";

/// The title of the More screen's row that leads to the review form.
//: Title of a row of the More screen.
inline constexpr const char *reviewTitle = QT_TRANSLATE_NOOP("TQFoundation", "Rate on the App Store");

/// The public web host of the store.
inline constexpr const char *storeHost = "https://apps.apple.com";

/// An app's page in the store: the host, this path and the app's store id.
inline constexpr const char *storeAppPath = "/app/id";

/// The query that turns the link of an app's page into that of its review form.
inline constexpr const char *storeReviewQuery = "?action=write-review";

/// The store page that lists all the developer's apps.
inline constexpr const char *storePage = "https://apps.apple.com/developer/tq-studio/id9990000000";

/// The prefix of every app's filing number. A translation table may give it in full.
//: Begins the number under which an app is filed in mainland China; only Chinese gives it in full.
inline constexpr const char *filingPrefix = QT_TRANSLATE_NOOP("TQFoundation", "ICP-2099000001-");

/// The root URL of the national site where filings are looked up: scheme and host only.
inline constexpr const char *filingSite = "https://beian.miit.gov.cn";

/// The paragraphs of the guides. They are also translation keys, slips included: changing one orphans its translations.
inline constexpr const char *hazelGuide[] = {
    //: First of six pages that explain the game of life to a new user; "Hazel Grid" is the app's name.
    QT_TRANSLATE_NOOP("TQFoundation",
                      "Welcome to the Hazel Grid.\n\n"
                      "The game is an infinite, two-dimensional orthogonal grid of square cells, each of "
                      "which is in one of two possible states, live or dead.\n\n"
                      "At each step in time, the following transitions occur:"),
    //: Second page: the first rule of the game.
    QT_TRANSLATE_NOOP("TQFoundation",
                      "1.\n\nAny live cell with fewer than two live neighbours dies, as if by underpopulation."),
    //: Third page: the second rule.
    QT_TRANSLATE_NOOP("TQFoundation",
                      "2.\n\nAny live cell with two or three live neighbours lives on to the next generation."),
    //: Fourth page: the third rule.
    QT_TRANSLATE_NOOP("TQFoundation",
                      "3.\n\nAny live cell with more than three live neighbours dies, as if by overpopulation."),
    //: Fifth page: the last rule.
    QT_TRANSLATE_NOOP(
        "TQFoundation",
        "4.\n\nAny dead cell with exactly three live neighbours becomes a live cell, as if by reproduction."),
    //: Last page, before the game begins.
    QT_TRANSLATE_NOOP("TQFoundation", "Next, please enjoy the Hazel Grid.\n\nBest regards."),
};

inline constexpr const char *dogwoodGuide[] = {
    //: First of five pages that explain a game of guessing a written character; 「青岚」 is the app's name.
    QT_TRANSLATE_NOOP(
        "TQFoundation",
        "欢迎使用「青岚」。\n\n「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。"),
    //: Second page: how to make a guess. The colours are those of the next two pages.
    QT_TRANSLATE_NOOP("TQFoundation",
                      "输入一个有效中文文字，按下回车按钮提交。\n\n每次提交之后，文字的笔画颜色也许会发生变化："),
    //: Third page: what a green stroke means.
    QT_TRANSLATE_NOOP("TQFoundation",
                      "绿色，\n\n表示正确文字包含此笔画，并且笔顺正确。\n\n在正确文字和所提交的文字的中都会全部显示。"),
    //: Fourth page: what a grey stroke means.
    QT_TRANSLATE_NOOP("TQFoundation",
                      "灰色，\n\n代表正确文字虽然包含此笔画，但是笔顺不正确。\n\n"
                      "如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。"),
    //: Last page, before the game begins.
    QT_TRANSLATE_NOOP("TQFoundation", "接下来请使用「青岚」。\n\n敬颂时祺。"),
};

/// The data of one app.
struct App
{
    std::string_view caseName; ///< as in TQFOUNDATION_APPS
    const char *storeId; ///< ten decimal digits
    const char *filingSuffix; ///< one or two digits and "A"; null for an app without a filing
    const char *iconName; ///< a file of Resources/Icons, without its extension
    Color tint; ///< single-precision components, kept exactly
    std::span<const char *const> guide = {}; ///< empty for an app without a guide
};

/// The data of all apps, in the order of TQFOUNDATION_APPS.
inline constexpr App apps[] = {
    {"larch", "9990000001", "1A", "larch-page", Rgba{0.9529412F, 0.4392157F, 0.1294118F}},
    {"juniper", "9990000002", "2A", "juniper-page", Color::systemBlue()},
    {"hazel", "9990000003", "3A", "hazel-page", Color::label(), hazelGuide},
    {"ginkgo", "9990000004", "4A", "ginkgo-page", Rgba{1, 0.4F, 0.7019608F}},
    {"fir", "9990000005", "5A", "fir", Color::systemGray()},
    {"elm", "9990000006", "6A", "elm-page", Color::systemRed()},
    {"dogwood", "9990000007", "7A", "dogwood", Rgba{0, 0.5603183F, 0}, dogwoodGuide},
    {"cedar", "9990000008", "8A", "cedar", Rgba{0.581883F, 0.2156915F, 1}},
    {"birch", "9990000009", "9A", "birch", Rgba{0.5803922F, 0.09019608F, 0.3176471F}},
    {"alder", "9990000010", nullptr, "alder-page", Rgba{0, 0.6980392F, 0.7137255F}},
};

static_assert(std::string_view(supportAddress).size() == 24);
static_assert(std::string_view(filingPrefix).size() == 15);
static_assert(std::string_view(filingSite).size() == 25);
static_assert(std::string_view(storePage).starts_with(storeHost));
static_assert(std::string_view(reviewTitle).find(storeName) != std::string_view::npos);

} // namespace TQFoundation::DeveloperIdentity
