#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include <quor/generic/varg_list.hpp>
#include <quor/i18n/message_item.hpp>

#include "support/debug_capture.hpp"

namespace {

namespace quor = QUOR_2_9;

using quor::generic::varg_list;
using quor::i18n::message_item;
using quor::strings::ustring8;
using quor::types::variant;
using quor_test::debug_capture;

// Field strings are written with "|" for the byte 0x01.
ustring8 field(std::string text) {
	for (char &unit : text) {
		unit = unit == '|' ? '\x01' : unit;
	}
	return text;
}

varg_list one_argument(char const *name, variant const &value) {
	varg_list args;
	args.push_back(ustring8(name), value);
	return args;
}

TEST(message_item, types_have_their_numbers) {
	EXPECT_EQ(0, message_item::type_value);
	EXPECT_EQ(1, message_item::type_string);
	EXPECT_EQ(2, message_item::type_number);
	EXPECT_EQ(3, message_item::type_int);
	EXPECT_EQ(4, message_item::type_double);
	EXPECT_EQ(5, message_item::type_time);
	EXPECT_EQ(6, message_item::type_date);
	EXPECT_EQ(7, message_item::type_memory);
	EXPECT_EQ(8, message_item::type_memory_unit);
	EXPECT_EQ(9, message_item::type_metric);
	EXPECT_EQ(10, message_item::type_metric_unit);
	EXPECT_EQ(11, message_item::type_duration);
}

TEST(message_item, construction_keeps_text_and_type) {
	message_item const literal("text");
	EXPECT_EQ(message_item::type_value, literal.type());
	EXPECT_EQ("text", literal.data());
	message_item const typed(field("n|base|hex"), message_item::type_int);
	EXPECT_EQ(message_item::type_int, typed.type());
	EXPECT_EQ(field("n|base|hex"), typed.data());
	EXPECT_EQ(message_item::type_date, message_item("d", message_item::type_date).type());
	EXPECT_FALSE(std::is_polymorphic_v<message_item>);
}

TEST(message_item, copies_and_assignments_take_both_fields) {
	message_item const source(field("n|base|hex"), message_item::type_int);
	message_item const copy(source); // NOLINT(performance-unnecessary-copy-initialization): the copy is tested
	EXPECT_EQ(source.data(), copy.data());
	EXPECT_EQ(source.type(), copy.type());
	message_item assigned("text");
	EXPECT_EQ(&assigned, &assigned.assign(source));
	EXPECT_EQ(source.data(), assigned.data());
	EXPECT_EQ(source.type(), assigned.type());
	message_item target("text");
	target = source;
	EXPECT_EQ(source.data(), target.data());
	message_item &self = target;
	target = self;
	target.assign(self);
	EXPECT_EQ(source.data(), target.data());
	EXPECT_EQ(source.type(), target.type());
}

struct row {
	char const *data;
	message_item::type_t type;
	variant value;
	char const *expected;
};

TEST(message_item, every_type_renders_the_argument_as_told) {
	std::vector<row> const rows = {
	    {"n", message_item::type_value, 1, "n"},
	    {"n|base|hex", message_item::type_value, 1,
	     "n\x01"
	     "base\x01hex"},
	    {"n", message_item::type_string, "text", "text"},
	    {"n|fieldsize|8", message_item::type_string, "text", "text"},
	    {"n|nonsense", message_item::type_string, "text", "text"},
	    {"n", message_item::type_string, 5, "5"},
	    {"n", message_item::type_string, 1e10, "1.e+010"},
	    {"n", message_item::type_string, variant(), ""},
	    {"n", message_item::type_string, "-0", "-0"},
	    {"n", message_item::type_number, 5, "?invalid?"},
	    {"n", message_item::type_time, 5, "?invalid?"},
	    {"n", message_item::type_date, 5, "?invalid?"},
	    {"n", message_item::type_int, 255, "255"},
	    {"n|base|hex", message_item::type_int, 255, "0x00ff"},
	    {"n|base|hex", message_item::type_int, "0xff", "0x00ff"},
	    {"n|fieldsize|2", message_item::type_int, 255, "?invalid?"},
	    {"n|colour|red", message_item::type_int, 255, "?invalid?"},
	    {"n|base", message_item::type_int, 255, "?invalid?"},
	    {"n|", message_item::type_int, 255, "255"},
	    {"n", message_item::type_int, "text", "0"},
	    {"n", message_item::type_int, variant(), "0"},
	    {"n", message_item::type_double, 3.14159, "3.14"},
	    {"n|p|0", message_item::type_double, -0.4, "?invalid?"},
	    {"n|p|2", message_item::type_double, -0.001, "-0.00"},
	    {"n|p|1", message_item::type_double, "2.55", "2.5"},
	    {"n|fieldsize|6", message_item::type_double, 1.5, "  1.50"},
	    {"n", message_item::type_memory, 2048, "2"},
	    {"n", message_item::type_memory_unit, 2048, "KB"},
	    {"n|target_unit|xy", message_item::type_memory, 2048, "?invalid?"},
	    {"n|target_unit|xy", message_item::type_memory_unit, 2048, "?invalid?"},
	    {"n|target_unit|B", message_item::type_memory_unit, 2048, "B"},
	    {"n", message_item::type_memory, -1, "15"},
	    {"n", message_item::type_metric, 1500, "1.500"},
	    {"n", message_item::type_metric_unit, 1500, "k"},
	    {"n|s|f", message_item::type_metric_unit, 1500, "kilo"},
	    {"n", message_item::type_metric_unit, 15, ""},
	    {"n|s|x", message_item::type_metric, 15, "?invalid?"},
	    {"n|s|x", message_item::type_metric_unit, 15, "?invalid?"},
	    {"n", message_item::type_duration, 3661.5, "1 hr 1 min 1.50 sec"},
	    {"n|p|0", message_item::type_duration, -0.4, "-0 sec"},
	    {"n", message_item::type_duration, 1e300, "?invalid?"},
	    {"N", message_item::type_int, 1, "?invalid?"},
	    {"n ", message_item::type_int, 1, "?invalid?"},
	    {"", message_item::type_int, 1, "?invalid?"},
	    {"|n", message_item::type_int, 1, "?invalid?"},
	};
	for (row const &each : rows) {
		SCOPED_TRACE(std::string(each.data) + " as " + std::to_string(each.type));
		debug_capture const capture;
		ustring8 const data = field(each.data);
		EXPECT_EQ(each.expected, message_item(data, each.type).as_string(one_argument("n", each.value)));
		std::vector<std::string> const failure = {"Failure -- " + data, "\n"};
		EXPECT_EQ(std::string(each.expected) == "?invalid?" ? failure : std::vector<std::string>(), capture.calls());
	}
}

TEST(message_item, missing_argument_gives_the_marker_for_every_type) {
	for (int type = message_item::type_string; type <= message_item::type_duration; ++type) {
		SCOPED_TRACE(type);
		debug_capture const capture;
		message_item const item(field("n|base|hex"), static_cast<message_item::type_t>(type));
		EXPECT_EQ("?invalid?", item.as_string(varg_list()));
		EXPECT_EQ((std::vector<std::string>{"Failure -- n\x01"
		                                    "base\x01hex",
		                                    "\n"}),
		          capture.calls());
	}
}

TEST(message_item, type_beyond_the_table_formats_to_nothing) {
	debug_capture const capture;
	message_item const item("n", static_cast<message_item::type_t>(99));
	EXPECT_EQ("", item.as_string(one_argument("n", 5)));
	EXPECT_TRUE(capture.calls().empty());
	EXPECT_EQ("?invalid?", item.as_string(varg_list()));
	EXPECT_EQ(2u, capture.calls().size());
}

TEST(message_item, exception_of_the_debug_handler_passes_through) {
	auto const before = quor::debug::set_output_handler([](char const *text) { throw std::string(text); });
	EXPECT_THROW(message_item("n", message_item::type_int).as_string(varg_list()), std::string);
	quor::debug::set_output_handler(before);
}

TEST(message_item, text_that_reads_like_the_marker_is_reported_too) {
	debug_capture const capture;
	EXPECT_EQ("?invalid?", message_item("?invalid?").as_string(varg_list()));
	EXPECT_EQ((std::vector<std::string>{"Failure -- ?invalid?", "\n"}), capture.calls());
	EXPECT_EQ("?invalid?", message_item("n", message_item::type_string).as_string(one_argument("n", "?invalid?")));
	EXPECT_EQ((std::vector<std::string>{"Failure -- ?invalid?", "\n", "Failure -- n", "\n"}), capture.calls());
	EXPECT_EQ("?invalid?!", message_item("?invalid?!").as_string(varg_list()));
	EXPECT_EQ(4u, capture.calls().size());
}

TEST(message_item, empty_name_finds_the_first_unnamed_argument) {
	varg_list args;
	args.push_back("named", 1);
	args.push_back(ustring8(), 2);
	args.push_back(ustring8(), 3);
	EXPECT_EQ("2", message_item("", message_item::type_int).as_string(args));
	EXPECT_EQ("2", message_item(field("|"), message_item::type_string).as_string(args));
	EXPECT_EQ("0x0002", message_item(field("|base|hex"), message_item::type_int).as_string(args));
}

TEST(message_item, first_argument_of_a_name_counts) {
	varg_list args;
	args.push_back("a", 1);
	args.push_back("b", 2);
	args.at(1u).name("a");
	EXPECT_EQ("1", message_item("a", message_item::type_int).as_string(args));
}

TEST(message_item, zero_bytes_are_ordinary_text) {
	std::string const text("a\0b", 3);
	EXPECT_EQ(text, message_item(ustring8(text)).as_string(varg_list()));
	varg_list args;
	args.push_back(ustring8(text), ustring8(text));
	EXPECT_EQ(text, message_item(ustring8(text), message_item::type_string).as_string(args));
	debug_capture const capture;
	EXPECT_EQ("?invalid?", message_item(ustring8(text), message_item::type_int).as_string(varg_list()));
	EXPECT_EQ((std::vector<std::string>{"Failure -- a", "\n"}), capture.calls());
}

} // namespace
