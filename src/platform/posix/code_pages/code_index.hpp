#ifndef QUOR_PLATFORM_POSIX_CODE_PAGES_CODE_INDEX_HPP
#define QUOR_PLATFORM_POSIX_CODE_PAGES_CODE_INDEX_HPP

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace QUOR_2_9::platform {

/// From UTF-16 units to what they are in a page: the units in blocks of 64. The first
/// ones, as many as the page wants, stand at their own place, so that one look is enough
/// for them; of the others those without a character share one block.
template <class Value, class Number, std::size_t Blocks>
struct code_index {
	std::array<Number, 1024> block_of{};
	std::array<Value, Blocks * 64> values{};
};

/// The two parts of an index, whatever their size.
template <class Value, class Number>
struct code_index_view {
	Number const *block_of;
	Value const *values;

	constexpr Value operator[](unsigned unit) const noexcept {
		return values[(static_cast<unsigned>(block_of[unit >> 6]) << 6) + (unit & 63U)];
	}
};

/// How many blocks an index needs of which `own` stand at their own place. `each` calls
/// what it is given with every unit and value, in the order in which a later value of a
/// unit gives way to an earlier one.
template <class Each>
constexpr std::size_t count_blocks(std::size_t own, Each each) {
	std::array<bool, 1024> used{};
	std::size_t count = own + 1;
	each([&](char16_t unit, auto) {
		std::size_t const block = unit >> 6;
		count += block < own || used[block] ? 0 : 1;
		used[block] = true;
	});
	return count;
}

/// The index of all that `each` tells, with `absent` for the rest.
template <class Value, class Number, std::size_t Blocks, class Each>
constexpr code_index<Value, Number, Blocks> make_index(Number own, Value absent, Each each) {
	static_assert(Blocks - 1 <= std::numeric_limits<Number>::max());
	code_index<Value, Number, Blocks> result;
	result.values.fill(absent);
	result.block_of.fill(own);
	for (Number block = 0; block != own; ++block) {
		result.block_of[block] = block;
	}
	Number last = own;
	each([&](char16_t unit, Value value) {
		Number &block = result.block_of[unit >> 6];
		block = block != own ? block : ++last;
		Value &place = result.values[(static_cast<std::size_t>(block) << 6) + (unit & 63U)];
		if (place == absent) {
			place = value;
		}
	});
	return result;
}

} // namespace QUOR_2_9::platform

#endif
