#include "kernels/kernels.hpp"

#include <algorithm>
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

variant const &choose() noexcept;

/// What is called until a variant is chosen: chooses, then goes on with that.
template <class In, class Out, conversion<In, Out> variant::*Kernel>
progress choose_first(In const *in, std::size_t size, Out *out, std::size_t room) noexcept {
	return (choose().*Kernel)(in, size, out, room);
}

constinit variant const undecided = {"undecided",
                                     nullptr,
                                     &choose_first<char, types::wide_char, &variant::utf8_to_utf16>,
                                     &choose_first<char, types::utf32_char, &variant::utf8_to_utf32>,
                                     &choose_first<types::wide_char, char, &variant::utf16_to_utf8>,
                                     &choose_first<types::wide_char, types::utf32_char, &variant::utf16_to_utf32>,
                                     &choose_first<types::utf32_char, char, &variant::utf32_to_utf8>,
                                     &choose_first<types::utf32_char, types::wide_char, &variant::utf32_to_utf16>};

constinit std::atomic<variant const *> chosen{&undecided};

variant const &choose() noexcept {
	// The last one runs anywhere.
	auto const *const first = std::find_if(std::begin(compiled), std::prev(std::end(compiled)),
	                                       [](variant const *each) { return each->runs_here(); });
	// Threads that come here at once store the same.
	chosen.store(*first, std::memory_order_release);
	return **first;
}

/// The variant to call, chosen or not: a test for that would take as long as a short text.
variant const &current() noexcept {
	return *chosen.load(std::memory_order_acquire);
}

} // namespace

variant_list all_variants() noexcept {
	return {std::begin(compiled), std::end(compiled)};
}

variant const &chosen_variant() noexcept {
	return &current() != &undecided ? current() : choose();
}

progress utf8_to_utf16(char const *in, std::size_t size, types::wide_char *out, std::size_t room) noexcept {
	return current().utf8_to_utf16(in, size, out, room);
}

progress utf8_to_utf32(char const *in, std::size_t size, types::utf32_char *out, std::size_t room) noexcept {
	return current().utf8_to_utf32(in, size, out, room);
}

progress utf16_to_utf8(types::wide_char const *in, std::size_t size, char *out, std::size_t room) noexcept {
	return current().utf16_to_utf8(in, size, out, room);
}

progress utf16_to_utf32(types::wide_char const *in, std::size_t size, types::utf32_char *out,
                        std::size_t room) noexcept {
	return current().utf16_to_utf32(in, size, out, room);
}

progress utf32_to_utf8(types::utf32_char const *in, std::size_t size, char *out, std::size_t room) noexcept {
	return current().utf32_to_utf8(in, size, out, room);
}

progress utf32_to_utf16(types::utf32_char const *in, std::size_t size, types::wide_char *out,
                        std::size_t room) noexcept {
	return current().utf32_to_utf16(in, size, out, room);
}

} // namespace QUOR_2_9::kernels
