#include <gtest/gtest.h>

#include <cstdint>
#include <random>

#include <quor/system/date_time/timer.hpp>

#include "platform/scripted/scripted_clock.hpp"

namespace {

namespace date_time = QUOR_2_9::system::date_time;
using date_time::timer;
using date_time::timer_resolution;
using quor_test::fresh_clock;
using uint64 = QUOR_2_9::types::uint64;

constexpr timer_resolution micros = date_time::resolution_microseconds;
constexpr timer_resolution millis = date_time::resolution_milliseconds;
constexpr timer_resolution seconds = date_time::resolution_seconds;
constexpr auto other = static_cast<timer_resolution>(77);
constexpr auto negative = static_cast<timer_resolution>(-1);

// What the library had done when this program's own static objects were made.
struct at_load {
	uint64 overhead = timer::m_overheadMicroseconds;
	std::size_t tick_readings = quor_test::clock().tick_readings;
	std::size_t millisecond_readings = quor_test::clock().millisecond_readings;
	std::uint64_t ticks = quor_test::clock().ticks;
};

at_load const loaded;

// Resets the overhead and the clock.
class timer_clock : public testing::Test {
protected:
	void SetUp() override { timer::overhead_microseconds(0); }
	void TearDown() override { timer::overhead_microseconds(0); }

	quor_test::scripted_clock &clock = fresh_clock();
};

TEST(timer_at_load, overhead_is_measured_once_by_three_pairs_of_readings) {
	EXPECT_EQ(loaded.overhead, 2U); // 2500 ticks of a nanosecond, each time
	EXPECT_EQ(loaded.tick_readings, 6U);
	EXPECT_EQ(loaded.millisecond_readings, 0U);
	EXPECT_EQ(loaded.ticks, 1000000U + 6 * 2500);
}

TEST_F(timer_clock, frequency_loses_its_fraction_of_a_megahertz) {
	struct {
		std::uint64_t frequency;
		uint64 ticks;
	} const rows[] = {{1000000, 1},
	                  {1999999, 1},
	                  {2000000, 2},
	                  {3579545, 3},
	                  {1000000000, 1000},
	                  {999999, 0},
	                  {UINT64_MAX, 18446744073709U}};
	for (auto const &[frequency, ticks] : rows) {
		SCOPED_TRACE(frequency);
		clock.frequency = frequency;
		EXPECT_EQ(timer(millis).windows_timer_frequency(), ticks);
		EXPECT_EQ(timer(micros).windows_timer_frequency(), ticks);
	}
}

TEST_F(timer_clock, each_resolution_reads_its_own_clock) {
	clock.ticks = 0x123456789ABCDEF0U;
	clock.milliseconds = 4294967295U;
	EXPECT_EQ(timer(micros).current_time(), 0x123456789ABCDEF0U);
	EXPECT_EQ(timer(millis).current_time(), 4294967295U);
	for (auto const resolution : {seconds, other, negative}) {
		EXPECT_EQ(timer(resolution).current_time(), 4294967U);
	}
	EXPECT_EQ(clock.tick_readings, 1U);
	EXPECT_EQ(clock.millisecond_readings, 4U);
	clock.milliseconds = 999;
	EXPECT_EQ(timer(seconds).current_time(), 0U);
	clock.milliseconds = 1000;
	EXPECT_EQ(timer(seconds).current_time(), 1U);
}

TEST_F(timer_clock, construction_asks_for_the_frequency_of_the_finest_clock_only) {
	timer(micros).stop();
	EXPECT_EQ(clock.frequency_readings, 1U);
	for (auto const resolution : {millis, seconds, other, negative}) {
		timer(resolution).stop();
	}
	EXPECT_EQ(clock.frequency_readings, 1U);
	EXPECT_EQ(clock.tick_readings + clock.millisecond_readings, 0U);
}

TEST_F(timer_clock, start_and_stop_read_the_clock_once_each) {
	timer watch;
	clock.script({5000, 12999});
	watch.start();
	EXPECT_EQ(clock.tick_readings, 1U);
	EXPECT_TRUE(watch.is_timer_running());
	watch.stop();
	EXPECT_EQ(clock.tick_readings, 2U);
	EXPECT_FALSE(watch.is_timer_running());
	EXPECT_EQ(watch.elapsed_time(), 7U);
	EXPECT_EQ(clock.tick_readings, 2U);
}

TEST_F(timer_clock, stop_of_a_stopped_timer_changes_nothing) {
	timer watch;
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 0U);
	clock.script({5000, 12000, 99000});
	watch.start();
	watch.stop();
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 7U);
	EXPECT_FALSE(watch.is_timer_running());
}

TEST_F(timer_clock, second_start_forgets_the_first) {
	timer watch;
	clock.script({1000, 500000, 503000});
	watch.start();
	watch.start();
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 3U);
}

TEST_F(timer_clock, intervals_add_up_as_ticks) {
	timer watch;
	// 1.6 and 1.6 microseconds are 3.2.
	clock.script({1000, 2600, 9000, 10600});
	watch.start();
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 1U);
	watch.start();
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 3U);
	watch.reset();
	EXPECT_EQ(watch.elapsed_time(), 0U);
	EXPECT_FALSE(watch.is_timer_running());
}

TEST_F(timer_clock, reset_stops_and_restart_runs_from_nothing) {
	timer watch;
	clock.script({1000, 9000, 20000, 30000, 30700, 31100});
	watch.start();
	watch.stop();
	watch.restart(); // at 20000
	EXPECT_TRUE(watch.is_timer_running());
	EXPECT_EQ(watch.elapsed_time(), 10U);
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 10U);
	watch.start();
	watch.reset();
	EXPECT_FALSE(watch.is_timer_running());
	EXPECT_EQ(watch.elapsed_time(), 0U);
}

TEST_F(timer_clock, elapsed_time_of_a_running_timer_goes_on) {
	timer watch;
	clock.script({10000, 15000, 20000, 22999, 25000, 30000});
	watch.start();
	watch.stop(); // 5
	watch.start();
	EXPECT_EQ(watch.elapsed_time(), 7U);
	EXPECT_EQ(watch.elapsed_time(), 10U);
	EXPECT_TRUE(watch.is_timer_running());
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 15U);
}

TEST_F(timer_clock, overhead_is_taken_off_each_stop_and_each_reading_of_a_running_timer) {
	timer watch;
	timer::overhead_microseconds(3);
	clock.script({1000, 11000, 20000, 32000, 40000, 45000, 45001});
	watch.start();
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 7U);
	watch.start();
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 16U);
	watch.start();
	EXPECT_EQ(watch.elapsed_time(), 18U); // 16 + 5 - 3
}

TEST_F(timer_clock, interval_counts_only_what_is_beyond_the_overhead) {
	struct {
		uint64 overhead;
		std::uint64_t interval;
		uint64 stopped;
		uint64 running;
	} const rows[] = {
	    {3, 2999, 0, 0},
	    {3, 3000, 0, 0},
	    {3, 3001, 0, 0},
	    {3, 3999, 0, 0},
	    {3, 4000, 1, 1},
	    {3, 10000, 7, 7},
	    {1000000, 1000000, 0, 0},
	    {0, 999, 0, 0},
	    {0, 1000, 1, 1},
	    // The overhead in ticks wraps around at 64 bits: 2^61 * 1000 is 0 there.
	    {uint64(1) << 61, 5000, 5, 0},
	};
	for (auto const &[overhead, interval, stopped, running] : rows) {
		SCOPED_TRACE(testing::Message() << overhead << ' ' << interval);
		timer::overhead_microseconds(overhead);
		timer watch;
		clock.script({700, 700 + interval, 700 + interval});
		watch.start();
		EXPECT_EQ(watch.elapsed_time(), running);
		watch.stop();
		EXPECT_EQ(watch.elapsed_time(), stopped);
		EXPECT_FALSE(watch.is_timer_running());
	}
}

TEST_F(timer_clock, one_tick_beyond_the_overhead_is_kept) {
	timer watch;
	timer::overhead_microseconds(1);
	clock.frequency = 1000000000;
	for (int i = 0; i != 1000; ++i) {
		clock.script({5000, 6001});
		watch.start();
		watch.stop();
	}
	EXPECT_EQ(watch.elapsed_time(), 1U);
}

TEST_F(timer_clock, overhead_is_not_for_the_other_resolutions) {
	timer::overhead_microseconds(1000000);
	for (auto const resolution : {millis, seconds, other, negative}) {
		SCOPED_TRACE(resolution);
		timer watch(resolution);
		clock.milliseconds = 5000;
		watch.start();
		clock.milliseconds = 12999;
		uint64 const expected = resolution == millis ? 7999 : 7;
		EXPECT_EQ(watch.elapsed_time(), expected);
		watch.stop();
		EXPECT_EQ(watch.elapsed_time(), expected);
	}
}

TEST_F(timer_clock, milliseconds_do_not_go_over_their_wrap) {
	timer watch(millis);
	clock.milliseconds = 4294967290U;
	watch.start();
	clock.milliseconds = 5;
	EXPECT_EQ(watch.elapsed_time(), 18446744069414584331U); // 5 - 4294967290 in 64 bits
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 18446744069414584331U);
	timer long_watch(seconds);
	clock.milliseconds = 4294967290U;
	long_watch.start();
	clock.milliseconds = 5000;
	long_watch.stop();
	EXPECT_EQ(long_watch.elapsed_time(), UINT64_MAX - 4294967 + 5 + 1);
}

TEST_F(timer_clock, start_at_0_does_not_run) {
	timer watch;
	clock.script({0, 5000, 9000});
	watch.start();
	EXPECT_FALSE(watch.is_timer_running());
	EXPECT_EQ(watch.elapsed_time(), 0U);
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 0U);
	timer coarse(seconds);
	clock.milliseconds = 999;
	coarse.start();
	EXPECT_FALSE(coarse.is_timer_running());
}

TEST_F(timer_clock, counter_that_goes_back_wraps_in_64_bits) {
	timer watch;
	clock.script({5000, 4000});
	watch.start();
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), (UINT64_MAX - 999) / 1000);
}

TEST_F(timer_clock, the_present_resolution_keeps_the_interval_and_another_clears_it) {
	for (auto const resolution : {micros, millis, seconds}) {
		SCOPED_TRACE(resolution);
		timer watch(resolution);
		clock.milliseconds = 5000;
		watch.start();
		EXPECT_EQ(watch.resolution(resolution), resolution);
		EXPECT_TRUE(watch.is_timer_running());
		auto const changed = resolution == micros ? millis : micros;
		EXPECT_EQ(watch.resolution(changed), changed);
		EXPECT_EQ(watch.resolution(), changed);
		EXPECT_FALSE(watch.is_timer_running());
		EXPECT_EQ(watch.elapsed_time(), 0U);
	}
}

TEST_F(timer_clock, another_resolution_clears_the_sum) {
	timer watch;
	clock.script({1000, 9000});
	watch.start();
	watch.stop();
	watch.resolution(millis);
	EXPECT_EQ(watch.elapsed_time(), 0U);
	watch.resolution(micros);
	EXPECT_EQ(watch.elapsed_time(), 0U);
}

TEST_F(timer_clock, divisor_of_the_microseconds_stays) {
	timer watch;
	watch.resolution(millis);
	clock.milliseconds = 1000;
	watch.start();
	clock.milliseconds = 6999;
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 5U);
	watch.resolution(seconds);
	clock.milliseconds = 1000;
	watch.start();
	clock.milliseconds = 4000000;
	EXPECT_EQ(watch.elapsed_time(), 3U);

	timer fresh(millis);
	clock.milliseconds = 1000;
	fresh.start();
	clock.milliseconds = 6999;
	fresh.stop();
	EXPECT_EQ(fresh.elapsed_time(), 5999U);
	fresh.resolution(seconds);
	clock.milliseconds = 1000;
	fresh.start();
	clock.milliseconds = 4000000;
	EXPECT_EQ(fresh.elapsed_time(), 3999U);
}

TEST_F(timer_clock, divisor_is_computed_anew_when_the_microseconds_return) {
	timer watch;
	clock.frequency = 2000000;
	watch.resolution(millis);
	EXPECT_EQ(clock.frequency_readings, 1U);
	watch.resolution(micros);
	EXPECT_EQ(clock.frequency_readings, 2U);
	clock.script({1000, 1010});
	watch.start();
	watch.stop();
	EXPECT_EQ(watch.elapsed_time(), 5U);
	watch.resolution(micros);
	EXPECT_EQ(clock.frequency_readings, 2U);
}

TEST_F(timer_clock, copies_go_on_from_the_same_start) {
	timer watch;
	clock.script({1000, 3000, 10000, 15000, 16000, 17000});
	watch.start();
	watch.stop();
	watch.start();
	timer copy(millis);
	EXPECT_EQ(&(copy = watch), &copy);
	EXPECT_EQ(copy.resolution(), micros);
	EXPECT_TRUE(copy.is_timer_running());
	EXPECT_EQ(copy.elapsed_time(), 7U);
	copy.stop();
	EXPECT_EQ(copy.elapsed_time(), 8U);
	EXPECT_TRUE(watch.is_timer_running());
	timer const built(watch);
	EXPECT_EQ(built.elapsed_time(), 9U);
}

TEST_F(timer_clock, overhead_tester_takes_the_mean_of_the_second_and_third_pair) {
	struct {
		std::uint64_t frequency;
		std::initializer_list<std::uint64_t> readings;
		uint64 overhead;
		std::size_t taken;
	} const rows[] = {
	    {1000000000, {1, 900000, 1000, 3000, 5000, 9000}, 3, 6},
	    {1000000000, {1, 1, 1000, 3000, 5000, 8000}, 2, 6}, // (2 + 3) / 2
	    {1000000000, {1, 1, 1000, 2999, 5000, 7999}, 1, 6}, // (1 + 2) / 2
	    {1000000000, {1, 1, 1000, 1999, 5000, 5999}, 0, 6}, // each is cut first
	    {1000000000, {1, 1, 1000, 1000, 5000, 5000}, 0, 6},
	    {2000000, {1, 1, 10, 20, 30, 50}, 7, 6},   // 5 and 10
	    {3579545, {1, 1, 10, 19, 30, 39}, 3, 6},   // divided by 3
	    {1000000000, {1, 1, 0, 5000, 9000}, 2, 5}, // a first reading of 0 gives 0
	    {1000000000, {1, 1, 5000, 9000, 0}, 2, 5},
	    {1000000000, {0, 5000, 9000, 20000, 30000}, 7, 5}, // (4 + 10) / 2
	};
	for (auto const &[frequency, readings, overhead, taken] : rows) {
		SCOPED_TRACE(testing::PrintToString(std::vector<std::uint64_t>(readings)));
		fresh_clock();
		timer::overhead_microseconds(0);
		clock.frequency = frequency;
		clock.script(readings);
		date_time::TimerOverheadTester const tester;
		static_cast<void>(tester);
		EXPECT_EQ(timer::overhead_microseconds(), overhead);
		EXPECT_EQ(clock.tick_readings, taken);
	}
}

TEST_F(timer_clock, overhead_tester_keeps_what_was_set) {
	timer::overhead_microseconds(5);
	date_time::TimerOverheadTester const tester;
	static_cast<void>(tester);
	EXPECT_EQ(timer::overhead_microseconds(), 5U);
	EXPECT_EQ(clock.tick_readings + clock.frequency_readings, 0U);
}

// The timer by its formulas, in the order in which they are told.
struct reference_timer {
	unsigned resolution = 0;
	uint64 start = 0;
	uint64 sum = 0;
	uint64 divisor = 1;

	void stop(uint64 now, uint64 overhead) {
		if (start == 0) {
			return;
		}
		uint64 const interval = now - start;
		uint64 const overhead_ticks = overhead * divisor;
		if (resolution != 0) {
			sum += interval;
		} else if (interval > overhead_ticks) {
			sum += interval - overhead_ticks;
		}
		start = 0;
	}

	uint64 elapsed(uint64 now, uint64 overhead) const {
		uint64 ticks = sum;
		if (start != 0) {
			ticks = ticks - start + now;
		}
		uint64 const result = ticks / divisor;
		if (resolution != 0 || start == 0) {
			return result;
		}
		return result <= overhead ? 0 : result - overhead;
	}
};

TEST_F(timer_clock, random_calls_give_what_the_formulas_give) {
	std::mt19937_64 random(1000000);
	auto const reading = [this](unsigned resolution) -> uint64 {
		return resolution == 0 ? clock.ticks : resolution == 1 ? clock.milliseconds : clock.milliseconds / 1000;
	};
	for (int round = 0; round != 2000; ++round) {
		clock.step = 0;
		clock.frequency = 1000000 + random() % 5000000000;
		uint64 const overhead = random() % 3 == 0 ? random() >> (random() % 64) : random() % 4;
		timer::overhead_microseconds(overhead);
		reference_timer expected;
		expected.resolution = static_cast<unsigned>(random() % 4);
		timer watch(static_cast<timer_resolution>(expected.resolution));
		expected.divisor = expected.resolution == 0 ? clock.frequency / 1000000 : 1;
		for (int call = 0; call != 40; ++call) {
			clock.ticks = random() % 8 == 0 ? random() >> (random() % 64) : clock.ticks + random() % 10000000;
			clock.milliseconds += static_cast<std::uint32_t>(random() >> (32 + random() % 32));
			uint64 const now = reading(expected.resolution);
			switch (random() % 7) {
			case 0:
			case 1:
				watch.start();
				expected.start = now;
				break;
			case 2:
			case 3:
				watch.stop();
				expected.stop(now, overhead);
				break;
			case 4:
				watch.reset();
				expected.start = expected.sum = 0;
				break;
			case 5:
				watch.restart();
				expected.sum = 0;
				expected.start = now;
				break;
			default: {
				auto const resolution = static_cast<unsigned>(random() % 4);
				watch.resolution(static_cast<timer_resolution>(resolution));
				if (resolution != expected.resolution) {
					expected.resolution = resolution;
					expected.divisor = resolution == 0 ? clock.frequency / 1000000 : expected.divisor;
					expected.start = expected.sum = 0;
				}
			}
			}
			ASSERT_EQ(watch.is_timer_running(), expected.start != 0);
			ASSERT_EQ(watch.elapsed_time(), expected.elapsed(reading(expected.resolution), overhead));
		}
	}
}

} // namespace
