#ifndef QUOR_SYSTEM_DATE_TIME_TIMER_HPP
#define QUOR_SYSTEM_DATE_TIME_TIMER_HPP

/// @file
/// A stopwatch for measuring code. For times of day use `time` (`quor/system/date_time/time.hpp`).
///
///     quor::system::date_time::timer watch;
///     watch.start();
///     work();
///     watch.stop();
///     std::cout << watch.elapsed_time() << " microseconds\n";
///
/// @since 2.9

#include <quor/export.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::system::date_time {

/// The unit in which a timer measures. Every other value is as `resolution_seconds`.
/// @since 2.9
enum timer_resolution : int {
	/// Microseconds, from the system's finest clock: on POSIX systems `CLOCK_MONOTONIC` with its
	/// nanoseconds, on Windows the performance counter.
	resolution_microseconds = 0,
	/// Milliseconds, from a clock of 32 bits that begins anew every 49.7 days.
	resolution_milliseconds = 1,
	/// Seconds: the milliseconds divided by 1000.
	resolution_seconds = 2
};

/// Adds up intervals of time. In microseconds it takes off what a pair of `start` and `stop`
/// costs, once for each interval and once for a reading while an interval runs.
///
/// A value of four numbers; a copy of a running timer goes on from the same start. Not to
/// be shared between threads; the overhead, shared by all timers, has no lock and is to
/// be replaced while no other thread uses timers. Nothing here fails or allocates. `start` and
/// `stop` read the clock once each and cost little more than that.
/// @since 2.9
class QUOR_API_TYPE timer {
public:
	/// A stopped timer that has measured nothing.
	timer(timer_resolution resolution = resolution_microseconds) noexcept : m_resolution(resolution) {
		if (resolution == resolution_microseconds) {
			m_ticks_per_microsecond = windows_timer_frequency();
		}
	}

	/// Changes the clock and returns it. Another clock than the present one clears the timer,
	/// the present one does nothing.
	///
	/// The divisor of the microseconds stays with a timer that has once had them: one that is
	/// switched over to milliseconds or seconds tells them divided by the ticks of a microsecond
	/// (1000 on POSIX systems). Make a new timer instead.
	timer_resolution resolution(timer_resolution value) noexcept {
		if (value != m_resolution) {
			m_resolution = value;
			if (value == resolution_microseconds) {
				m_ticks_per_microsecond = windows_timer_frequency();
			}
			reset();
		}
		return value;
	}

	/// The clock in use.
	timer_resolution resolution() const noexcept { return m_resolution; }

	/// Begins an interval; one that runs is forgotten, the sum is kept.
	void start() noexcept { m_start_ticks = current_time(); }

	/// Ends the interval and adds it to the sum, in microseconds reduced by the overhead and not
	/// below 0. A stopped timer stays as it is.
	void stop() noexcept {
		if (is_timer_running()) {
			add_interval(current_time() - m_start_ticks);
		}
	}

	/// Forgets the sum and the interval that runs.
	void reset() noexcept {
		m_start_ticks = 0;
		m_accumulated_ticks = 0;
	}

	/// Forgets the sum and begins an interval.
	void restart() noexcept {
		reset();
		start();
	}

	/// The sum of all intervals, with what the running one has come to, in the timer's unit,
	/// cut to a whole number. While an interval runs the overhead is taken off the
	/// microseconds once more, not below 0.
	///
	/// There is no provision for a clock that begins anew: an interval in milliseconds over
	/// that moment comes out enormous.
	types::uint64 elapsed_time() const noexcept {
		types::uint64 ticks = m_accumulated_ticks;
		if (is_timer_running()) {
			ticks += current_time() - m_start_ticks;
		}
		types::uint64 const result = ticks / m_ticks_per_microsecond;
		if (m_resolution != resolution_microseconds || !is_timer_running()) {
			return result;
		}
		return result > m_overheadMicroseconds ? result - m_overheadMicroseconds : 0;
	}

	/// Whether an interval runs: whether the clock's value at its start isn't 0.
	bool is_timer_running() const noexcept { return m_start_ticks != 0; }

	/// The present value of the timer's clock, in its ticks.
	types::uint64 current_time() const noexcept {
		if (m_resolution == resolution_microseconds) {
			return counter_ticks();
		}
		return m_resolution == resolution_milliseconds ? counter_milliseconds() : counter_milliseconds() / 1000;
	}

	/// The ticks of the finest clock in a microsecond, on every system; a fraction is lost.
	QUOR_API types::uint64 windows_timer_frequency() const noexcept;

	/// What a pair of `start` and `stop` is taken to cost. Measured while the library is
	/// loaded, and 0 where that takes less than a microsecond.
	static types::uint64 overhead_microseconds() noexcept { return m_overheadMicroseconds; }
	/// Replaces the overhead, for all timers. 0 turns the correction off. The product with
	/// the ticks of a microsecond is to stay below 2^64.
	static void overhead_microseconds(types::uint64 value) noexcept { m_overheadMicroseconds = value; }

	/// The overhead itself, as the two functions tell.
	QUOR_API static types::uint64 m_overheadMicroseconds;

private:
	QUOR_API static types::uint64 counter_ticks() noexcept;
	QUOR_API static types::uint64 counter_milliseconds() noexcept;

	void add_interval(types::uint64 ticks) noexcept {
		if (m_resolution == resolution_microseconds) {
			types::uint64 const overhead = m_overheadMicroseconds * m_ticks_per_microsecond;
			ticks = ticks > overhead ? ticks - overhead : 0;
		}
		m_accumulated_ticks += ticks;
		m_start_ticks = 0;
	}

	timer_resolution m_resolution;
	types::uint64 m_start_ticks = 0;
	types::uint64 m_accumulated_ticks = 0;
	types::uint64 m_ticks_per_microsecond = 1;
};

/// Measures the overhead of timers when it is made, unless one is set already: the mean of
/// two pairs of `start` and `stop`, after one that is thrown away.
/// @since 2.9
struct QUOR_API_TYPE TimerOverheadTester {
	/// Measures the overhead.
	QUOR_API TimerOverheadTester() noexcept;
};

/// The object that measures the overhead while the library is loaded.
/// @since 2.9
extern QUOR_API TimerOverheadTester sAutoTester;

} // namespace QUOR_2_9::system::date_time

#endif
