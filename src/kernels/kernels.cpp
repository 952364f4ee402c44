#include "kernels/kernels.hpp"

#include <atomic>
#include <iterator>

#include "kernels/variants.hpp"

namespace QUOR_2_9::kernels {
namespace {

constexpr variant const *compiled[] = {
#if defined(__x86_64__) || defined(__i386__)
    &avx2_variant, &sse41_variant,
#endif
    &portable_variant};

constinit std::atomic<variant const *> chosen{nullptr};

variant const &choose() noexcept {
	variant const *const *first = std::begin(compiled);
	while (!(*first)->runs_here()) {
		++first;
	}
	// Threads that come here at once store the same.
	chosen.store(*first, std::memory_order_release);
	return **first;
}

} // namespace

variant_list all_variants() noexcept {
	return {std::begin(compiled), std::end(compiled)};
}

variant const &chosen_variant() noexcept {
	variant const *const known = chosen.load(std::memory_order_acquire);
	return known != nullptr ? *known : choose();
}

progress utf8_to_utf16(char const *in, std::size_t size, types::wide_char *out, std::size_t room) noexcept {
	return chosen_variant().utf8_to_utf16(in, size, out, room);
}

progress utf8_to_utf32(char const *in, std::size_t size, types::utf32_char *out, std::size_t room) noexcept {
	return chosen_variant().utf8_to_utf32(in, size, out, room);
}

progress utf16_to_utf8(types::wide_char const *in, std::size_t size, char *out, std::size_t room) noexcept {
	return chosen_variant().utf16_to_utf8(in, size, out, room);
}

progress utf16_to_utf32(types::wide_char const *in, std::size_t size, types::utf32_char *out,
                        std::size_t room) noexcept {
	return chosen_variant().utf16_to_utf32(in, size, out, room);
}

progress utf32_to_utf8(types::utf32_char const *in, std::size_t size, char *out, std::size_t room) noexcept {
	return chosen_variant().utf32_to_utf8(in, size, out, room);
}

progress utf32_to_utf16(types::utf32_char const *in, std::size_t size, types::wide_char *out,
                        std::size_t room) noexcept {
	return chosen_variant().utf32_to_utf16(in, size, out, room);
}

} // namespace QUOR_2_9::kernels
