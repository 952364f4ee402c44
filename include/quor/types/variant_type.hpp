#ifndef QUOR_TYPES_VARIANT_TYPE_HPP
#define QUOR_TYPES_VARIANT_TYPE_HPP

/// @file
/// The holders of `variant`: one abstract class and one class for each of the twenty
/// types that can be held. Programs use `quor/types/variant.hpp`; this header is for
/// those who look into a holder or measure its cost.
///
///     using namespace quor;
///     using holder = types::variant_value_t<int>;
///     memory::pointers::rc_pointer<types::variant_type> held(
///         generic::abilities::create_dynamic<holder>(5));
///     held->as_double();      // 5.0
///
/// @since 2.9

#include <iosfwd>
#include <string>
#include <typeinfo>
#include <utility>

#include <quor/export.hpp>
#include <quor/generic/abilities/clone_ability.hpp>
#include <quor/generic/abilities/reference_count_pointer_ability.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/nil.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::types {

namespace detail {
struct held_text;
}

/// An immutable value of any type, with every conversion.
///
/// What the conversions give is told at `variant`. The order of the virtual functions is
/// part of the binary interface. Thread-safety: immutable, so any number of readers.
/// @since 2.9
class QUOR_API variant_type : public generic::abilities::clone_ability,
                              public generic::abilities::reference_count_pointer_ability<variant_type> {
public:
	/// Destroys the held value. @since 2.9
	~variant_type() override;

	/// True in every holder. @since 2.9
	virtual bool is_set() const = 0;
	/// The held type. @since 2.9
	virtual std::type_info const &type() const = 0;
	/// A new heap holder of the same value with count 0 and the created-dynamic flag set;
	/// the caller owns it. @since 2.9
	virtual variant_type *clone() const = 0;
	/// Writes the value and returns the stream. @since 2.9
	virtual std::ostream &ostream(std::ostream &stream) const = 0;

	/// The value as an `int`. @since 2.9
	virtual int as_int() const = 0;
	/// The value as a `short`. @since 2.9
	virtual short as_short() const = 0;
	/// The value as a 32-bit `long`. @since 2.9
	virtual int32 as_long() const = 0;
	/// The value as a signed number of 8 bits. @since 2.9
	virtual signed char as_int8() const = 0;
	/// The value as a signed number of 16 bits. @since 2.9
	virtual short as_int16() const = 0;
	/// The value as a signed number of 32 bits. @since 2.9
	virtual int32 as_int32() const = 0;
	/// The value as a signed number of 64 bits. @since 2.9
	virtual int64 as_int64() const = 0;
	/// The value as an unsigned number of 8 bits. @since 2.9
	virtual unsigned char as_uint8() const = 0;
	/// The value as an unsigned number of 16 bits. @since 2.9
	virtual unsigned short as_uint16() const = 0;
	/// The value as an unsigned number of 32 bits. @since 2.9
	virtual uint32 as_uint32() const = 0;
	/// The value as an unsigned number of 64 bits. @since 2.9
	virtual uint64 as_uint64() const = 0;
	/// The value as a truth value. @since 2.9
	virtual bool as_bool() const = 0;
	/// The value as UTF-8. A nil holder gives "0" here and in the five below, where a
	/// `variant` gives empty text. @since 2.9
	virtual std::string as_string() const = 0;
	/// The value as UTF-16. @since 2.9
	virtual wide_string as_wstring() const = 0;
	/// The value as UTF-16. @since 2.9
	virtual wide_string as_ustring() const = 0;
	/// The value as UTF-8. @since 2.9
	virtual strings::ustring8 as_utf8() const = 0;
	/// The value as UTF-16. @since 2.9
	virtual strings::ustring16 as_utf16() const = 0;
	/// The value as UTF-32. @since 2.9
	virtual strings::ustring32 as_utf32() const = 0;
	/// The value as a `float`. @since 2.9
	virtual float as_float() const = 0;
	/// The value as a `double`. @since 2.9
	virtual double as_double() const = 0;
	/// The value as a `long double`. @since 2.9
	virtual long double as_long_double() const = 0;

	/// Holders are never assigned.
	variant_type &operator=(variant_type const &) = delete;

protected:
	/// Flag false, count 0. @since 2.9
	variant_type() noexcept = default;
	/// A new holder: flag false, count 0. @since 2.9
	variant_type(variant_type const &) noexcept;
};

/// The holder of a `T`. It exists for the twenty types below and for no other.
/// @since 2.9
template <class T>
class QUOR_API variant_value_t final : public variant_type {
public:
	/// Holds `value`. @since 2.9
	explicit variant_value_t(T value) : m_value(std::move(value)) {}
	/// Destroys the value. @since 2.9
	~variant_value_t() override;

	bool is_set() const override;
	std::type_info const &type() const override;
	variant_value_t *clone() const override;
	std::ostream &ostream(std::ostream &stream) const override;
	int as_int() const override;
	short as_short() const override;
	int32 as_long() const override;
	signed char as_int8() const override;
	short as_int16() const override;
	int32 as_int32() const override;
	int64 as_int64() const override;
	unsigned char as_uint8() const override;
	unsigned short as_uint16() const override;
	uint32 as_uint32() const override;
	uint64 as_uint64() const override;
	bool as_bool() const override;
	std::string as_string() const override;
	wide_string as_wstring() const override;
	wide_string as_ustring() const override;
	strings::ustring8 as_utf8() const override;
	strings::ustring16 as_utf16() const override;
	strings::ustring32 as_utf32() const override;
	float as_float() const override;
	double as_double() const override;
	long double as_long_double() const override;

private:
	friend struct detail::held_text;

	T m_value;
};

extern template class variant_value_t<nil_t>;
extern template class variant_value_t<int>;
extern template class variant_value_t<unsigned int>;
extern template class variant_value_t<signed char>;
extern template class variant_value_t<short>;
extern template class variant_value_t<long_t>;
extern template class variant_value_t<int64>;
extern template class variant_value_t<unsigned char>;
extern template class variant_value_t<unsigned short>;
extern template class variant_value_t<ulong_t>;
extern template class variant_value_t<uint64>;
extern template class variant_value_t<bool>;
extern template class variant_value_t<float>;
extern template class variant_value_t<double>;
extern template class variant_value_t<long double>;
extern template class variant_value_t<std::string>;
extern template class variant_value_t<wide_string>;
extern template class variant_value_t<strings::ustring8>;
extern template class variant_value_t<strings::ustring16>;
extern template class variant_value_t<strings::ustring32>;

} // namespace QUOR_2_9::types

#endif
