#include <quor/i18n/value_formatters.hpp>

#include "i18n/value_text.hpp"

namespace QUOR_2_9::i18n::_private {
namespace {

template <class Value>
strings::ustring8 text_of(bool (*append)(detail::text_writer &, Value, std::string_view), Value value,
                          strings::ustring8 const &format) {
	detail::text_writer out;
	return append(out, value, format) ? out.take() : std::string(detail::failure_text);
}

template <class Value>
strings::ustring8 text_of(bool (*append)(detail::text_writer &, Value, std::string_view, std::string_view &),
                          Value value, strings::ustring8 const &format, strings::ustring8 &unit) {
	detail::text_writer out;
	std::string_view unit_text;
	bool const known = append(out, value, format, unit_text);
	unit = unit_text;
	return known ? out.take() : std::string(detail::failure_text);
}

} // namespace

strings::ustring8 format_int(types::int64 value, strings::ustring8 const &format) {
	return text_of(&detail::append_int, value, format);
}

strings::ustring8 format_double(double value, strings::ustring8 const &format) {
	return text_of(&detail::append_double, value, format);
}

strings::ustring8 format_duration(double seconds, strings::ustring8 const &format) {
	return text_of(&detail::append_duration, seconds, format);
}

strings::ustring8 format_memory(types::uint64 value, strings::ustring8 const &format, strings::ustring8 &unit) {
	return text_of(&detail::append_memory, value, format, unit);
}

strings::ustring8 format_metric(types::uint32 value, strings::ustring8 const &format, strings::ustring8 &unit) {
	return text_of(&detail::append_metric, value, format, unit);
}

} // namespace QUOR_2_9::i18n::_private
