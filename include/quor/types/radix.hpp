#ifndef QUOR_TYPES_RADIX_HPP
#define QUOR_TYPES_RADIX_HPP

/// @file
/// The radix of a number in text form: `radix_t::base`, an enumeration whose value
/// is the radix itself; 0 means that the text tells it by a prefix.
///
///     namespace convert = quor::generic::convert;
///     convert::str_to_int("ff", 0, quor::types::radix_t::hexadecimal, true);   // 255
///     convert::str_to_int("ff", 0, 16, true);                                  // the same
///
/// @since 2.9

#include <limits>
#include <type_traits>

#include <quor/version.hpp>

namespace QUOR_2_9::types {

/// Holds the enumeration `base`; no object of this class is needed.
/// @since 2.9
struct radix_t {
	/// A radix: its value, or 0 for detection from the text. Any 32-bit value can be
	/// held; operations say what they do with one that is neither 0 nor 2 to 36.
	/// @since 2.9
	enum base : unsigned int {
		detect = 0,       ///< The text's prefix decides: "0x" 16, "0b" 2, "0" 8, none 10.
		binary = 2,       ///< Digits 0 and 1.
		octal = 8,        ///< Digits 0 to 7.
		decimal = 10,     ///< Digits 0 to 9.
		hexadecimal = 16, ///< Digits 0 to 9 and A to F, in either case.
		largest = 36      ///< Digits 0 to 9 and A to Z, in either case.
	};

	/// The enumerator with the given value. A value that has no place in 32 unsigned
	/// bits, such as a negative one, gives the largest one, which is no valid radix.
	/// @since 2.9
	template <class Integer>
	static constexpr base of(Integer value) noexcept {
		static_assert(std::is_integral_v<Integer>, "a radix is an integer");
		constexpr unsigned int no_radix = (std::numeric_limits<unsigned int>::max)();
		if constexpr (std::is_signed_v<Integer>) {
			if (value < 0) {
				return static_cast<base>(no_radix);
			}
		}
		if (static_cast<std::make_unsigned_t<Integer>>(value) > no_radix) {
			return static_cast<base>(no_radix);
		}
		return static_cast<base>(value);
	}
};

} // namespace QUOR_2_9::types

#endif
