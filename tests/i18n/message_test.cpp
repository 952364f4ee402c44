#include <random>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include <quor/generic/varg_list.hpp>
#include <quor/i18n/message.hpp>
#include <quor/strings/transcode.hpp>

#include "reference/rendering.hpp"
#include "support/debug_capture.hpp"

namespace {

namespace quor = QUOR_2_9;

using quor::generic::varg_list;
using quor::i18n::message_item;
using quor::i18n::message_t;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::nil;
using quor_test::debug_capture;

using items_t = std::vector<message_item>;

// Field strings are written with "|" for the byte 0x01.
ustring8 field(std::string text) {
	for (char &unit : text) {
		unit = unit == '|' ? '\x01' : unit;
	}
	return text;
}

items_t used_items() {
	return {message_item("Used "), message_item("n", message_item::type_memory),
	        message_item(" "),     message_item("n", message_item::type_memory_unit),
	        message_item("\nin "), message_item(field("t|short_form|true"), message_item::type_duration)};
}

varg_list used_args() {
	varg_list args;
	args.push_back("n", 2048);
	args.push_back("t", 90.5);
	return args;
}

TEST(message, nil_message_has_no_items_no_name_and_no_meta) {
	EXPECT_TRUE(message_t() == nil);
	EXPECT_TRUE(message_t(nil) == nil);
	EXPECT_TRUE(message_t(nil).equal(nil));
	EXPECT_FALSE(message_t(nil) != nil);
	message_t message;
	message._orginal_locale("de");
	EXPECT_TRUE(message == nil);
	message.name("n");
	EXPECT_FALSE(message == nil);
	EXPECT_TRUE(message != nil);
	message.name("");
	message.meta("m");
	EXPECT_FALSE(message.equal(nil));
	EXPECT_FALSE(message_t(items_t{message_item("")}) == nil);
	EXPECT_TRUE(message_t(items_t()) == nil);
	EXPECT_FALSE(std::is_polymorphic_v<message_t>);
}

TEST(message, constructors_fill_the_fields) {
	message_t const unnamed(used_items());
	EXPECT_EQ(6u, unnamed.size());
	EXPECT_EQ("", unnamed.name());
	message_t const named("key", used_items());
	EXPECT_EQ("key", named.name());
	EXPECT_EQ(6u, named.count());
	message_t const all("key", used_items(), "tooltip");
	EXPECT_EQ("key", all.name());
	EXPECT_EQ("tooltip", all.meta());
	EXPECT_EQ("", all._orginal_locale());
}

TEST(message, setters_return_the_field) {
	message_t message("key", used_items(), "tooltip");
	EXPECT_EQ(&message.name(), &message.name("other"));
	EXPECT_EQ("other", message.name());
	EXPECT_EQ(&message.meta(), &message.meta("dialog"));
	EXPECT_EQ("dialog", message.meta());
	EXPECT_EQ(&message._orginal_locale(), &message._orginal_locale("de_AT"));
	EXPECT_EQ("de_AT", message._orginal_locale());
	EXPECT_EQ("other", message.meta(message.name()));
	EXPECT_EQ("other", message.name(message.name()));
}

void expect_equal(message_t const &left, message_t const &right) {
	EXPECT_EQ(left.name(), right.name());
	EXPECT_EQ(left.meta(), right.meta());
	EXPECT_EQ(left._orginal_locale(), right._orginal_locale());
	ASSERT_EQ(left.size(), right.size());
	for (auto a = left.begin(), b = right.begin(); a != left.end(); ++a, ++b) {
		EXPECT_EQ(a->data(), b->data());
		EXPECT_EQ(a->type(), b->type());
	}
}

TEST(message, copies_and_assignments_take_all_four_fields) {
	message_t source("key", used_items(), "tooltip");
	source._orginal_locale("fr");
	expect_equal(source, message_t(source));
	message_t assigned;
	EXPECT_EQ(&assigned, &assigned.assign(source));
	expect_equal(source, assigned);
	message_t target("x", items_t(), "y");
	EXPECT_EQ(&target, &(target = source));
	expect_equal(source, target);
	message_t &self = target;
	target = self;
	target.assign(self);
	expect_equal(source, target);
}

TEST(message, nil_assignment_keeps_the_language) {
	message_t first("key", used_items(), "tooltip");
	first._orginal_locale("fr");
	message_t second = first;
	EXPECT_EQ(&first, &first.assign(nil));
	EXPECT_EQ(&second, &(second = nil));
	for (message_t const *message : {&first, &second}) {
		EXPECT_TRUE(*message == nil);
		EXPECT_EQ(0u, message->size());
		EXPECT_EQ("fr", message->_orginal_locale());
	}
}

TEST(message, iterators_walk_the_items_in_order) {
	message_t message(used_items());
	std::string types;
	for (message_item const &item : static_cast<message_t const &>(message)) {
		types += std::to_string(item.type()) + " ";
	}
	EXPECT_EQ("0 7 0 8 0 11 ", types);
	*message.begin() = message_item("Taken ");
	EXPECT_EQ("Taken 2 KB\nin 1m 30.50s", message.as_string(used_args()));
	EXPECT_EQ(6, message.end() - message.begin());
}

TEST(message, every_form_holds_the_same_text) {
	std::string const text = "Used 2 KB\nin 1m 30.50s";
	message_t const message(used_items());
	EXPECT_EQ(text, message.as_string(used_args()));
	EXPECT_EQ(ustring8(text), message.as_utf8(used_args()));
	EXPECT_EQ(quor::strings::utf8_to_utf16(ustring8(text)), message.as_utf16(used_args()));
	EXPECT_EQ(quor::strings::utf8_to_utf32(ustring8(text)), message.as_utf32(used_args()));
	quor::types::wide_string const wide(text.begin(), text.end());
	EXPECT_EQ(wide, message.as_wstring(used_args()));
	EXPECT_EQ(wide, message.as_ustring(used_args()));
	static_assert(std::is_same_v<std::string, decltype(message.as_string(used_args()))>);
	static_assert(std::is_same_v<ustring8, decltype(message.as_utf8(used_args()))>);
	static_assert(std::is_same_v<ustring16, decltype(message.as_utf16(used_args()))>);
	static_assert(std::is_same_v<ustring32, decltype(message.as_utf32(used_args()))>);
	static_assert(std::is_same_v<quor::types::wide_string, decltype(message.as_wstring(used_args()))>);
	static_assert(std::is_same_v<quor::types::wide_string, decltype(message.as_ustring(used_args()))>);
}

TEST(message, wide_forms_transcode) {
	message_t const message(items_t{message_item("\xC3\xA9\xE6\x97\xA5")});
	EXPECT_EQ(ustring16(QUOR_W("\u00e9\u65e5")), message.as_utf16(varg_list()));
	EXPECT_EQ(quor::types::wide_string(QUOR_W("\u00e9\u65e5")), message.as_wstring(varg_list()));
	EXPECT_EQ(ustring32(QUOR_U32("\u00e9\u65e5")), message.as_utf32(varg_list()));
}

TEST(message, malformed_text_gives_the_sentinels_of_the_transcoders) {
	message_t const at_start(items_t{message_item("\x80x")});
	EXPECT_EQ(ustring16(QUOR_W("-1")), at_start.as_utf16(varg_list()));
	EXPECT_EQ(quor::types::wide_string(QUOR_W("-1")), at_start.as_wstring(varg_list()));
	EXPECT_EQ(ustring32(QUOR_U32("?")), at_start.as_utf32(varg_list()));
	message_t const behind(items_t{message_item("x\x80")});
	EXPECT_EQ(ustring16(QUOR_W("-1")), behind.as_utf16(varg_list()));
	EXPECT_THROW(behind.as_utf32(varg_list()), std::length_error);
	EXPECT_EQ("x\x80", behind.as_string(varg_list()));
}

TEST(message, missing_arguments_show_in_their_place) {
	debug_capture const capture;
	varg_list args;
	args.push_back("unused", 1);
	args.push_back("t", 1);
	EXPECT_EQ("Used ?invalid? ?invalid?\nin 1.00s", message_t(used_items()).as_string(args));
	EXPECT_EQ((std::vector<std::string>{"Failure -- n", "\n", "Failure -- n", "\n"}), capture.calls());
	EXPECT_EQ("", message_t().as_string(args));
	EXPECT_EQ("", message_t().as_utf8(args));
	EXPECT_EQ(ustring16(), message_t().as_utf16(args));
	EXPECT_EQ(ustring32(), message_t().as_utf32(args));
}

TEST(message, literal_that_reads_like_the_marker_is_reported_alone) {
	debug_capture const capture;
	EXPECT_EQ("?invalid?", message_t(items_t{message_item("?inv"), message_item("alid?")}).as_string(varg_list()));
	EXPECT_TRUE(capture.calls().empty());
	EXPECT_EQ("a?invalid?", message_t(items_t{message_item("a"), message_item("?invalid?")}).as_string(varg_list()));
	EXPECT_EQ(2u, capture.calls().size());
}

TEST(message, argument_count_counts_every_use) {
	EXPECT_EQ(3u, message_t(used_items()).argument_count());
	EXPECT_EQ(0u, message_t(items_t{message_item("text")}).argument_count());
	EXPECT_EQ(0u, message_t().argument_count());
}

TEST(message, arguments_are_named_by_the_whole_field_string) {
	varg_list const arguments = message_t(used_items()).arguments();
	ASSERT_EQ(3u, arguments.size());
	std::vector<std::string> names;
	for (quor::generic::argument const &argument : arguments) {
		names.push_back(argument.name());
		EXPECT_TRUE(argument.value() == nil);
	}
	EXPECT_EQ((std::vector<std::string>{"n", "n", field("t|short_form|true")}), names);
	EXPECT_TRUE(message_t().arguments() == nil);
	EXPECT_EQ(1u, message_t(items_t{message_item("", message_item::type_int)}).arguments().size());
}

TEST(message, valid_args_are_found_by_the_whole_field_string) {
	varg_list const none;
	EXPECT_FALSE(message_t().has_valid_args(none));
	EXPECT_TRUE(message_t(items_t{message_item("text")}).has_valid_args(none));
	items_t const plain = {message_item("a", message_item::type_int), message_item("b", message_item::type_date)};
	varg_list args;
	args.push_back("a", 1);
	EXPECT_FALSE(message_t(plain).has_valid_args(args));
	args.push_back("c", 1);
	EXPECT_FALSE(message_t(plain).has_valid_args(args));
	args.push_back("b", 1);
	EXPECT_TRUE(message_t(plain).has_valid_args(args));
	// One argument used twice counts twice, although it would be found.
	items_t const twice = {message_item("a"), message_item("x", message_item::type_int),
	                       message_item("x", message_item::type_string)};
	varg_list one;
	one.push_back("x", 1);
	EXPECT_FALSE(message_t(twice).has_valid_args(one));
	one.push_back("y", 1);
	EXPECT_TRUE(message_t(twice).has_valid_args(one));
	// Attributes are part of the name here, and of no name when the message is rendered.
	message_t const formatted(items_t{message_item(field("x|base|hex"), message_item::type_int)});
	EXPECT_FALSE(formatted.has_valid_args(one));
	EXPECT_EQ("0x0001", formatted.as_string(one));
	EXPECT_TRUE(formatted.has_valid_args(formatted.arguments()));
}

// Long lists are looked up through an index, which has to find what the list finds.
TEST(message, long_lists_render_like_short_ones) {
	varg_list args;
	items_t items;
	for (int i = 0; i != 3000; ++i) {
		args.push_back(ustring8("name " + std::to_string(i)), i);
		items.emplace_back(ustring8("name " + std::to_string(i / 2 * 3)), message_item::type_int);
		items.emplace_back(" ");
	}
	args.push_back(ustring8(), 7);
	args.push_back(ustring8(), 8);
	args.at(2999u).name("name 0");
	items.emplace_back("", message_item::type_int);
	std::string expected;
	for (int i = 0; i != 3000; ++i) {
		int const number = i / 2 * 3;
		expected += number < 2999 ? std::to_string(number) + " " : "?invalid? ";
	}
	debug_capture const capture;
	EXPECT_EQ(expected + "7", message_t(items).as_string(args));
	message_t const all(items);
	EXPECT_FALSE(all.has_valid_args(args));
	EXPECT_TRUE(all.has_valid_args(all.arguments()));
}

// A message file with very many arguments: nothing is quadratic.
TEST(message, hundred_thousand_arguments_take_linear_work) {
	items_t items;
	for (int i = 0; i != 100000; ++i) {
		items.emplace_back(ustring8("name " + std::to_string(i)), message_item::type_string);
	}
	message_t const message(items);
	varg_list const arguments = message.arguments();
	EXPECT_EQ(100000u, arguments.size());
	EXPECT_TRUE(message.has_valid_args(arguments));
	EXPECT_EQ("", message.as_string(arguments));
}

class random_messages {
public:
	explicit random_messages(unsigned int seed) : m_random(seed) {}

	message_t message() {
		items_t items;
		for (std::size_t count = pick(6); count != 0; --count) {
			std::string data = names[pick(names.size())];
			for (std::size_t attributes = pick(3); attributes != 0; --attributes) {
				data += "\x01" + pieces[pick(pieces.size())] + "\x01" + pieces[pick(pieces.size())];
			}
			items.emplace_back(ustring8(data), static_cast<message_item::type_t>(pick(12)));
		}
		return message_t(items);
	}

	varg_list args() {
		varg_list list;
		for (std::size_t count = pick(6); count != 0; --count) {
			list.push_back(ustring8(names[pick(names.size())]), value());
		}
		return list;
	}

private:
	quor::types::variant value() {
		switch (pick(6)) {
		case 0:
			return static_cast<long long>(m_random()) * (pick(2) == 0 ? 1 : -1);
		case 1:
			return static_cast<double>(m_random()) / 1024.0 - 1000000.0;
		case 2:
			return ustring8(pieces[pick(pieces.size())]);
		case 3:
			return static_cast<double>(pick(100000)) / 16.0;
		case 4:
			return ustring16(QUOR_W("1234.5"));
		default:
			return quor::types::variant();
		}
	}

	std::size_t pick(std::size_t count) { return m_random() % count; }

	static inline std::vector<std::string> const names = {"", "a", "b", "name", "?invalid?", "text \xC3\xA9"};
	static inline std::vector<std::string> const pieces = {
	    "base", "fieldsize", "precision", "short_form", "target_unit", "base_unit", "hex", "s", "o",  "b", "t",
	    "f",    "KB",        "k",         "0",          "3",           "12",        "",    "x", "-4", "m", "1e5"};
	std::mt19937 m_random;
};

TEST(message, random_messages_agree_with_the_reference_in_every_form) {
	random_messages random(42);
	for (int i = 0; i != 20000; ++i) {
		message_t const message = random.message();
		varg_list const args = random.args();
		SCOPED_TRACE(i);
		reference::strings_t debug;
		std::string const expected = reference::render(message, args, debug);
		debug_capture const capture;
		ASSERT_EQ(expected, message.as_string(args));
		ASSERT_EQ(debug, capture.calls());
		ASSERT_EQ(expected, message.as_utf8(args));
		ASSERT_EQ(quor::strings::utf8_to_utf16(expected), message.as_utf16(args));
		ASSERT_EQ(quor::strings::utf8_to_utf32(expected), message.as_utf32(args));
		ASSERT_EQ(message.as_utf16(args), message.as_wstring(args));
		ASSERT_EQ(message.as_utf16(args), message.as_ustring(args));
	}
}

} // namespace
