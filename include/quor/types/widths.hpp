#ifndef QUOR_TYPES_WIDTHS_HPP
#define QUOR_TYPES_WIDTHS_HPP

/// @file
/// The library's fixed widths. Its interface is written in units of 8, 16 and 32
/// bits and in numbers of 32 and 64 bits; on Windows these are `wchar_t`,
/// `unsigned long`, `long` and `long long`, elsewhere types of the same width
/// that stay distinct in every overload set. This is the one header that knows
/// the platform; all others use the aliases below.
///
///     quor::strings::ustring16 w(QUOR_W("text"));
///     quor::types::variant holder(quor::types::ulong_t(7));
///
/// @since 2.9

#include <climits>
#include <cstddef>
#include <cstdint>
#include <cwchar>
#include <ios>
#include <string>
#include <type_traits>

#include <quor/export.hpp>
#include <quor/version.hpp>

#if !defined(__cplusplus) || __cplusplus < 201703L
#  error "quor needs a compiler in C++17 mode or later"
#endif

namespace QUOR_2_9::types {

#if defined(_WIN32)

/// The 16-bit text unit (UTF-16).
using wide_char = wchar_t;
/// The 32-bit text unit (UTF-32).
using utf32_char = unsigned long;
/// A signed number of 32 bits in parameters and results.
using int32 = long;
/// An unsigned number of 32 bits in parameters and results.
using uint32 = unsigned long;

#else

/// The 16-bit text unit (UTF-16).
using wide_char = char16_t;
/// The 32-bit text unit (UTF-32).
using utf32_char = char32_t;
/// A signed number of 32 bits in parameters and results.
using int32 = std::int32_t;
/// An unsigned number of 32 bits in parameters and results.
using uint32 = std::uint32_t;

#endif

/// A signed number of 64 bits.
using int64 = long long;
/// An unsigned number of 64 bits.
using uint64 = unsigned long long;

/// The identifier of an object: wide enough for its whole address.
using address_id = std::conditional_t<sizeof(unsigned long) == sizeof(void *), unsigned long, std::uintptr_t>;

namespace detail {

/// A 32-bit number that is a type of its own beside `Number`, so that a holder of
/// it can be told from a holder of `Number`. Converts implicitly both ways.
template <class Number>
class QUOR_API_TYPE distinct_number {
public:
	/// The number 0.
	constexpr distinct_number() noexcept = default;
	/// The given number.
	constexpr distinct_number(Number value) noexcept : m_value(value) {}
	/// The number held.
	constexpr operator Number() const noexcept { return m_value; }

private:
	Number m_value = 0;
};

/// Stands in an overload set for a type that the target doesn't have; no object
/// of it exists.
template <class Tag>
class absent {
public:
	absent() = delete;
};

/// Character traits for a unit type for which the standard gives none.
template <class Unit>
struct unit_traits {
	using char_type = Unit;
	using int_type = std::conditional_t<(sizeof(Unit) < sizeof(long long)), long long, Unit>;
	using off_type = std::streamoff;
	using pos_type = std::streampos;
	using state_type = std::mbstate_t;

	static constexpr void assign(char_type &to, char_type const &from) noexcept { to = from; }
	static constexpr bool eq(char_type a, char_type b) noexcept { return a == b; }
	static constexpr bool lt(char_type a, char_type b) noexcept { return a < b; }

	static constexpr int compare(char_type const *a, char_type const *b, std::size_t count) noexcept {
		for (std::size_t i = 0; i != count; ++i) {
			if (a[i] != b[i]) {
				return a[i] < b[i] ? -1 : 1;
			}
		}
		return 0;
	}

	static constexpr std::size_t length(char_type const *text) noexcept {
		std::size_t count = 0;
		while (text[count] != char_type()) {
			++count;
		}
		return count;
	}

	static constexpr char_type const *find(char_type const *text, std::size_t count, char_type const &unit) noexcept {
		for (std::size_t i = 0; i != count; ++i) {
			if (text[i] == unit) {
				return text + i;
			}
		}
		return nullptr;
	}

	static constexpr char_type *move(char_type *to, char_type const *from, std::size_t count) noexcept {
		if (to < from) {
			return copy(to, from, count);
		}
		for (std::size_t i = count; i != 0; --i) {
			to[i - 1] = from[i - 1];
		}
		return to;
	}

	static constexpr char_type *copy(char_type *to, char_type const *from, std::size_t count) noexcept {
		for (std::size_t i = 0; i != count; ++i) {
			to[i] = from[i];
		}
		return to;
	}

	static constexpr char_type *assign(char_type *to, std::size_t count, char_type unit) noexcept {
		for (std::size_t i = 0; i != count; ++i) {
			to[i] = unit;
		}
		return to;
	}

	static constexpr char_type to_char_type(int_type value) noexcept { return static_cast<char_type>(value); }
	static constexpr int_type to_int_type(char_type unit) noexcept { return static_cast<int_type>(unit); }
	static constexpr bool eq_int_type(int_type a, int_type b) noexcept { return a == b; }
	static constexpr int_type eof() noexcept { return static_cast<int_type>(-1); }
	static constexpr int_type not_eof(int_type value) noexcept { return value == eof() ? 0 : value; }
};

} // namespace detail

#if defined(_WIN32)

/// The signed 32-bit number that `variant` holds as a type of its own.
using long_t = long;
/// The unsigned 32-bit number that `variant` holds as a type of its own.
using ulong_t = unsigned long;

/// Character traits of the 32-bit unit.
using utf32_traits = detail::unit_traits<utf32_char>;

#else

/// The signed 32-bit number that `variant` holds as a type of its own.
using long_t = detail::distinct_number<int32>;
/// The unsigned 32-bit number that `variant` holds as a type of its own.
using ulong_t = detail::distinct_number<uint32>;

/// Character traits of the 32-bit unit.
using utf32_traits = std::char_traits<utf32_char>;

#endif

/// The native `long` where it has 64 bits and so is another type than `long_t`;
/// elsewhere a type that no argument can have.
using native_long64 = std::conditional_t<sizeof(long) == 8, long, detail::absent<long>>;
/// The native `unsigned long` where it has 64 bits; elsewhere a type that no
/// argument can have.
using native_ulong64 = std::conditional_t<sizeof(unsigned long) == 8, unsigned long, detail::absent<unsigned long>>;

/// The standard string of 16-bit units: `std::wstring` on Windows.
using wide_string = std::basic_string<wide_char>;
/// The standard string of 32-bit units.
using utf32_string = std::basic_string<utf32_char, utf32_traits>;

static_assert(CHAR_BIT == 8, "quor needs bytes of 8 bits");
static_assert(sizeof(int) == 4 && sizeof(short) == 2, "quor needs an int of 32 and a short of 16 bits");
static_assert(sizeof(wide_char) == 2 && !std::is_signed_v<wide_char>, "the wide unit has 16 bits, unsigned");
static_assert(sizeof(utf32_char) == 4 && !std::is_signed_v<utf32_char>, "the UTF-32 unit has 32 bits, unsigned");
static_assert(sizeof(int32) == 4 && sizeof(uint32) == 4 && sizeof(long_t) == 4 && sizeof(ulong_t) == 4);
static_assert(sizeof(int64) == 8 && sizeof(uint64) == 8);
static_assert(sizeof(address_id) == sizeof(void *));
static_assert(!std::is_same_v<long_t, int> && !std::is_same_v<ulong_t, unsigned int>,
              "the held long types are distinct from int");
static_assert(!std::is_same_v<utf32_char, wide_char> && !std::is_same_v<utf32_char, char>);
static_assert(std::is_trivially_copyable_v<long_t> && std::is_trivially_copyable_v<ulong_t>);

} // namespace QUOR_2_9::types

/// @def QUOR_W(literal)
/// A string or character literal of wide (16-bit) units: `QUOR_W("text")`, `QUOR_W('c')`.
/// @def QUOR_U32(literal)
/// A string or character literal of 32-bit units: `QUOR_U32("text")`, `QUOR_U32('c')`.
#if defined(_WIN32)
#  define QUOR_W(literal) L##literal
// clang-format off
#  define QUOR_U32(literal) \
	([]() noexcept { \
		static constexpr auto quor_literal = ::QUOR_2_9::types::detail::utf32_literal(U##literal); \
		return ::QUOR_2_9::types::detail::utf32_literal_value(quor_literal); \
	}())
// clang-format on
#else
#  define QUOR_W(literal) u##literal
#  define QUOR_U32(literal) U##literal
#endif

namespace QUOR_2_9::types::detail {

/// A `char32_t` string literal as units of the library's 32-bit type.
template <std::size_t Size>
struct utf32_literal_text {
	utf32_char units[Size];
};

/// Converts a `char32_t` string literal, unit by unit.
template <std::size_t Size>
constexpr utf32_literal_text<Size> utf32_literal(char32_t const (&text)[Size]) noexcept {
	utf32_literal_text<Size> result{};
	for (std::size_t i = 0; i != Size; ++i) {
		result.units[i] = static_cast<utf32_char>(text[i]);
	}
	return result;
}

/// Converts a `char32_t` character literal.
constexpr utf32_char utf32_literal(char32_t unit) noexcept {
	return static_cast<utf32_char>(unit);
}

/// The first unit of a converted string literal.
template <std::size_t Size>
constexpr utf32_char const *utf32_literal_value(utf32_literal_text<Size> const &text) noexcept {
	return text.units;
}

/// The converted character literal itself.
constexpr utf32_char utf32_literal_value(utf32_char unit) noexcept {
	return unit;
}

} // namespace QUOR_2_9::types::detail

#endif
