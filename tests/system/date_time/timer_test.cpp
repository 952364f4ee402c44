#include <gtest/gtest.h>

#include <chrono>
#include <thread>
#include <type_traits>

#include <quor/quor.hpp>

namespace {

using quor::system::date_time::timer;
using quor::system::date_time::timer_resolution;
using quor::types::uint64;
namespace date_time = quor::system::date_time;
using std::chrono::steady_clock;

static_assert(sizeof(timer) == 32 && std::is_trivially_copyable_v<timer> && !std::is_polymorphic_v<timer>);
static_assert(date_time::resolution_microseconds == 0 && date_time::resolution_milliseconds == 1);
static_assert(date_time::resolution_seconds == 2 && sizeof(timer_resolution) == 4);
static_assert(std::is_same_v<decltype(timer().elapsed_time()), uint64>);
static_assert(std::is_same_v<decltype(timer::m_overheadMicroseconds), uint64>);
static_assert(std::is_convertible_v<timer_resolution, timer>);

// With the clocks of the system; what they say is checked with scripted ones.

TEST(timer, new_one_is_stopped_and_has_measured_nothing) {
	for (int const resolution : {0, 1, 2, 3, -1}) {
		timer const watch(static_cast<timer_resolution>(resolution));
		EXPECT_FALSE(watch.is_timer_running());
		EXPECT_EQ(watch.elapsed_time(), 0U);
		EXPECT_EQ(watch.resolution(), resolution);
		EXPECT_NE(watch.current_time(), 0U);
	}
	EXPECT_EQ(timer().resolution(), date_time::resolution_microseconds);
	EXPECT_GE(timer().windows_timer_frequency(), 1U);
	EXPECT_EQ(timer(date_time::resolution_seconds).windows_timer_frequency(), timer().windows_timer_frequency());
}

TEST(timer, agrees_with_the_steady_clock) {
	timer watch;
	timer coarse(date_time::resolution_milliseconds);
	auto const outer_start = steady_clock::now();
	watch.start();
	coarse.start();
	EXPECT_TRUE(watch.is_timer_running());
	auto const inner_start = steady_clock::now();
	std::this_thread::sleep_for(std::chrono::milliseconds(30));
	auto const inner = steady_clock::now() - inner_start;
	watch.stop();
	coarse.stop();
	auto const outer = steady_clock::now() - outer_start;
	auto const overhead = timer::overhead_microseconds();
	using std::chrono::microseconds;
	EXPECT_GE(watch.elapsed_time() + overhead + 1,
	          static_cast<uint64>(std::chrono::duration_cast<microseconds>(inner).count()));
	EXPECT_LE(watch.elapsed_time(), static_cast<uint64>(std::chrono::duration_cast<microseconds>(outer).count()));
	// A millisecond at each end, and as much as the coarse clock of some systems steps by.
	EXPECT_GE(coarse.elapsed_time() + 17, watch.elapsed_time() / 1000);
	EXPECT_LE(coarse.elapsed_time(), watch.elapsed_time() / 1000 + 17);
}

TEST(timer, time_goes_on_while_it_runs) {
	timer watch;
	watch.start();
	auto const first = watch.current_time();
	auto const begin = steady_clock::now();
	auto const passed = [begin] {
		auto const time = steady_clock::now() - begin;
		return static_cast<uint64>(std::chrono::duration_cast<std::chrono::microseconds>(time).count());
	};
	uint64 last = 0;
	for (uint64 before = passed(); before < 5000; before = passed()) {
		auto const now = watch.elapsed_time();
		ASSERT_GE(now + timer::overhead_microseconds(), before);
		ASSERT_GE(now, last);
		last = now;
	}
	EXPECT_GT(watch.current_time(), first);
}

TEST(timer, overhead_is_measured_at_load_and_can_be_replaced) {
	auto const measured = timer::overhead_microseconds();
	EXPECT_LT(measured, 1000000U);
	date_time::TimerOverheadTester const *const tester = &date_time::sAutoTester;
	EXPECT_NE(tester, nullptr);
	timer::overhead_microseconds(7);
	EXPECT_EQ(timer::overhead_microseconds(), 7U);
	EXPECT_EQ(timer::m_overheadMicroseconds, 7U);
	timer::overhead_microseconds(measured);
}

} // namespace
