#include <quor/system/date_time/timer.hpp>

#include "platform/tick_counter.hpp"
#include "support/early_init.hpp"

namespace QUOR_2_9::system::date_time {
namespace {

types::uint64 measured_interval(timer &watch) noexcept {
	watch.restart();
	watch.stop();
	return watch.elapsed_time();
}

} // namespace

// Constant, so that it is there before the measurement below and before every user.
constinit types::uint64 timer::m_overheadMicroseconds = 0;

QUOR_EARLY_INIT TimerOverheadTester sAutoTester;

types::uint64 timer::windows_timer_frequency() const noexcept {
	return platform::counter_frequency() / 1000000;
}

types::uint64 timer::counter_ticks() noexcept {
	return platform::counter_ticks();
}

types::uint64 timer::counter_milliseconds() noexcept {
	return platform::counter_milliseconds();
}

TimerOverheadTester::TimerOverheadTester() noexcept {
	if (timer::m_overheadMicroseconds != 0) {
		return;
	}
	timer watch;
	measured_interval(watch); // warms the code up
	types::uint64 const first = measured_interval(watch);
	types::uint64 const second = measured_interval(watch);
	timer::m_overheadMicroseconds = (first + second) >> 1;
}

} // namespace QUOR_2_9::system::date_time
