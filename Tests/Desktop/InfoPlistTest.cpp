#include "InfoPlist.h"

#include <QtCore/qdatetime.h>
#include <QtCore/qtimezone.h>

#include <gtest/gtest.h>

#include <random>

namespace TQFoundation {
namespace {

QByteArray list(const QByteArray &dictionary)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//X//DTD PLIST 1.0//EN\" \"http://localhost/list.dtd\">\n"
           "<plist version=\"1.0\"><dict>"
        + dictionary + "</dict></plist>\n";
}

TEST(InfoPlist, KeepsTypesOfValues)
{
    const QVariantMap map = parseInfoPlist(list("<key>text</key><string> a &amp; b </string>"
                                                "<key>empty</key><string/>"
                                                "<key>number</key><integer> -42 </integer>"
                                                "<key>hex</key><integer>0x1F</integer>"
                                                "<key>real</key><real>2.5</real>"
                                                "<key>yes</key><true/><key>no</key><false/>"
                                                "<key>date</key><date>2020-02-03T04:05:06Z</date>"
                                                "<key>data</key><data>\n aGk=\n </data>"
                                                "<key>array</key><array><string>x</string><dict/></array>"
                                                "<key>map</key><dict><key>k</key><integer>1</integer></dict>"));
    ASSERT_EQ(map.size(), 11);
    EXPECT_EQ(map.value(QStringLiteral("text")), QVariant(QStringLiteral(" a & b ")));
    EXPECT_EQ(map.value(QStringLiteral("empty")), QVariant(QStringLiteral("")));
    EXPECT_EQ(map.value(QStringLiteral("number")), QVariant(-42LL));
    EXPECT_EQ(map.value(QStringLiteral("number")).typeId(), QMetaType::LongLong);
    EXPECT_EQ(map.value(QStringLiteral("hex")), QVariant(31LL));
    EXPECT_EQ(map.value(QStringLiteral("real")), QVariant(2.5));
    EXPECT_EQ(map.value(QStringLiteral("yes")), QVariant(true));
    EXPECT_EQ(map.value(QStringLiteral("no")), QVariant(false));
    EXPECT_EQ(map.value(QStringLiteral("date")).toDateTime(), QDateTime({2020, 2, 3}, {4, 5, 6}, QTimeZone::utc()));
    EXPECT_EQ(map.value(QStringLiteral("data")), QVariant(QByteArray("hi")));
    EXPECT_EQ(map.value(QStringLiteral("array")).toList().size(), 2);
    EXPECT_EQ(map.value(QStringLiteral("map")).toMap().value(QStringLiteral("k")), QVariant(1LL));
}

TEST(InfoPlist, LastValueOfRepeatedKeyWins)
{
    const QVariantMap map = parseInfoPlist(list("<key>k</key><string>a</string><key>k</key><string>b</string>"));
    EXPECT_EQ(map.value(QStringLiteral("k")), QVariant(QStringLiteral("b")));
}

TEST(InfoPlist, IgnoresCommentsAndBlanksBetweenElements)
{
    EXPECT_EQ(parseInfoPlist(list("\n<!-- who -->\n<key>k</key>\n\t<string>v</string>\n")).size(), 1);
}

class BrokenInfoPlist : public testing::TestWithParam<QByteArray>
{};

TEST_P(BrokenInfoPlist, IsEmpty)
{
    EXPECT_TRUE(parseInfoPlist(GetParam()).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, BrokenInfoPlist,
    testing::Values("", "bplist00\xd1\x01\x02", "not a list", "<plist>", "<plist/>", "<dict/>",
                    "<plist><array><string>x</string></array></plist>", "<plist><dict></dict><dict></dict></plist>",
                    "<plist><dict><key>k</key><string>v</string></dict></plist> trailing",
                    "<plist><dict><key>k</key><string>v</string>", list("<key>a</key><string>b</string><key>c</key>"),
                    list("<string>no key</string>"), list("<key>k</key>stray<string>v</string>"),
                    list("<key>k</key><integer>many</integer>"),
                    list("<key>k</key><integer>99999999999999999999</integer>"), list("<key>k</key><real>x</real>"),
                    list("<key>k</key><date>yesterday</date>"), list("<key>k</key><true>no</true>"),
                    list("<key>k</key><unknown/>"), list("<key>k</key><string>a<b/></string>"),
                    list("<key>k</key><string>&undeclared</string>"), list("<key>k</key><string>\xff\xfe</string>"),
                    list("<key><b/></key><string>v</string>"), list("&elsewhere;<key>k</key><string>v</string>")));

TEST(InfoPlist, RefusesListThatDeclaresEntities)
{
    // Each entity expands to ten of the previous one.
    QByteArray bomb = "<!DOCTYPE plist [<!ENTITY e0 \"0123456789\">";
    for (int level = 1; level < 10; ++level) {
        const QByteArray inner = "&e" + QByteArray::number(level - 1) + ';';
        bomb += "<!ENTITY e" + QByteArray::number(level) + " \"" + inner.repeated(10) + "\">";
    }
    bomb += "]><plist><dict><key>CFBundleName</key><string>&e9;</string></dict></plist>";
    EXPECT_TRUE(parseInfoPlist(bomb).isEmpty());

    const QByteArray wide = "<!DOCTYPE plist [<!ENTITY e \"" + QByteArray(4000, 'x')
        + "\">]><plist><dict><key>k</key><string>" + QByteArray("&e;").repeated(200'000) + "</string></dict></plist>";
    EXPECT_TRUE(parseInfoPlist(wide).isEmpty());
}

TEST(InfoPlist, ReadsNoExternalEntity)
{
    const QByteArray external = "<!DOCTYPE plist [<!ENTITY e SYSTEM \"file:///etc/hostname\">]>"
                                "<plist><dict><key>k</key><string>&e;</string></dict></plist>";
    EXPECT_TRUE(parseInfoPlist(external).isEmpty());
}

TEST(InfoPlist, RefusesDeepNesting)
{
    const auto nested = [](int depth) {
        return list("<key>k</key>" + QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
    };
    EXPECT_EQ(parseInfoPlist(nested(63)).size(), 1);
    EXPECT_TRUE(parseInfoPlist(nested(64)).isEmpty());
    EXPECT_TRUE(parseInfoPlist(nested(60'000)).isEmpty());
}

TEST(InfoPlist, RefusesHugeList)
{
    const auto sized = [](qsizetype size) -> QByteArray {
        return list("<key>k</key><string>v</string>")
            + QByteArray(size - list("<key>k</key><string>v</string>").size(), ' ');
    };
    EXPECT_EQ(parseInfoPlist(sized(largestInfoPlist)).size(), 1);
    EXPECT_TRUE(parseInfoPlist(sized(largestInfoPlist + 1)).isEmpty());
}

TEST(InfoPlist, ReadsTruncatedListWhollyOrNotAtAll)
{
    const QByteArray whole =
        list("<key>CFBundleName</key><string>Gr\xc3\xb6ve</string><key>n</key><integer>1</integer>");
    const QVariantMap map = parseInfoPlist(whole);
    ASSERT_EQ(map.size(), 2);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QVariantMap part = parseInfoPlist(whole.first(length));
        EXPECT_TRUE(part.isEmpty() || part == map) << length;
    }
}

TEST(InfoPlist, SurvivesRandomDamage)
{
    const QByteArray whole = list("<key>a</key><string>b</string><key>c</key><array><true/><real>1</real></array>");
    std::mt19937 engine(7);
    for (int round = 0; round < 20'000; ++round) {
        QByteArray damaged = whole;
        for (unsigned flips = 1 + engine() % 8; flips > 0; --flips)
            damaged[static_cast<qsizetype>(engine() % static_cast<unsigned>(damaged.size()))] =
                static_cast<char>(engine());
        parseInfoPlist(damaged);
    }
}

} // namespace
} // namespace TQFoundation
