#ifndef QUOR_TESTS_PLATFORM_SCRIPTED_SCRIPTED_CLOCK_HPP
#define QUOR_TESTS_PLATFORM_SCRIPTED_SCRIPTED_CLOCK_HPP

// Clocks that show what the test tells them.
//
//     auto &clock = quor_test::fresh_clock();
//     clock.ticks = 5000;                          // the next reading
//     clock.step = 10;                             // what each reading adds
//     clock.script({0, 7});                        // or the next readings one by one

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "platform/wall_clock.hpp"

namespace quor_test {

// Usable before any static object is built: the library reads it while it is loaded.
struct scripted_clock {
	std::uint64_t ticks = 1000000;
	std::uint64_t step = 2500;
	std::uint64_t frequency = 1000000000;
	std::uint32_t milliseconds = 0;
	QUOR_2_9::platform::wall_clock_fields local;
	QUOR_2_9::platform::wall_clock_fields utc;

	std::size_t tick_readings = 0;
	std::size_t frequency_readings = 0;
	std::size_t millisecond_readings = 0;
	std::size_t wall_readings = 0;

	// These are read first, then `ticks` goes on.
	void script(std::initializer_list<std::uint64_t> values) {
		std::copy(values.begin(), values.end(), scripted.begin());
		scripted_count = values.size();
		scripted_at = 0;
	}

	std::array<std::uint64_t, 16> scripted{};
	std::size_t scripted_count = 0;
	std::size_t scripted_at = 0;
};

// The clocks that the platform shows; and the same after they were set anew.
scripted_clock &clock();
scripted_clock &fresh_clock();

} // namespace quor_test

#endif
