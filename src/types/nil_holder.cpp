#include <ostream>

#include "types/holder.hpp"

namespace QUOR_2_9::types {
namespace detail {

template <>
struct holder_rules<nil_t> {
	template <class Target, class Parse>
	static Target integer(nil_t const & /*nil*/, Parse const & /*parse*/) noexcept {
		return 0;
	}

	template <class Target>
	static Target floating(nil_t const & /*nil*/) noexcept {
		return 0;
	}

	static bool boolean(nil_t const & /*nil*/) noexcept { return false; }
	static std::string narrow(nil_t const & /*nil*/) { return "0"; }
	static wide_string native(nil_t const &nil) { return wide(nil); }
	static wide_string wide(nil_t const & /*nil*/) { return wide_string(1, wide_char('0')); }
	static strings::ustring32 utf32(nil_t const & /*nil*/) { return strings::ustring32(1, utf32_char('0')); }
	static void write(nil_t const & /*nil*/, std::ostream &stream) { stream << 0; }
};

} // namespace detail

template class variant_value_t<nil_t>;

} // namespace QUOR_2_9::types
