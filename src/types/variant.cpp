#include <quor/types/variant.hpp>

#include <type_traits>
#include <typeinfo>

#include <quor/generic/abilities/alloc_detection_ability.hpp>

namespace QUOR_2_9::types {
namespace {

/// A new holder of a `T`, as the heap object that the pointers delete.
template <class T, class Value>
variant_type *hold(Value const &value) {
	return generic::abilities::create_dynamic<variant_value_t<T>>(value);
}

/// A new holder of zero-terminated text; null is the empty text.
template <class T>
variant_type *hold_text(typename T::value_type const *value) {
	return value != nullptr ? hold<T>(T(value)) : hold<T>(T());
}

/// A number of a type that only some targets have as one of its own.
template <class T, class Native>
variant_type *hold_native(Native const &value) {
	if constexpr (std::is_integral_v<Native>) {
		return hold<T>(static_cast<T>(value));
	} else {
		return hold<T>(T());
	}
}

} // namespace

variant::variant() : variant(nil) {}

variant::variant(nil_t const &value) : m_holder(hold<nil_t>(value)) {}

variant::variant(int value) : m_holder(hold<int>(value)) {}

variant::variant(unsigned int value) : m_holder(hold<unsigned int>(value)) {}

variant::variant(signed char const &value) : m_holder(hold<signed char>(value)) {}

variant::variant(short const &value) : m_holder(hold<short>(value)) {}

variant::variant(long_t const &value) : m_holder(hold<long_t>(value)) {}

variant::variant(int64 const &value) : m_holder(hold<int64>(value)) {}

variant::variant(unsigned char const &value) : m_holder(hold<unsigned char>(value)) {}

variant::variant(unsigned short const &value) : m_holder(hold<unsigned short>(value)) {}

variant::variant(ulong_t const &value) : m_holder(hold<ulong_t>(value)) {}

variant::variant(uint64 const &value) : m_holder(hold<uint64>(value)) {}

variant::variant(bool value) : m_holder(hold<bool>(value)) {}

variant::variant(float const &value) : m_holder(hold<float>(value)) {}

variant::variant(double const &value) : m_holder(hold<double>(value)) {}

variant::variant(long double const &value) : m_holder(hold<long double>(value)) {}

variant::variant(std::string const &value) : m_holder(hold<std::string>(value)) {}

variant::variant(wide_string const &value) : m_holder(hold<wide_string>(value)) {}

variant::variant(strings::ustring8 const &value) : m_holder(hold<strings::ustring8>(value)) {}

variant::variant(strings::ustring16 const &value) : m_holder(hold<strings::ustring16>(value)) {}

variant::variant(strings::ustring32 const &value) : m_holder(hold<strings::ustring32>(value)) {}

variant::variant(char const *value) : m_holder(hold_text<strings::ustring8>(value)) {}

variant::variant(wide_char const *value) : m_holder(hold_text<strings::ustring16>(value)) {}

variant::variant(utf32_char const *value) : m_holder(hold_text<strings::ustring32>(value)) {}

variant::variant(native_long64 const &value) : m_holder(hold_native<int64>(value)) {}

variant::variant(native_ulong64 const &value) : m_holder(hold_native<uint64>(value)) {}

variant &variant::operator=(variant const &other) noexcept {
	return assign(other);
}

variant &variant::operator=(nil_t const &value) {
	m_holder = hold<nil_t>(value);
	return *this;
}

variant &variant::assign(variant const &other) noexcept {
	m_holder = other.m_holder;
	return *this;
}

bool variant::equal(nil_t const & /*nil*/) const {
	// Each type has one holder, and the library one description of it: there is no need to
	// compare names.
	variant_type const &held = *m_holder;
	return &typeid(held) == &typeid(variant_value_t<nil_t>);
}

bool variant::operator==(nil_t const &value) const {
	return equal(value);
}

bool variant::operator!=(nil_t const &value) const {
	return !equal(value);
}

std::type_info const &variant::type() const {
	return m_holder->type();
}

std::ostream &variant::ostream(std::ostream &stream) const {
	return m_holder->ostream(stream);
}

int variant::as_signed() const {
	return m_holder->as_int();
}

int variant::as_int() const {
	return m_holder->as_int();
}

unsigned int variant::as_unsigned() const {
	return static_cast<unsigned int>(m_holder->as_int());
}

unsigned int variant::as_uint() const {
	return static_cast<unsigned int>(m_holder->as_int());
}

short variant::as_short() const {
	return m_holder->as_short();
}

unsigned short variant::as_ushort() const {
	return static_cast<unsigned short>(m_holder->as_short());
}

int32 variant::as_long() const {
	return m_holder->as_long();
}

uint32 variant::as_ulong() const {
	return static_cast<uint32>(m_holder->as_long());
}

signed char variant::as_int8() const {
	return m_holder->as_int8();
}

short variant::as_int16() const {
	return m_holder->as_int16();
}

int32 variant::as_int32() const {
	return m_holder->as_int32();
}

int64 variant::as_int64() const {
	return m_holder->as_int64();
}

unsigned char variant::as_uint8() const {
	return m_holder->as_uint8();
}

unsigned short variant::as_uint16() const {
	return m_holder->as_uint16();
}

uint32 variant::as_uint32() const {
	return m_holder->as_uint32();
}

uint64 variant::as_uint64() const {
	return m_holder->as_uint64();
}

bool variant::as_bool() const {
	return m_holder->as_bool();
}

float variant::as_float() const {
	return m_holder->as_float();
}

double variant::as_double() const {
	return m_holder->as_double();
}

long double variant::as_long_double() const {
	return m_holder->as_long_double();
}

strings::ustring8 variant::as_string() const {
	return as_utf8();
}

wide_string variant::as_wstring() const {
	return equal(nil) ? wide_string() : wide_string(m_holder->as_wstring());
}

wide_string variant::as_ustring() const {
	return equal(nil) ? wide_string() : wide_string(m_holder->as_ustring());
}

strings::ustring8 variant::as_utf8() const {
	return equal(nil) ? strings::ustring8() : m_holder->as_utf8();
}

strings::ustring16 variant::as_utf16() const {
	return equal(nil) ? strings::ustring16() : strings::ustring16(m_holder->as_utf16());
}

strings::ustring32 variant::as_utf32() const {
	return equal(nil) ? strings::ustring32() : strings::ustring32(m_holder->as_utf32());
}

std::ostream &operator<<(std::ostream &stream, variant const &value) {
	return value.ostream(stream);
}

} // namespace QUOR_2_9::types
