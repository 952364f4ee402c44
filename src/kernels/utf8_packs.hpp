#ifndef QUOR_KERNELS_UTF8_PACKS_HPP
#define QUOR_KERNELS_UTF8_PACKS_HPP

#include <cstdint>

namespace QUOR_2_9::kernels {

/// How the bytes of some sequences, which stand in lanes as if all were of the longest
/// form, are put together. A mask tells the forms.
struct utf8_packs {
	struct pack {
		std::uint8_t shuffle[16];
		std::uint8_t bytes;
	};

	/// Eight lanes of 2 bytes, lead and last; a bit for each lane whose sequence has 2.
	pack of_two[256];
	/// Four lanes of 4 bytes: middle, last, lead, nothing; lanes whose sequence has 2 bytes
	/// or more have a bit among the lower four, those of 3 one among the upper four too.
	pack of_three[256];
};

constexpr utf8_packs make_utf8_packs() noexcept {
	utf8_packs made = {};
	auto const add = [](utf8_packs::pack &to, unsigned byte) {
		to.shuffle[to.bytes++] = static_cast<std::uint8_t>(byte);
	};
	for (unsigned mask = 0; mask != 256; ++mask) {
		for (unsigned lane = 0; lane != 8; ++lane) {
			if ((mask >> lane & 1) != 0) {
				add(made.of_two[mask], 2 * lane);
			}
			add(made.of_two[mask], 2 * lane + 1);
		}
		for (unsigned lane = 0; lane != 4; ++lane) {
			if ((mask >> (lane + 4) & 1) != 0) {
				add(made.of_three[mask], 4 * lane + 2);
			}
			if ((mask >> lane & 1) != 0) {
				add(made.of_three[mask], 4 * lane);
			}
			add(made.of_three[mask], 4 * lane + 1);
		}
	}
	return made;
}

} // namespace QUOR_2_9::kernels

#endif
