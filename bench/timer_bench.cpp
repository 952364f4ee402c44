// A measured interval beside two bare readings of the same clock.

#include <cstdint>
#include <ctime>

#include <quor/quor.hpp>

#include "frame/frame.hpp"

namespace {

using quor::system::date_time::timer;

std::uint64_t nanoseconds() {
	timespec now;
	clock_gettime(CLOCK_MONOTONIC, &now);
	return static_cast<std::uint64_t>(now.tv_sec) * 1000000000U + static_cast<std::uint64_t>(now.tv_nsec);
}

void with_library(benchmark::State &state) {
	timer watch;
	for (auto _ : state) {
		watch.start();
		watch.stop();
		benchmark::DoNotOptimize(watch);
	}
}

void with_clock_gettime(benchmark::State &state) {
	std::uint64_t sum = 0;
	for (auto _ : state) {
		std::uint64_t const start = nanoseconds();
		sum += nanoseconds() - start;
		benchmark::DoNotOptimize(sum);
	}
}

// The two readings alone, with nothing made of them.
void with_bare_clock_gettime(benchmark::State &state) {
	for (auto _ : state) {
		timespec start;
		timespec end;
		clock_gettime(CLOCK_MONOTONIC, &start);
		benchmark::DoNotOptimize(start);
		clock_gettime(CLOCK_MONOTONIC, &end);
		benchmark::DoNotOptimize(end);
	}
}

void describe() {
	timer watch;
	std::uint64_t const outer_start = nanoseconds();
	watch.start();
	std::uint64_t const inner_start = nanoseconds();
	while (nanoseconds() - inner_start < 2000000) {
	}
	watch.stop();
	std::uint64_t const outer = nanoseconds() - outer_start;
	if (watch.elapsed_time() + timer::overhead_microseconds() < 2000 || watch.elapsed_time() > outer / 1000) {
		bench::disagree("the interval");
	}
	char const *const operation = "start and stop of a timer";
	bench::operation(operation, bench::library, &with_library);
	bench::operation(operation, "clock_gettime twice, subtracted", &with_clock_gettime);
	bench::operation(operation, "clock_gettime twice", &with_bare_clock_gettime);
	bench::limit(operation, "clock_gettime twice, subtracted", 1.1);
	bench::limit(operation, "clock_gettime twice", 1.1);
}

bench::entry const added(&describe);

} // namespace
