// What a program compiled against 2.9 has built into itself and the library must keep:
// the sizes of the objects it makes and the order of the virtual functions it calls.

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <quor/quor.hpp>

namespace {

int failures = 0;

void check(char const *what, std::size_t expected, std::size_t found) {
	if (expected != found) {
		std::printf("%s: expected %zu, found %zu\n", what, expected, found);
		++failures;
	}
}

// The place of a virtual function in its table: a pointer to such a member holds the
// table offset plus one.
template <class Member>
std::size_t slot_of(Member member) {
	std::ptrdiff_t words[2];
	static_assert(sizeof words == sizeof member);
	std::memcpy(words, &member, sizeof words);
	return static_cast<std::size_t>(words[0] - 1) / sizeof(void *);
}

// Slots 0 and 1 are the two forms of the destructor.
void check_variant_slots() {
	using holder = quor::types::variant_type;
	std::size_t slot = 2;
	auto const next = [&slot](char const *what, auto member) { check(what, slot++, slot_of(member)); };
	next("slot of variant_type::is_set", &holder::is_set);
	next("slot of variant_type::type", &holder::type);
	next("slot of variant_type::clone", &holder::clone);
	next("slot of variant_type::ostream", &holder::ostream);
	next("slot of variant_type::as_int", &holder::as_int);
	next("slot of variant_type::as_short", &holder::as_short);
	next("slot of variant_type::as_long", &holder::as_long);
	next("slot of variant_type::as_int8", &holder::as_int8);
	next("slot of variant_type::as_int16", &holder::as_int16);
	next("slot of variant_type::as_int32", &holder::as_int32);
	next("slot of variant_type::as_int64", &holder::as_int64);
	next("slot of variant_type::as_uint8", &holder::as_uint8);
	next("slot of variant_type::as_uint16", &holder::as_uint16);
	next("slot of variant_type::as_uint32", &holder::as_uint32);
	next("slot of variant_type::as_uint64", &holder::as_uint64);
	next("slot of variant_type::as_bool", &holder::as_bool);
	next("slot of variant_type::as_string", &holder::as_string);
	next("slot of variant_type::as_wstring", &holder::as_wstring);
	next("slot of variant_type::as_ustring", &holder::as_ustring);
	next("slot of variant_type::as_utf8", &holder::as_utf8);
	next("slot of variant_type::as_utf16", &holder::as_utf16);
	next("slot of variant_type::as_utf32", &holder::as_utf32);
	next("slot of variant_type::as_float", &holder::as_float);
	next("slot of variant_type::as_double", &holder::as_double);
	next("slot of variant_type::as_long_double", &holder::as_long_double);
	check("slot of generic::clone_interface::clone", 2, slot_of(&quor::generic::clone_interface::clone));
}

void check_callable_slots() {
	using callable = quor::functor::function_type_interface<void(int)>;
	check("slot of functor::function_type_interface::equal", 2, slot_of(&callable::equal));
	check("slot of functor::function_type_interface::clone", 3, slot_of(&callable::clone));
	check("slot of the call in functor::function_type_interface", 4, slot_of(&callable::operator()));
}

// Lengths have no virtual destructor: their tables begin with the operations.
struct open_device_unit : quor::types::device_unit {
	using device_unit::do_as_double;
	using device_unit::do_as_float;
	using device_unit::do_as_int32;
	using device_unit::do_type;
};

void check_unit_slots() {
	using length = quor::types::absolute_unit;
	check("slot of types::absolute_unit::do_type", 0, slot_of(&length::do_type));
	check("slot of types::absolute_unit::do_as_int32", 1, slot_of(&length::do_as_int32));
	check("slot of types::absolute_unit::do_as_double", 2, slot_of(&length::do_as_double));
	check("slot of types::device_unit::do_type", 0, slot_of(&open_device_unit::do_type));
	check("slot of types::device_unit::do_as_int32", 1, slot_of(&open_device_unit::do_as_int32));
	check("slot of types::device_unit::do_as_float", 2, slot_of(&open_device_unit::do_as_float));
	check("slot of types::device_unit::do_as_double", 3, slot_of(&open_device_unit::do_as_double));
}

void check_config_slots() {
	using item = quor::config::base_config_item;
	using items = item::item_list;
	using dispatch = quor::config::config_dispatch;
	check("slot of config::base_config_item::load()", 2, slot_of<bool (item::*)()>(&item::load));
	check("slot of config::base_config_item::load(list)", 3, slot_of<bool (item::*)(items const &)>(&item::load));
	check("slot of config::base_config_item::save()", 4, slot_of<bool (item::*)()>(&item::save));
	check("slot of config::base_config_item::save(list)", 5, slot_of<bool (item::*)(items const &)>(&item::save));
	check("slot of config::base_config_item::unload", 6, slot_of(&item::unload));
	check("slot of config::base_config_item::clone", 7, slot_of(&item::clone));
	check("slot of config::config_dispatch::setup", 2, slot_of(&dispatch::setup));
	check("slot of config::config_dispatch::load", 3, slot_of(&dispatch::load));
	check("slot of config::config_dispatch::unload", 4, slot_of(&dispatch::unload));
	check("slot of config::config_dispatch::save", 5, slot_of(&dispatch::save));
	check("slot of config::config_dispatch::clone", 6, slot_of(&dispatch::clone));
}

void check_buffer_slots() {
	using buffer = quor::serialization::serialize_buffer;
	std::size_t slot = 2;
	auto const next = [&slot](char const *what, auto member) { check(what, slot++, slot_of(member)); };
	next("slot of serialize_buffer::assign of a pointer",
	     static_cast<buffer &(buffer::*)(char const *, int)>(&buffer::assign));
	next("slot of serialize_buffer::assign of a string",
	     static_cast<buffer &(buffer::*)(std::string const &)>(&buffer::assign));
	next("slot of serialize_buffer::assign of a buffer",
	     static_cast<buffer &(buffer::*)(buffer const &)>(&buffer::assign));
	next("slot of serialize_buffer::as_str", &buffer::as_str);
	next("slot of serialize_buffer::append_int8", &buffer::append_int8);
	next("slot of serialize_buffer::append_int16", &buffer::append_int16);
	next("slot of serialize_buffer::append_int32", &buffer::append_int32);
	next("slot of serialize_buffer::append_int64", &buffer::append_int64);
	next("slot of serialize_buffer::append_uint8", &buffer::append_uint8);
	next("slot of serialize_buffer::append_uint16", &buffer::append_uint16);
	next("slot of serialize_buffer::append_uint32", &buffer::append_uint32);
	next("slot of serialize_buffer::append_uint64", &buffer::append_uint64);
	next("slot of serialize_buffer::append_float", &buffer::append_float);
	next("slot of serialize_buffer::append_double", &buffer::append_double);
	next("slot of serialize_buffer::append_string", &buffer::append_string);
	next("slot of serialize_buffer::append_buffer", &buffer::append_buffer);
	next("slot of serialize_buffer::read_int8", &buffer::read_int8);
	next("slot of serialize_buffer::read_int16", &buffer::read_int16);
	next("slot of serialize_buffer::read_int32", &buffer::read_int32);
	next("slot of serialize_buffer::read_int64", &buffer::read_int64);
	next("slot of serialize_buffer::read_uint8", &buffer::read_uint8);
	next("slot of serialize_buffer::read_uint16", &buffer::read_uint16);
	next("slot of serialize_buffer::read_uint32", &buffer::read_uint32);
	next("slot of serialize_buffer::read_uint64", &buffer::read_uint64);
	next("slot of serialize_buffer::read_float", &buffer::read_float);
	next("slot of serialize_buffer::read_double", &buffer::read_double);
	next("slot of serialize_buffer::read_string", &buffer::read_string);
	next("slot of serialize_buffer::read_buffer", &buffer::read_buffer);
	next("slot of serialize_buffer::at_end", &buffer::at_end);
	next("slot of serialize_buffer::reset_read", &buffer::reset_read);
	next("slot of serialize_buffer::create", &buffer::create);
	next("slot of serialize_buffer::clone", &buffer::clone);
}

void check_record_slots() {
	using record = quor::serialization::labeled_serialize_buffer;
	using text = std::string const &;
	std::size_t slot = 2;
	auto const next = [&slot](char const *what, auto member) { check(what, slot++, slot_of(member)); };
	next("slot of labeled_serialize_buffer::assign of a pointer",
	     static_cast<record &(record::*)(char const *, int)>(&record::assign));
	next("slot of labeled_serialize_buffer::assign of a string",
	     static_cast<record &(record::*)(text)>(&record::assign));
	next("slot of labeled_serialize_buffer::assign of a record",
	     static_cast<record &(record::*)(record const &)>(&record::assign));
	next("slot of labeled_serialize_buffer::as_str", &record::as_str);
	next("slot of labeled_serialize_buffer::add_value", &record::add_value);
	next("slot of labeled_serialize_buffer::create_group", &record::create_group);
	next("slot of labeled_serialize_buffer::has_label", &record::has_label);
	next("slot of labeled_serialize_buffer::has_value", &record::has_value);
	next("slot of labeled_serialize_buffer::has_group", &record::has_group);
	next("slot of labeled_serialize_buffer::is_empty", &record::is_empty);
	next("slot of labeled_serialize_buffer::retrieve_value", &record::retrieve_value);
	next("slot of labeled_serialize_buffer::retrieve_group",
	     static_cast<record *(record::*)(text)>(&record::retrieve_group));
	next("slot of labeled_serialize_buffer::retrieve_group to look at",
	     static_cast<record const *(record::*)(text) const>(&record::retrieve_group));
	next("slot of labeled_serialize_buffer::create", &record::create);
	next("slot of labeled_serialize_buffer::clone", &record::clone);
}

} // namespace

int main() {
	check("size of exceptions::exception::state", 516, sizeof(quor::exceptions::exception::state));
	check("size of strings::ustring8", sizeof(std::string), sizeof(quor::strings::ustring8));
	check("size of strings::ustring16", sizeof(std::string), sizeof(quor::strings::ustring16));
	check("size of strings::ustring32", sizeof(std::string), sizeof(quor::strings::ustring32));
	check("size of types::long_t", 4, sizeof(quor::types::long_t));
	check("size of types::variant", sizeof(void *), sizeof(quor::types::variant));
	check("size of generic::varg_list", sizeof(std::vector<int>), sizeof(quor::generic::varg_list));
	check("size of generic::argument", sizeof(std::string) + sizeof(void *), sizeof(quor::generic::argument));
	check("size of i18n::message_t", sizeof(std::vector<int>) + 3 * sizeof(std::string), sizeof(quor::i18n::message_t));
	check("size of exceptions::overflow_error", 8 + 520 + sizeof(std::string),
	      sizeof(quor::exceptions::overflow_error));
	// Two tables, flag and count, then the contents and the read position.
	constexpr std::size_t counted = 2 * sizeof(void *) + 8;
	check("size of serialization::serialize_buffer", counted, sizeof(quor::serialization::serialize_buffer));
	check("size of serialization::labeled_serialize_buffer", counted,
	      sizeof(quor::serialization::labeled_serialize_buffer));
	constexpr std::size_t stored = sizeof(std::string) + sizeof(std::size_t) + 8;
	check("size of serialization::serialize_binary_buf", counted + stored,
	      sizeof(quor::serialization::serialize_binary_buf));
	check("size of serialization::serialize_text_buf", counted + stored,
	      sizeof(quor::serialization::serialize_text_buf));
	check("size of serialization::labeled_text_buffer", counted + sizeof(void *),
	      sizeof(quor::serialization::labeled_text_buffer));
	check("size of types::absolute_unit", 8 + sizeof(double), sizeof(quor::types::absolute_unit));
	check("size of types::device_unit", 2 * sizeof(void *), sizeof(quor::types::device_unit));
	check("size of types::color_t", 4, sizeof(quor::types::color_t));
	check("size of strings::code_page", 4, sizeof(quor::strings::code_page));
	check("size of system::date_time::date", 12, sizeof(quor::system::date_time::date));
	check("size of system::date_time::time", 16, sizeof(quor::system::date_time::time));
	check("size of system::date_time::date_time_t", 28, sizeof(quor::system::date_time::date_time_t));
	check("size of system::date_time::date_duration", 4, sizeof(quor::system::date_time::date_duration));
	check("size of system::date_time::time_duration", 8, sizeof(quor::system::date_time::time_duration));
	check("size of system::date_time::milliseconds", 8, sizeof(quor::system::date_time::milliseconds));
	check("size of system::date_time::timer", 32, sizeof(quor::system::date_time::timer));
	check_variant_slots();
	check_unit_slots();
	check_callable_slots();
	check_config_slots();
	check_buffer_slots();
	check_record_slots();
	return failures;
}
