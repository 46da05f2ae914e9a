#pragma once

#include <QtCore/qglobal.h>

#include <array>
#include <string_view>

/// Everything that names the developer, for a developer to replace in one place.
///
/// What QT_TRANSLATE_NOOP marks is also a key of the translation tables: change it there as well.
namespace TQFoundation::DeveloperIdentity {

/// The English pages of the developer's website. A language's table may lead to a page in that language.
//: A page of the website: the page in this language if the site has one, else the same address.
inline constexpr const char *privacyPage =
    QT_TRANSLATE_NOOP("TQFoundation", "https://tqstudio.example/privacy-policy-en");
//: A page of the website: the page in this language if the site has one, else the same address.
inline constexpr const char *contactPage = QT_TRANSLATE_NOOP("TQFoundation", "https://tqstudio.example/contact-en");
//: A page of the website: the page in this language if the site has one, else the same address.
inline constexpr const char *homePage = QT_TRANSLATE_NOOP("TQFoundation", "https://tqstudio.example/en");

/// Where feedback mail goes.
inline constexpr const char *supportAddress = "support@tqstudio.example";

/// The developer's page that gathers all their social pages.
inline constexpr const char *socialPage = "https://links.example/tqstudio";

/// The public web host of the store.
inline constexpr const char *storeHost = "https://apps.apple.com";

/// The store page that lists all the developer's apps.
inline constexpr const char *storePage = "https://apps.apple.com/developer/tq-studio/id9990000000";

/// What the filings of all apps begin with. A language's table may give it in full.
//: Begins the number under which an app is filed in mainland China; only Chinese gives it in full.
inline constexpr const char *filingPrefix = QT_TRANSLATE_NOOP("TQFoundation", "ICP-2099000001-");

/// The root of the national site where filings are looked up: scheme and host only.
inline constexpr const char *filingSite = "https://beian.miit.gov.cn";

/// What the store and the filing authority call one app.
struct App
{
    const char *storeId; ///< ten decimal digits
    const char *filingSuffix; ///< one or two digits and "A"; null for an app that has no filing
};

/// In the order of the catalogue.
inline constexpr std::array<App, 10> apps{{
    {"9990000001", "1A"},
    {"9990000002", "2A"},
    {"9990000003", "3A"},
    {"9990000004", "4A"},
    {"9990000005", "5A"},
    {"9990000006", "6A"},
    {"9990000007", "7A"},
    {"9990000008", "8A"},
    {"9990000009", "9A"},
    {"9990000010", nullptr},
}};

static_assert(std::string_view(supportAddress).size() == 24);
static_assert(std::string_view(filingPrefix).size() == 15);
static_assert(std::string_view(filingSite).size() == 25);
static_assert(std::string_view(storePage).starts_with(storeHost));

} // namespace TQFoundation::DeveloperIdentity
