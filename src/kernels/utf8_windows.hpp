#ifndef QUOR_KERNELS_UTF8_WINDOWS_HPP
#define QUOR_KERNELS_UTF8_WINDOWS_HPP

#include <cstddef>
#include <cstdint>

namespace QUOR_2_9::kernels {

/// How the sequences at the front of 12 bytes are laid out in lanes. Which bytes are the
/// last of a sequence is known as a mask of 12 bits.
struct utf8_windows {
	/// Where the kinds of windows begin: six sequences of 1 or 2 bytes go to lanes of 16
	/// bits, four of up to 3 bytes and three of up to 4 bytes to lanes of 32 bits.
	static constexpr unsigned of_three = 64;
	static constexpr unsigned of_four = of_three + 81;
	static constexpr unsigned count = of_four + 64;

	struct window {
		std::uint8_t shuffle;
		std::uint8_t bytes;
	};

	window windows[4096];
	/// For each byte of the lanes the byte of the text, the last of a sequence first; the
	/// highest bit stands for 0.
	std::uint8_t shuffles[count][16];
};

namespace detail {

/// A kind of window: `sequences` of up to `longest` bytes, each in `lane` bytes.
struct window_kind {
	unsigned first;
	unsigned sequences;
	unsigned longest;
	unsigned lane;
};

constexpr window_kind window_kinds[] = {
    {0, 6, 2, 2}, {utf8_windows::of_three, 4, 3, 4}, {utf8_windows::of_four, 3, 4, 4}};

/// Takes in the window whose sequences have the given sizes, if the kind holds them.
constexpr bool add_window(utf8_windows &to, unsigned mask, unsigned const *sizes, unsigned complete,
                          window_kind const &kind) noexcept {
	if (complete < kind.sequences) {
		return false;
	}
	unsigned shuffle = kind.first;
	unsigned scale = 1;
	unsigned bytes = 0;
	std::uint8_t lanes[16] = {};
	for (std::uint8_t &byte : lanes) {
		byte = 0x80;
	}
	for (unsigned i = 0; i != kind.sequences; ++i) {
		if (sizes[i] > kind.longest) {
			return false;
		}
		shuffle += (sizes[i] - 1) * scale;
		scale *= kind.longest;
		bytes += sizes[i];
		for (unsigned k = 0; k != sizes[i]; ++k) {
			lanes[i * kind.lane + k] = static_cast<std::uint8_t>(bytes - 1 - k);
		}
	}
	to.windows[mask] = {static_cast<std::uint8_t>(shuffle), static_cast<std::uint8_t>(bytes)};
	for (unsigned i = 0; i != 16; ++i) {
		to.shuffles[shuffle][i] = lanes[i];
	}
	return true;
}

} // namespace detail

constexpr utf8_windows make_utf8_windows() noexcept {
	utf8_windows made = {};
	for (unsigned mask = 0; mask != 4096; ++mask) {
		unsigned sizes[12] = {};
		unsigned complete = 0;
		unsigned begin = 0;
		for (unsigned at = 0; at != 12; ++at) {
			if ((mask >> at & 1) != 0) {
				sizes[complete++] = at + 1 - begin;
				begin = at + 1;
			}
		}
		for (detail::window_kind const &kind : detail::window_kinds) {
			if (detail::add_window(made, mask, sizes, complete, kind)) {
				break;
			}
		}
	}
	return made;
}

} // namespace QUOR_2_9::kernels

#endif
