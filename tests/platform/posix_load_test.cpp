#include <gtest/gtest.h>

#include <ctime>

#include <sys/syscall.h>
#include <unistd.h>

#include <quor/system/date_time/timer.hpp>

// What the shared library does while it is loaded, seen by the program that has a clock of
// its own in place of the C library's: its first readings of the monotonic clock take 2.5
// microseconds each.

namespace {

using QUOR_2_9::system::date_time::timer;

constexpr int slow_readings = 100;
constinit int readings = 0;

// Made when the library is there already and nothing else has run.
struct at_load {
	QUOR_2_9::types::uint64 overhead = timer::overhead_microseconds();
	int count = readings;
};

at_load const loaded __attribute__((init_priority(101)));

TEST(posix_load, overhead_is_measured_while_the_library_is_loaded) {
	EXPECT_EQ(loaded.overhead, 2U);
	EXPECT_EQ(loaded.count, 6);
	QUOR_2_9::system::date_time::TimerOverheadTester const *const tester = &QUOR_2_9::system::date_time::sAutoTester;
	EXPECT_NE(tester, nullptr);
}

} // namespace

extern "C" int clock_gettime(clockid_t clock, timespec *now) noexcept {
	if (clock == CLOCK_MONOTONIC && readings < slow_readings) {
		++readings;
		now->tv_sec = 1000;
		now->tv_nsec = readings * 2500;
		return 0;
	}
	return static_cast<int>(syscall(SYS_clock_gettime, clock, now));
}
