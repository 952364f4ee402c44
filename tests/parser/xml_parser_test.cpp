#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include <quor/functor/member_function.hpp>
#include <quor/parser/xml_parser.hpp>

#include "support/event_log.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::parser::xml_parser;
using quor::strings::ustring8;
using parse_error = xml_parser::parse_error;
using reference::xml_event;

TEST(xml_parser, parse_failed_object_keeps_its_open_elements) {
	xml_parser parser;
	quor_test::event_log log;
	log.bind(parser);
	EXPECT_EQ(parser.parse("<?xml?><a><b>").code(), 1);
	// Nothing closes "a" and "b", so even a whole document ends inside them,
	EXPECT_EQ(parser.parse("<?xml?><c/>").code(), 1);
	// a second root isn't one,
	EXPECT_EQ(parser.parse("<?xml?><c/><d/>").code(), 1);
	// and the next end tag must be theirs.
	parse_error const wrong = parser.parse("<?xml?></a>");
	EXPECT_EQ(wrong.code(), 2);
	EXPECT_EQ(wrong.text(), "a");
	EXPECT_EQ(parser.parse("<?xml?></b></a>").code(), 0);
	EXPECT_EQ(parser.parse("<?xml?><c/><d/>").code(), 10);
}

TEST(xml_parser, parse_failed_object_keeps_its_attribute_names) {
	xml_parser parser;
	EXPECT_EQ(parser.parse("<?xml?><a b='1' c").code(), 1);
	EXPECT_EQ(parser.parse("<?xml?></a b='1'>").code(), 9);
	EXPECT_EQ(parser.parse("<?xml?></a d='1'>").code(), 0);
}

TEST(xml_parser, parse_without_delegates_reports_nothing_and_succeeds) {
	xml_parser const parser;
	EXPECT_EQ(parser.parse("<?xml?><!-- c --> <a b='1'>t  </a>").code(), 0);
	EXPECT_EQ(parser.parse("<?xml?><a").code(), 1);
}

TEST(xml_parser, parse_with_one_delegate_passes_over_the_others) {
	xml_parser parser;
	quor_test::event_log log;
	xml_parser all;
	log.bind(all);
	parser.on_comment() = all.on_comment();
	EXPECT_EQ(parser.parse("<?xml?><!--c--> <a b='1'>t  </a>").code(), 0);
	EXPECT_EQ(log.events, (std::vector<xml_event>{{"comment", "c", ""}}));
}

TEST(xml_parser, copy_reports_to_the_same_objects_and_has_its_own_state) {
	xml_parser parser;
	quor_test::event_log log;
	log.bind(parser);
	EXPECT_EQ(parser.parse("<?xml?><a>").code(), 1);
	xml_parser copy(parser);
	EXPECT_EQ(copy.parse("<?xml?></a>").code(), 0);
	EXPECT_EQ(parser.parse("<?xml?></b>").code(), 2);
	EXPECT_EQ(log.events, (std::vector<xml_event>{{"start", "a", ""}, {"end", "a", ""}}));

	xml_parser assigned;
	EXPECT_EQ(assigned.parse("<?xml?><x>").code(), 1);
	assigned = parser;
	EXPECT_EQ(assigned.parse("<?xml?></a>").code(), 0);
	EXPECT_EQ(log.events.size(), 3U);
	xml_parser const &self = assigned;
	assigned = self;
	EXPECT_EQ(assigned.parse("<?xml?><a/>").code(), 0);
	EXPECT_EQ(log.events.size(), 5U);
}

TEST(xml_parser, copy_and_assignment_take_attribute_names_and_line) {
	xml_parser parser;
	EXPECT_EQ(parser.parse("<?xml?><a b='1' c").code(), 1);
	std::string const lines = "\n\n\n9";
	auto it = lines.begin();
	parser.parse_whitespace(it, lines.end());
	xml_parser assigned;
	assigned = parser;
	for (xml_parser const &copy : {xml_parser(parser), assigned}) {
		auto at = it;
		try {
			copy.parse_name(at, lines.end());
			ADD_FAILURE() << "a name";
		} catch (parse_error const &error) {
			EXPECT_EQ(error.line(), 3U);
		}
		EXPECT_EQ(copy.parse("<?xml?></a b='1'>").code(), 9);
	}
}

TEST(xml_parser, do_parse_advances_to_the_end_or_the_fault) {
	struct row {
		std::string text;
		int code;
		std::string rest;
	};
	for (row const &expected :
	     {row{"<?xml?><a/>", 0, ""}, row{"<?xml?><a>", 1, ""}, row{"<?xml a>b?><a/>", 4, ">b?><a/>"},
	      row{"<?xml?><a ->", 5, "->"}, row{"<?xml?><a>></a>", 5, "></a>"}, row{"<?xml?><a/><b/>", 10, "b/>"},
	      row{"<?xml?><a b=c/>", 6, "c/>"}}) {
		SCOPED_TRACE(expected.text);
		xml_parser parser;
		auto begin = expected.text.begin();
		EXPECT_EQ(parser.do_parse(begin, expected.text.end()).code(), expected.code);
		EXPECT_EQ(std::string(begin, expected.text.end()), expected.rest);
	}
}

/// Writes down what stands between the beginning of the text and each event.
struct position_log {
	explicit position_log(std::string const &text) : first(text.begin()), position(text.begin()) {
		using member = quor::functor::member_function_t<position_log, void(ustring8 const &)>;
		using attribute_member =
		    quor::functor::member_function_t<position_log, void(ustring8 const &, ustring8 const &)>;
		for (auto *const delegate : {&parser.on_element_start(), &parser.on_element_end(), &parser.on_character(),
		                             &parser.on_space(), &parser.on_comment()}) {
			*delegate = member(this, &position_log::note);
		}
		parser.on_attribute() = attribute_member(this, &position_log::note_pair);
	}
	void note(ustring8 const & /*text*/) { offsets.push_back(position - first); }
	void note_pair(ustring8 const & /*name*/, ustring8 const & /*value*/) { offsets.push_back(position - first); }

	std::string::const_iterator first;
	std::string::const_iterator position;
	std::vector<std::ptrdiff_t> offsets;
	xml_parser parser;
};

TEST(xml_parser, do_parse_begin_tells_delegates_where_each_event_ends) {
	//                         0         1         2         3         4
	//                         0123456789012345678901234567890123456789012345678
	std::string const text = "<?xml?><ab c = 'd'  e=\"f\">g h  <!--i--><jk/> </ab >";
	position_log log(text);
	EXPECT_EQ(log.parser.do_parse(log.position, text.end()).code(), 0);
	EXPECT_EQ(log.offsets, (std::vector<std::ptrdiff_t>{9, 17, 24, 29, 31, 38, 41, 43, 45, 48}));
	EXPECT_EQ(log.position, text.end());
}

// An inner routine on a text of its own: what it gives, and how far it went.
template <class Routine>
std::string inner(std::string const &text, Routine routine) {
	xml_parser const parser;
	auto it = text.begin();
	try {
		ustring8 const result = (parser.*routine)(it, text.end());
		return result + "|" + std::to_string(it - text.begin());
	} catch (parse_error const &error) {
		return "!" + std::to_string(error.code()) + error.text();
	}
}

TEST(xml_parser, inner_routines_stop_where_told) {
	EXPECT_EQ(inner("ab_9-c", &xml_parser::parse_name), "ab_9|3");
	EXPECT_EQ(inner("a", &xml_parser::parse_name), "a|0");
	EXPECT_EQ(inner("9", &xml_parser::parse_name), "!59");
	EXPECT_EQ(inner("", &xml_parser::parse_name), "!1");
	EXPECT_EQ(inner("'a\"b' c", &xml_parser::parse_attrib_value), "a\"b|4");
	EXPECT_EQ(inner("'ab", &xml_parser::parse_attrib_value), "ab|3");
	EXPECT_EQ(inner("ab", &xml_parser::parse_attrib_value), "!6");
	EXPECT_EQ(inner("", &xml_parser::parse_attrib_value), "!1");
	EXPECT_EQ(inner("&amp;x", &xml_parser::parse_character), "&|4");
	EXPECT_EQ(inner("&#x41;x", &xml_parser::parse_character), "A|5");
	EXPECT_EQ(inner("x", &xml_parser::parse_character), "!5x");
	EXPECT_EQ(inner("", &xml_parser::parse_character), "!1");
	EXPECT_EQ(inner(" \t\r\nx", &xml_parser::parse_whitespace), " \t\r\n|4");
	EXPECT_EQ(inner("x", &xml_parser::parse_whitespace), "|0");
	EXPECT_EQ(inner("", &xml_parser::parse_whitespace), "|0");
}

TEST(xml_parser, is_white_space_is_four_bytes) {
	xml_parser const parser;
	for (int value = 0; value != 256; ++value) {
		std::string const text(1, static_cast<char>(value));
		bool const expected = value == 0x20 || value == 0x09 || value == 0x0D || value == 0x0A;
		EXPECT_EQ(parser.is_white_space(text.begin()), expected) << value;
	}
}

TEST(xml_parser, parse_name_takes_ascii_letters_digits_and_underscore) {
	for (int value = 0; value != 256; ++value) {
		char const c = static_cast<char>(value);
		bool const letter = (value >= 'A' && value <= 'Z') || (value >= 'a' && value <= 'z');
		bool const inside = letter || (value >= '0' && value <= '9') || value == '_';
		SCOPED_TRACE(value);
		EXPECT_EQ(inner(std::string(1, c) + "-", &xml_parser::parse_name),
		          letter ? std::string(1, c) + "|0" : "!5" + std::string(1, c));
		EXPECT_EQ(inner("a" + std::string(1, c) + "-", &xml_parser::parse_name),
		          inside ? "a" + std::string(1, c) + "|1" : "a|0");
	}
}

struct thrower {
	void text(ustring8 const &) { throw 7; }
	void attribute(ustring8 const &, ustring8 const &) { throw 8; }
};

TEST(xml_parser, parse_passes_exceptions_of_delegates_through) {
	using member = quor::functor::member_function_t<thrower, quor_test::text_function>;
	using attribute_member = quor::functor::member_function_t<thrower, quor_test::attribute_function>;
	thrower target;
	std::string const text = "<?xml?><!--c--> <a b='1'>t</a>";
	for (auto slot : {&xml_parser::on_element_start, &xml_parser::on_element_end, &xml_parser::on_character,
	                  &xml_parser::on_space, &xml_parser::on_comment}) {
		xml_parser parser;
		(parser.*slot)() = member(&target, &thrower::text);
		EXPECT_THROW(parser.parse("<?xml?><!--c--> <a b='1'>t </a>"
		                          "<!--d--> "),
		             int);
	}
	xml_parser parser;
	parser.on_attribute() = attribute_member(&target, &thrower::attribute);
	EXPECT_THROW(parser.parse(ustring8(text)), int);
	// What was open when the exception passed stays open.
	EXPECT_EQ(parser.parse("<?xml?></a>").code(), 0);
}

TEST(xml_parser, parse_error_holds_its_fields) {
	parse_error const none;
	EXPECT_EQ(none.code(), parse_error::error_none);
	EXPECT_EQ(none.line(), 0U);
	EXPECT_EQ(none.text(), "");
	parse_error const some(parse_error::error_mismatched_end, 7, "a");
	parse_error copy;
	copy = some;
	EXPECT_EQ(copy.code(), 2);
	EXPECT_EQ(copy.line(), 7U);
	EXPECT_EQ(copy.text(), "a");
	EXPECT_EQ(static_cast<parse_error::error_code>(99), 99);
}

} // namespace
