// The events and the fault of small texts, row by row.

#include <gtest/gtest.h>

#include <quor/parser/xml_parser.hpp>

#include "support/event_log.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::parser::xml_parser;
using quor::strings::ustring8;
using parse_error = xml_parser::parse_error;
using reference::xml_event;

constexpr std::string_view zero("\0", 1);

// Parses behind a header unless the text brings its own, and gives the events as one
// line: start "a+", end "a-", attribute "@n=v", character "[t]", space "_t_", comment "!t!".
struct run {
	explicit run(std::string const &text, bool with_header = true) {
		xml_parser parser;
		quor_test::event_log log;
		log.bind(parser);
		error = parser.parse(ustring8(with_header ? "<?xml?>" + text : text));
		for (xml_event const &event : log.events) {
			events += events.empty() ? "" : " ";
			if (event.kind == "start") {
				events += event.first + "+";
			} else if (event.kind == "end") {
				events += event.first + "-";
			} else if (event.kind == "attribute") {
				events += "@" + event.first + "=" + event.second;
			} else if (event.kind == "character") {
				events += "[" + event.first + "]";
			} else if (event.kind == "space") {
				events += "_" + event.first + "_";
			} else {
				events += "!" + event.first + "!";
			}
		}
	}

	parse_error error;
	std::string events;
};

struct row {
	std::string text;
	int code;
	unsigned int line;
	std::string data;
	std::string events;
};

void expect_rows(std::vector<row> const &rows, bool with_header = true) {
	for (row const &expected : rows) {
		SCOPED_TRACE(testing::PrintToString(expected.text));
		run const result(expected.text, with_header);
		EXPECT_EQ(result.error.code(), expected.code);
		EXPECT_EQ(result.error.line(), expected.line);
		EXPECT_EQ(result.error.text(), expected.data);
		EXPECT_EQ(result.events, expected.events);
	}
}

TEST(xml_parser_events, parse_header_rules_give_code_3_or_4) {
	expect_rows(
	    {
	        {"", 4, 0, "", ""},
	        {"<?xm", 4, 0, "", ""},
	        {"<a></a>", 4, 0, "", ""},
	        {" <?xml?><a/>", 4, 0, "", ""},
	        {"<?XML?><a/>", 4, 0, "", ""},
	        {"<?xml", 3, 0, "", ""},
	        {"<?xml ", 3, 0, "", ""},
	        {"<?xml>", 3, 0, "", ""},
	        {"<?xml<", 3, 0, "", ""},
	        {"<?xml> ", 4, 0, "", ""},
	        {"<?xml< ", 4, 0, "", ""},
	        {"<?xml a<b ?><a/>", 4, 0, "", ""},
	        {"<?xml a>b ?><a/>", 4, 0, "", ""},
	        {"<?xml?", 3, 0, "", ""},
	        {"<?xml?>", 3, 0, "", ""},
	        {"<?xml ?>", 3, 0, "", ""},
	        {"<?xml ?>\n \n", 3, 2, "", ""},
	        {"<?xml \n ?>\n", 3, 1, "", ""},
	        {"<?xml ? ?? ?><a/>", 0, 0, "", "a+ a-"},
	        {"<?xml anything at all?><a/>", 0, 0, "", "a+ a-"},
	        {"<?xmlx?>a", 0, 0, "", "[a]"},
	    },
	    false);
}

TEST(xml_parser_events, parse_three_bytes_in_front_are_stepped_over) {
	expect_rows(
	    {
	        {"\xEF\xBB\xBF<?xml?><a/>", 0, 0, "", "a+ a-"},
	        {"abc<?xml?><a/>", 0, 0, "", "a+ a-"},
	        {"<<<<?xml?><a/>", 0, 0, "", "a+ a-"},
	        {"ab<?xml?><a/>", 4, 0, "", ""},
	        {"abcd<?xml?><a/>", 4, 0, "", ""},
	        {"abc<", 4, 0, "", ""},
	        {"abc", 4, 0, "", ""},
	    },
	    false);
}

TEST(xml_parser_events, parse_events_of_a_document) {
	expect_rows({
	    {"<a>one two  three</a>", 0, 0, "", "a+ [one two] _  _ [three] a-"},
	    {"<a x=\"1\"><b/>t</a>", 0, 0, "", "a+ @x=1 b+ b- [t] a-"},
	    {" <a/>", 0, 0, "", "a+ a-"},
	    {"<a/>\n", 0, 0, "", "a+ a- _\n_"},
	    {"<a >t</a >", 0, 0, "", "a+ [t] a-"},
	    {"<a\n/>", 0, 0, "", "a+ a-"},
	    {"<a x='1' y = \"2\"\tz=\n'3'/>", 0, 0, "", "a+ @x=1 @y=2 @z=3 a-"},
	    {"<a x='1'y='2'/>", 0, 0, "", "a+ @x=1 @y=2 a-"},
	    {"<a x=\"'\" y='\"' z='>/='/>", 0, 0, "", "a+ @x=' @y=\" @z=>/= a-"},
	    {"<a x=''/>", 0, 0, "", "a+ @x= a-"},
	    {"<Ab_9Z/>", 0, 0, "", "Ab_9Z+ Ab_9Z-"},
	    {"<a><b x='1'/><b x='2'/></a>", 0, 0, "", "a+ b+ @x=1 b- b+ @x=2 b- a-"},
	    {"<a x='1'><b x='2'></b></a>", 0, 0, "", "a+ @x=1 b+ @x=2 b- a-"},
	    {"<a>caf\xC3\xA9 \xFF</a>", 0, 0, "", "a+ [caf\xC3\xA9 \xFF] a-"},
	    {"<a>x" + std::string(zero) + "y</a>", 0, 0, "", "a+ [x" + std::string(zero) + "y] a-"},
	    {"<a x='\xC3\xA9'/>", 0, 0, "", "a+ @x=\xC3\xA9 a-"},
	    {"text", 0, 0, "", "[text]"},
	    {"<a/>text", 0, 0, "", "a+ a- [text]"},
	    {"<a/>x ", 0, 0, "", "a+ a- [x ]"},
	    {"<a/>x\n", 0, 0, "", "a+ a- [x\n]"},
	    {"<a/>x  ", 0, 0, "", "a+ a- [x] _  _"},
	    {"<a/>" + std::string(zero), 0, 0, "", "a+ a- [" + std::string(zero) + "]"},
	});
}

TEST(xml_parser_events, parse_white_space_splits_text_at_pairs) {
	expect_rows({
	    {"<a>x </a>", 0, 0, "", "a+ [x ] a-"},
	    {"<a> x</a>", 0, 0, "", "a+ _ _ [x] a-"},
	    {"<a> </a>", 0, 0, "", "a+ _ _ a-"},
	    {"<a>x  </a>", 0, 0, "", "a+ [x] _  _ a-"},
	    {"<a>x\n\ty</a>", 0, 0, "", "a+ [x] _\n\t_ [y] a-"},
	    {"<a>x\ny</a>", 0, 0, "", "a+ [x\ny] a-"},
	    {"<a>x\r\ny</a>", 0, 0, "", "a+ [x] _\r\n_ [y] a-"},
	    {"<a>x\vy\fz</a>", 0, 0, "", "a+ [x\vy\fz] a-"},
	    {"<a>&nbsp; x</a>", 0, 0, "", "a+ [  x] a-"},
	    {"<a>&nbsp;&nbsp;x</a>", 0, 0, "", "a+ [  x] a-"},
	    {"<a> &#32;x</a>", 0, 0, "", "a+ _ _ [ x] a-"},
	    {"<a>x &#32;y</a>", 0, 0, "", "a+ [x  y] a-"},
	});
}

TEST(xml_parser_events, parse_character_data_beginnings) {
	expect_rows({
	    {"<a>></a>", 5, 0, ">", "a+"},
	    {"<a>x>y</a>", 0, 0, "", "a+ [x>y] a-"},
	    {"<a>/</a>", 0, 0, "", "a+ [/] a-"},
	    {"<a>/>x</a>", 0, 0, "", "a+ [/>x] a-"},
	    {"<a>=\"'</a>", 0, 0, "", "a+ [=\"'] a-"},
	    {"<a>]]></a>", 0, 0, "", "a+ []]>] a-"},
	    {">", 5, 0, ">", ""},
	    {"<a>x  ></a>", 5, 0, ">", "a+ [x] _  _"},
	});
}

TEST(xml_parser_events, parse_lines_count_in_white_space_runs_only) {
	expect_rows({
	    {"\n\n<a>\n\n></a>", 5, 4, ">", "a+ _\n\n_"},
	    {"<a>x\ny\nz<1", 5, 0, "1", "a+ [x\ny\nz]"},
	    {"<a>x\n\ny<1", 5, 2, "1", "a+ [x] _\n\n_ [y]"},
	    {"<a\n\nb\n=\n'1'\n><1", 5, 5, "1", "a+ @b=1"},
	    {"<a b='\n\n'><1", 5, 0, "1", "a+ @b=\n\n"},
	    {"<!--\n--><1", 5, 0, "1", "!\n!"},
	    {"<a>&#10;<1", 5, 0, "1", "a+ [\n]"},
	    {"<a\n>", 1, 0, "", "a+"},
	    {"\n<a", 1, 0, "", "a+"},
	    {"\n<", 1, 1, "", ""},
	    {"\n<a b", 1, 1, "", "a+"},
	});
}

TEST(xml_parser_events, parse_attribute_faults) {
	expect_rows({
	    {"<a b=\"1\" b=\"2\">", 9, 0, "b", "a+ @b=1"},
	    {"<a b='1' b>", 9, 0, "b", "a+ @b=1"},
	    {"<a b='1' B='2'/>", 0, 0, "", "a+ @b=1 @B=2 a-"},
	    {"<a b 1>", 8, 0, "b", "a+"},
	    {"<a b>", 8, 0, "b", "a+"},
	    {"<a b/>", 8, 0, "b", "a+"},
	    {"<a b=1>", 6, 0, "", "a+"},
	    {"<a b=>", 6, 0, "", "a+"},
	    {"<a b=\"1", 6, 0, "b", "a+ @b=1"},
	    {"<a b=\"", 6, 0, "b", "a+ @b="},
	    {"<a b='1\">", 6, 0, "b", "a+ @b=1\">"},
	    {"<a b=\"1<\">", 5, 0, "<", "a+"},
	    {"<a b='&lt;'/>", 0, 0, "", "a+ @b=< a-"},
	    {"<a b='&lt'/>", 5, 0, "t", "a+"},
	    {"<a-b/>", 5, 0, "-", "a+"},
	    {"<a:b/>", 5, 0, ":", "a+"},
	    {"<a.b/>", 5, 0, ".", "a+"},
	    {"<a =''/>", 5, 0, "=", "a+"},
	    {"<a _b=''/>", 5, 0, "_", "a+"},
	    {"<a <b/>", 5, 0, "<", "a+"},
	    {"<a b", 1, 0, "", "a+"},
	    {"<a b ", 1, 0, "", "a+"},
	    {"<a b=", 1, 0, "", "a+"},
	    {"<a b= ", 1, 0, "", "a+"},
	    {"<a b='1'", 1, 0, "", "a+ @b=1"},
	    {"<a \xC3\xA9=''/>", 5, 0, "\xC3", "a+"},
	    {"<a " + std::string(zero) + ">", 5, 0, std::string(zero), "a+"},
	});
}

TEST(xml_parser_events, parse_element_faults) {
	expect_rows({
	    {"<", 1, 0, "", ""},
	    {"</", 1, 0, "", ""},
	    {"<1/>", 5, 0, "1", ""},
	    {"<_a/>", 5, 0, "_", ""},
	    {"< a/>", 5, 0, " ", ""},
	    {"<>", 5, 0, ">", ""},
	    {"</>", 5, 0, ">", ""},
	    {"<\xE9/>", 5, 0, "\xE9", ""},
	    {"<?php?>", 5, 0, "?", ""},
	    {"<!", 1, 0, "", ""},
	    {"<!-", 1, 0, "", ""},
	    {"<!x", 5, 0, "!", ""},
	    {"<!-x", 5, 0, "!", ""},
	    {"<!DOCTYPE a><a/>", 5, 0, "!", ""},
	    {"<a><![CDATA[x]]></a>", 5, 0, "!", "a+"},
	    {"<a", 1, 0, "", "a+"},
	    {"<a>", 1, 0, "", "a+"},
	    {"<a><b></b>", 1, 0, "", "a+ b+ b-"},
	    {"<a></b>", 2, 0, "b", "a+"},
	    {"<a></b", 2, 0, "b", "a+"},
	    {"<a></a", 1, 0, "", "a+"},
	    {"<a></a ", 0, 0, "", "a+ a-"},
	    {"<a></a>", 0, 0, "", "a+ a-"},
	    {"<a/", 5, 0, "", "a+"},
	    {"<a/ >", 5, 0, " ", "a+"},
	    {"<a/b>", 5, 0, "b", "a+"},
	    {"<a/>>", 5, 0, ">", "a+ a-"},
	    {"<a/><b/>", 10, 0, "", "a+ a-"},
	    {"<a/><1>", 10, 0, "", "a+ a-"},
	    {"<a/><", 1, 0, "", "a+ a-"},
	    {"<a/><!", 1, 0, "", "a+ a-"},
	    {"<a/><!x", 10, 0, "", "a+ a-"},
	    {"<a></a>\n\n<b>", 10, 2, "", "a+ a- _\n\n_"},
	    {"<a/><!-- c -->", 0, 0, "", "a+ a- ! c !"},
	});
}

TEST(xml_parser_events, parse_end_tag_keeps_the_tag_open) {
	expect_rows({
	    {"<a></a b='1'>", 0, 0, "", "a+ a- @b=1"},
	    {"<a b='1'></a b='2'>", 9, 0, "b", "a+ @b=1 a-"},
	    {"<a><b></b/>", 0, 0, "", "a+ b+ b- a-"},
	    {"<a></a/>", 2, 0, "", "a+ a-"},
	    {"</a>", 0, 0, "", "a-"},
	    {"</a><b/>", 0, 0, "", "a- b+ b-"},
	    {"<a/></b><c/>", 10, 0, "", "a+ a- b-"},
	    {"<a></a <", 5, 0, "<", "a+ a-"},
	    {"</a/>", 2, 0, "", "a-"},
	});
}

TEST(xml_parser_events, parse_comments) {
	expect_rows({
	    {"<!-- c --><a/>", 0, 0, "", "! c ! a+ a-"},
	    {"<!----><a/>", 0, 0, "", "!! a+ a-"},
	    {"<!---><a/>-->", 0, 0, "", "!-><a/>!"},
	    {"<!--->-->", 0, 0, "", "!->!"},
	    {"<!---->", 0, 0, "", "!!"},
	    {"<!-----><a/>", 0, 0, "", "!-! a+ a-"},
	    {"<!-- - -- &amp; < > --><a/>", 0, 0, "", "! - -- &amp; < > ! a+ a-"},
	    {"<!--", 1, 0, "", ""},
	    {"<!--x", 1, 0, "", ""},
	    {"<!--xy", 1, 0, "", ""},
	    {"<!--xyz", 1, 0, "", ""},
	    {"<!--x-", 1, 0, "", ""},
	    {"<!--x--", 1, 0, "", ""},
	    {"<!--x-->", 0, 0, "", "!x!"},
	    {"<!-->", 1, 0, "", ""},
	    {"<a><!--x--></a>", 0, 0, "", "a+ !x! a-"},
	    {"<a <!--x--></a>", 5, 0, "<", "a+"},
	    {"<!--x--> y", 0, 0, "", "!x! _ _ [y]"},
	});
}

TEST(xml_parser_events, parse_entities) {
	std::string const nul(zero);
	expect_rows({
	    {"&amp;&apos;&gt;&lt;&nbsp;&quot;", 0, 0, "", "[&'>< \"]"},
	    {"&#65;&#x41;", 0, 0, "", "[AA]"},
	    {"&#x4a;&#x4A;", 0, 0, "", "[JJ]"},
	    {"&#065;", 0, 0, "", "[5]"},
	    {"&#0101;", 0, 0, "", "[A]"},
	    {"&#x041;", 0, 0, "", "[A]"},
	    {"&#09;", 0, 0, "", "[" + nul + "]"},
	    {"&#0;&#00;", 0, 0, "", "[" + nul + nul + "]"},
	    {"&#;&#x;", 0, 0, "", "[" + nul + nul + "]"},
	    {"&#233;", 0, 0, "", "[\xE9]"},
	    {"&#255;&#256;&#99999999999999999999;", 0, 0, "", "[\xFF\xFF\xFF]"},
	    {"&#xfF;&#x100;", 0, 0, "", "[\xFF\xFF]"},
	    {"&#0377;&#0400;", 0, 0, "", "[\xFF\xFF]"},
	    {"&#X41;", 5, 0, "X", ""},
	    {"&#6x;", 5, 0, "x", ""},
	    {"&#0x41;", 5, 0, "x", ""},
	    {"&#0b1;", 5, 0, "b", ""},
	    {"&#a;", 5, 0, "a", ""},
	    {"&#xg;", 5, 0, "g", ""},
	    {"&#-1;", 5, 0, "-", ""},
	    {"&# 1;", 5, 0, " ", ""},
	    {"&#65<", 5, 0, "<", ""},
	    {"&unknown;", 7, 0, "", ""},
	    {"&;", 7, 0, "", ""},
	    {"& ", 7, 0, "", ""},
	    {"&<", 7, 0, "", ""},
	    {"&A", 7, 0, "", ""},
	    {"&amx;", 5, 0, "m", ""},
	    {"&axp;", 5, 0, "x", ""},
	    {"&apox;", 5, 0, "p", ""},
	    {"&amp ;", 5, 0, "m", ""},
	    {"&gx;", 5, 0, "x", ""},
	    {"&gtt;", 5, 0, "t", ""},
	    {"&lT;", 5, 0, "T", ""},
	    {"&nbs;", 5, 0, "b", ""},
	    {"&nb\nsp;", 5, 0, "b", ""},
	    {"&quo;", 5, 0, "u", ""},
	    {"&q;", 5, 0, ";", ""},
	    {"x&amx;", 5, 0, "m", ""},
	    {"\n\n&u;", 7, 2, "", ""},
	});
}

TEST(xml_parser_events, parse_entity_cut_at_the_end_gives_code_1_unless_it_differs_before) {
	for (std::string const entity : {"&amp;", "&apos;", "&gt;", "&lt;", "&nbsp;", "&quot;", "&#65;", "&#x41;", "&#;"}) {
		for (std::size_t size = 1; size != entity.size(); ++size) {
			std::string const cut = entity.substr(0, size);
			SCOPED_TRACE(cut);
			run const text("  \n" + cut);
			EXPECT_EQ(text.error.code(), 1);
			EXPECT_EQ(text.error.line(), 1U);
			EXPECT_EQ(text.error.text(), "");
			run const value("<a b='" + cut);
			EXPECT_EQ(value.error.code(), 1);
			EXPECT_EQ(value.events, "a+");
		}
	}
	expect_rows({
	    {"&ax", 5, 0, "x", ""},
	    {"&gx", 5, 0, "x", ""},
	    {"&quox", 5, 0, "u", ""},
	    {"&amx", 5, 0, "m", ""},
	    {"&x", 7, 0, "", ""},
	    {"&#q", 5, 0, "q", ""},
	});
}

TEST(xml_parser_events, strings_of_every_length_follow_one_another) {
	// The strings that delegates get are the same ones each time: shorter and longer in turn.
	std::string text = "<r>";
	std::string events = "r+";
	for (std::size_t i = 0; i != 80; ++i) {
		std::size_t const size = i % 2 == 0 ? i + 1 : 80 - i;
		std::string const name(size, static_cast<char>('a' + i % 26));
		std::string const value(size, static_cast<char>('A' + i % 26));
		text.append("<").append(name).append(" ").append(value).append("='").append(value).append("'>");
		text.append(value).append("</").append(name).append(">");
		events.append(" ").append(name).append("+ @").append(value).append("=").append(value);
		events.append(" [").append(value).append("] ").append(name).append("-");
	}
	expect_rows({{text + "</r>", parse_error::error_none, 0, "", events + " r-"}});
}

TEST(xml_parser_events, element_end_that_closes_the_rest_leaves_nothing_to_close) {
	// The same parser reads another text while it is in the delegate: what it has open is closed
	// there already.
	struct closer {
		xml_parser parser;
		int calls = 0;

		closer() { parser.on_element_end() = quor::functor::member_function_t(this, &closer::end); }
		void end(ustring8 const & /*name*/) {
			if (++calls == 1) {
				EXPECT_EQ(parser.parse(ustring8("<?xml?></a>")).code(), parse_error::error_none);
			}
		}
	};
	closer one;
	EXPECT_EQ(one.parser.parse(ustring8("<?xml?><a/>")).code(), parse_error::error_none);
	EXPECT_EQ(one.calls, 2);
}

} // namespace
