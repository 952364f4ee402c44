#ifndef QUOR_PLATFORM_POSIX_CODE_PAGES_UNIT_SINK_HPP
#define QUOR_PLATFORM_POSIX_CODE_PAGES_UNIT_SINK_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// A size as the service tells it: 0 where it has no number for it.
constexpr types::int32 size_result(std::uint64_t size) noexcept {
	return size <= std::uint64_t(std::numeric_limits<types::int32>::max()) ? static_cast<types::int32>(size) : 0;
}

/// Where a conversion puts its units when only their number is asked for.
template <class Unit>
class unit_counter {
public:
	/// Takes the units of one character; false to stop.
	template <class... Units>
	bool put(Units... units) noexcept {
		m_count += sizeof...(units);
		return true;
	}
	types::int32 result() const noexcept { return size_result(m_count); }

private:
	std::uint64_t m_count = 0;
};

/// The same for a place of limited room.
template <class Unit>
class unit_writer {
public:
	unit_writer(Unit *out, types::int32 size) noexcept : m_begin(out), m_at(out), m_end(out + size) {}

	template <class... Units>
	bool put(Units... units) noexcept {
		if (room() < sizeof...(units)) {
			m_full = true;
			return false;
		}
		((*m_at++ = static_cast<Unit>(units)), ...);
		return true;
	}
	/// The same for units that stand one behind the other.
	bool put_all(Unit const *units, std::size_t count) noexcept {
		m_full = m_full || room() < count;
		if (!m_full) {
			m_at = std::copy_n(units, count, m_at);
		}
		return !m_full;
	}
	/// Where the next unit goes, for loops that write by themselves: there is place for
	/// `room()` units, and `continue_at` tells where they stopped.
	Unit *at() const noexcept { return m_at; }
	std::size_t room() const noexcept { return static_cast<std::size_t>(m_end - m_at); }
	void continue_at(Unit *at) noexcept { m_at = at; }

	types::int32 result() const noexcept { return m_full ? 0 : static_cast<types::int32>(m_at - m_begin); }

private:
	Unit *m_begin;
	Unit *m_at;
	Unit *m_end;
	bool m_full = false;
};

/// Runs a conversion into the sink that the arguments of the service ask for.
template <class Unit, class Convert>
types::int32 with_sink(Unit *out, types::int32 size, Convert convert) {
	if (out == nullptr || size == 0) {
		unit_counter<Unit> counter;
		convert(counter);
		return counter.result();
	}
	unit_writer<Unit> writer(out, size);
	convert(writer);
	return writer.result();
}

} // namespace QUOR_2_9::platform

#endif
