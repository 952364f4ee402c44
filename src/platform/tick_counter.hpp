#ifndef QUOR_PLATFORM_TICK_COUNTER_HPP
#define QUOR_PLATFORM_TICK_COUNTER_HPP

#include <cstdint>

namespace QUOR_2_9::platform {

/// The value of a clock that never goes back, and never 0. It has at least a million ticks
/// in a second.
std::uint64_t counter_ticks() noexcept;

/// How many ticks of that clock make a second; always the same in one process.
std::uint64_t counter_frequency() noexcept;

/// The milliseconds since some fixed moment, modulo 2^32.
std::uint32_t counter_milliseconds() noexcept;

} // namespace QUOR_2_9::platform

#endif
