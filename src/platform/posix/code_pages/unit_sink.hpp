#ifndef QUOR_PLATFORM_POSIX_CODE_PAGES_UNIT_SINK_HPP
#define QUOR_PLATFORM_POSIX_CODE_PAGES_UNIT_SINK_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

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
	/// Takes a run of units that stay as they are.
	template <class Source>
	bool copy(Source const *, std::size_t count) noexcept {
		m_count += count;
		return true;
	}
	types::int32 result() const noexcept {
		return m_count <= std::size_t(std::numeric_limits<types::int32>::max()) ? static_cast<types::int32>(m_count)
		                                                                        : 0;
	}

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
	template <class Source>
	bool copy(Source const *from, std::size_t count) noexcept {
		std::size_t const taken = std::min(count, room());
		m_at = std::transform(from, from + taken, m_at, [](Source unit) { return static_cast<Unit>(unit); });
		m_full = taken != count;
		return !m_full;
	}
	/// Room for a whole step of `Count` units; null where there is less.
	template <std::size_t Count>
	Unit *claim() noexcept {
		if (room() < Count) {
			return nullptr;
		}
		m_at += Count;
		return m_at - Count;
	}
	types::int32 result() const noexcept { return m_full ? 0 : static_cast<types::int32>(m_at - m_begin); }

private:
	std::size_t room() const noexcept { return static_cast<std::size_t>(m_end - m_at); }

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
