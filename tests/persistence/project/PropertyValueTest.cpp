#include "persistence/project/PropertyValue.h"

#include "support/PrintQt.h"

#include <QTimeZone>

#include <gtest/gtest.h>
#include <limits>

using namespace quillford;
using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

TEST(FileTime, counts_from_1601_in_utc) {
    const QDateTime time(QDate(1601, 1, 1), QTime(0, 0, 0, 1), Qt::UTC);
    EXPECT_EQ(FileTime::fromDateTime(time).ticks, 10'000U);
    EXPECT_EQ(FileTime{116'444'736'000'000'000}.toDateTime(),
              QDateTime(QDate(1970, 1, 1), QTime(0, 0), Qt::UTC));
    EXPECT_EQ(FileTime{1}.toDateTime().timeSpec(), Qt::UTC);
}

TEST(FileTime, is_the_same_moment_whatever_the_zone) {
    const QDateTime there(QDate(2024, 2, 29), QTime(12, 30), QTimeZone(3600));
    EXPECT_EQ(FileTime::fromDateTime(there), FileTime::fromDateTime(there.toUTC()));
    EXPECT_EQ(FileTime::fromDateTime(there).toDateTime(), there);
}

TEST(FileTime, of_zero_is_no_time) {
    EXPECT_FALSE(FileTime{}.toDateTime().isValid());
    EXPECT_EQ(FileTime::fromDateTime(QDateTime()), FileTime{});
}

TEST(FileTime, does_not_reach_before_1601_nor_behind_its_last_tick) {
    EXPECT_EQ(FileTime::fromDateTime(QDateTime(QDate(1600, 12, 31), QTime(23, 59), Qt::UTC)),
              FileTime{});
    const FileTime last{std::numeric_limits<quint64>::max()};
    EXPECT_EQ(last.toDateTime().date().year(), 60056);
    EXPECT_EQ(FileTime::fromDateTime(last.toDateTime().addMSecs(1)), FileTime{});
    EXPECT_EQ(FileTime::fromDateTime(last.toDateTime()).ticks, last.ticks / 10'000 * 10'000);
}

TEST(FileTime, is_a_span_of_time_where_the_property_is_one) {
    EXPECT_EQ(FileTime{36'000'000'000}.toSpan(), 1h);
    EXPECT_EQ(FileTime::fromSpan(90min).ticks, 54'000'000'000U);
    EXPECT_EQ(FileTime::fromSpan(-1s), FileTime{});
}

TEST(PropertyValue, gives_every_number_that_fits) {
    EXPECT_EQ(propertyAs<qint32>(qint8{-3}), -3);
    EXPECT_EQ(propertyAs<qint32>(quint8{200}), 200);
    EXPECT_EQ(propertyAs<qint32>(qint16{-300}), -300);
    EXPECT_EQ(propertyAs<qint32>(quint16{60'000}), 60'000);
    EXPECT_EQ(propertyAs<qint32>(qint32{-70'000}), -70'000);
    EXPECT_EQ(propertyAs<qint32>(quint32{70'000}), 70'000);
    EXPECT_EQ(propertyAs<qint32>(qint64{-5}), -5);
    EXPECT_EQ(propertyAs<qint32>(quint64{5}), 5);
}

TEST(PropertyValue, of_another_kind_is_nothing) {
    EXPECT_EQ(propertyAs<qint32>(quint32{0x80000000}), 0);
    EXPECT_EQ(propertyAs<qint32>(u"12"_s), 0);
    EXPECT_EQ(propertyAs<qint32>(true), 0);
    EXPECT_TRUE(propertyAs<QString>(qint32{12}).isNull());
    EXPECT_TRUE(propertyAs<QString>(PropertyValue()).isNull());
    EXPECT_FALSE(propertyAs<QDateTime>(u"2024"_s).isValid());
    EXPECT_EQ(propertyAs<FileTimeSpan>(PropertyValue()).count(), 0);
}
