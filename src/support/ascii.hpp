#ifndef QUOR_SUPPORT_ASCII_HPP
#define QUOR_SUPPORT_ASCII_HPP

/// Classes and case of ASCII characters, for units of any width. A unit is taken by its
/// numeric value and no locale is asked: what isn't ASCII is in no class and maps to itself.
namespace QUOR_2_9::support {

/// Whether `unit` is one of the characters from `first` to `last`.
template <class Unit>
constexpr bool is_between(Unit unit, char first, char last) noexcept {
	return unit >= static_cast<Unit>(first) && unit <= static_cast<Unit>(last);
}

/// A blank, a tab, or one of the characters that end a line or a page.
template <class Unit>
constexpr bool is_blank(Unit unit) noexcept {
	return unit == static_cast<Unit>(' ') || is_between(unit, '\t', '\r');
}

template <class Unit>
constexpr bool is_digit(Unit unit) noexcept {
	return is_between(unit, '0', '9');
}

template <class Unit>
constexpr bool is_lower(Unit unit) noexcept {
	return is_between(unit, 'a', 'z');
}

template <class Unit>
constexpr bool is_upper(Unit unit) noexcept {
	return is_between(unit, 'A', 'Z');
}

template <class Unit>
constexpr bool is_letter(Unit unit) noexcept {
	return is_lower(unit) || is_upper(unit);
}

template <class Unit>
constexpr bool is_hex_digit(Unit unit) noexcept {
	return is_digit(unit) || is_between(unit, 'A', 'F') || is_between(unit, 'a', 'f');
}

template <class Unit>
constexpr Unit to_lower(Unit unit) noexcept {
	return is_upper(unit) ? static_cast<Unit>(unit + ('a' - 'A')) : unit;
}

template <class Unit>
constexpr Unit to_upper(Unit unit) noexcept {
	return is_lower(unit) ? static_cast<Unit>(unit - ('a' - 'A')) : unit;
}

/// Whether `unit` is the letter `lower`, a lower-case one, in either case.
template <class Unit>
constexpr bool is_letter_in_any_case(Unit unit, char lower) noexcept {
	return to_lower(unit) == static_cast<Unit>(lower);
}

} // namespace QUOR_2_9::support

#endif
