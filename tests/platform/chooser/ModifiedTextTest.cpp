#include "platform/linux/chooser/ModifiedText.h"

#include "ShownChooser.h"

#include <gtest/gtest.h>

using LinuxDesktop::exactModifiedText;
using LinuxDesktop::modifiedText;
using namespace Qt::StringLiterals;

namespace {

const QDateTime evening(QDate(2026, 11, 22), QTime(20, 6, 59));

QString said(const QDateTime& modified, const QString& locale)
{
    return modifiedText(modified, evening.addSecs(3600), QLocale(locale));
}

} // namespace

TEST(ModifiedText, IsTodayOrYesterdayWithTheTimeByTheLocalesClock)
{
    EXPECT_EQ(said(evening, u"en_GB"_s), u"Today 20:06"_s);
    EXPECT_EQ(said(evening, u"de_DE"_s), u"Today 20:06"_s);
    EXPECT_EQ(said(evening, u"C"_s), u"Today 20:06"_s);
    const QString american = said(evening, u"en_US"_s);
    EXPECT_TRUE(american.startsWith(u"Today 8:06"_s) && american.endsWith(u"PM"_s)) << american.toStdString();
    EXPECT_EQ(said(evening.addDays(-1), u"en_GB"_s), u"Yesterday 20:06"_s);
    EXPECT_EQ(said(QDateTime(QDate(2026, 11, 21), QTime(0, 0)), u"en_GB"_s), u"Yesterday 00:00"_s);
}

TEST(ModifiedText, IsElseTheDayAsTheLanguageWritesIt)
{
    const QDateTime before(QDate(2026, 3, 5), QTime(9, 30));
    EXPECT_EQ(said(before, u"C"_s), u"5 Mar 2026"_s);
    EXPECT_EQ(said(before, u"en_GB"_s), u"5 Mar 2026"_s);
    EXPECT_EQ(said(before, u"en_US"_s), u"Mar 5, 2026"_s);
    EXPECT_EQ(said(before, u"de_DE"_s), u"5. März 2026"_s);
    EXPECT_EQ(said(before, u"fr_FR"_s), u"5 mars 2026"_s);
    EXPECT_EQ(said(before, u"es_ES"_s), u"5 de mar de 2026"_s);
    EXPECT_EQ(said(before, u"zh_CN"_s), u"2026年3月5日"_s);
    EXPECT_EQ(said(before, u"ja_JP"_s), u"2026年3月5日"_s);
    EXPECT_EQ(said(before, u"hu_HU"_s), u"2026. márc. 5."_s);
    EXPECT_EQ(said(before, u"ar_EG"_s), u"٥ مارس ٢٠٢٦"_s);
}

TEST(ModifiedText, OfTheFutureIsTheDay)
{
    EXPECT_EQ(said(evening.addDays(2), u"en_GB"_s), u"24 Nov 2026"_s);
}

TEST(ModifiedText, SaysDayAndTimeExactlyToThoseWhoAsk)
{
    const QString exact = exactModifiedText(evening, QLocale(u"en_GB"_s));
    EXPECT_TRUE(exact.contains(u"22 November 2026"_s) && exact.endsWith(u"20:06"_s)) << exact.toStdString();
}
