#include "platform/scripted/scripted_clock.hpp"

#include "platform/tick_counter.hpp"

namespace quor_test {
namespace {

constinit scripted_clock the_clock;

} // namespace

scripted_clock &clock() {
	return the_clock;
}

scripted_clock &fresh_clock() {
	return the_clock = scripted_clock();
}

} // namespace quor_test

namespace QUOR_2_9::platform {

using quor_test::clock;

std::uint64_t counter_ticks() noexcept {
	auto &now = clock();
	++now.tick_readings;
	if (now.scripted_at != now.scripted_count) {
		return now.scripted[now.scripted_at++];
	}
	std::uint64_t const result = now.ticks;
	now.ticks += now.step;
	return result;
}

std::uint64_t counter_frequency() noexcept {
	++clock().frequency_readings;
	return clock().frequency;
}

std::uint32_t counter_milliseconds() noexcept {
	++clock().millisecond_readings;
	return clock().milliseconds;
}

wall_clock_fields local_wall_clock() noexcept {
	++clock().wall_readings;
	return clock().local;
}

wall_clock_fields utc_wall_clock() noexcept {
	++clock().wall_readings;
	return clock().utc;
}

} // namespace QUOR_2_9::platform
