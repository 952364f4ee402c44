#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include <quor/quor.hpp>

#include "platform/tick_counter.hpp"
#include "platform/wall_clock.hpp"
#include "platform/windows/windows_api.hpp"

namespace {

namespace platform = QUOR_2_9::platform;

/// Tenths of a microsecond, without a zone.
std::uint64_t moment_of(platform::wall_clock_fields const &fields) {
	SYSTEMTIME parts = {};
	parts.wYear = static_cast<WORD>(fields.year);
	parts.wMonth = fields.month;
	parts.wDay = fields.day;
	parts.wHour = fields.hour;
	parts.wMinute = fields.minute;
	parts.wSecond = fields.second;
	parts.wMilliseconds = fields.millisecond;
	FILETIME time = {};
	EXPECT_TRUE(SystemTimeToFileTime(&parts, &time));
	return std::uint64_t(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

std::uint64_t number_of(FILETIME const &time) {
	return std::uint64_t(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

constexpr std::uint64_t millisecond = 10000;

TEST(windows_clock, utc_is_the_systems_time) {
	FILETIME before = {};
	GetSystemTimeAsFileTime(&before);
	std::uint64_t const now = moment_of(platform::utc_wall_clock());
	FILETIME after = {};
	GetSystemTimeAsFileTime(&after);
	EXPECT_GE(now + 20 * millisecond, number_of(before));
	EXPECT_LE(now, number_of(after) + 20 * millisecond);
}

TEST(windows_clock, local_time_is_utc_in_the_zone_of_the_process) {
	FILETIME utc = {};
	GetSystemTimeAsFileTime(&utc);
	FILETIME local = {};
	ASSERT_TRUE(FileTimeToLocalFileTime(&utc, &local));
	std::uint64_t const now = moment_of(platform::local_wall_clock());
	EXPECT_GE(now + 20 * millisecond, number_of(local));
	EXPECT_LE(now, number_of(local) + 10000 * millisecond);
}

TEST(windows_clock, ticks_go_with_their_frequency) {
	std::uint64_t const frequency = platform::counter_frequency();
	EXPECT_GE(frequency, 1000000U);
	EXPECT_EQ(platform::counter_frequency(), frequency);
	std::uint64_t const ticks = platform::counter_ticks();
	std::uint32_t const milliseconds = platform::counter_milliseconds();
	Sleep(50);
	std::uint64_t const later = platform::counter_ticks();
	std::uint32_t const milliseconds_later = platform::counter_milliseconds();
	EXPECT_GE((later - ticks) * 1000 / frequency, 40U);
	EXPECT_GE(milliseconds_later - milliseconds, 30U);
	EXPECT_LE(milliseconds_later - milliseconds, (later - ticks) * 1000 / frequency + 30);
}

} // namespace
