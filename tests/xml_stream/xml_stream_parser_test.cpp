#include <gtest/gtest.h>

#include <exception>
#include <string>
#include <type_traits>
#include <vector>

#include <quor/strings/transcode.hpp>
#include <quor/xml_stream/xml_stream_parser.hpp>

#include "support/stream_file.hpp"

namespace {

namespace quor = QUOR_2_9;
using parser = quor::xml_stream::xml_stream_parser;
using quor::strings::ustring8;
using quor_test::drain;
using quor_test::plain_node;
using quor_test::spelled;
using quor_test::stream_file;
using quor_test::stream_header;
using quor_test::stream_nodes;
using nodes = std::vector<std::string>;

std::string repeated(std::string const &piece, std::size_t count) {
	std::string text;
	for (std::size_t i = 0; i != count; ++i) {
		text += piece;
	}
	return text;
}

struct row {
	std::string body; // behind the header
	unsigned int open_depth;
	nodes expected;
	int status;
};

void expect(std::vector<row> const &rows) {
	stream_file const file;
	for (row const &each : rows) {
		parser from = file.open(stream_header + each.body, each.open_depth);
		EXPECT_EQ(stream_nodes(from), each.expected) << each.body << ", depth " << each.open_depth;
		EXPECT_EQ(static_cast<int>(from.error()), each.status) << each.body << ", depth " << each.open_depth;
	}
}

TEST(xml_stream_parser, values_of_the_status_are_fixed) {
	EXPECT_EQ(parser::status_ok, 0);
	EXPECT_EQ(parser::status_more_input, 1);
	EXPECT_EQ(parser::status_no_position, 2);
	EXPECT_EQ(parser::status_end_of_document, 3);
	EXPECT_EQ(parser::status_tag_mismatch, 4);
	EXPECT_EQ(parser::status_duplicate_attribute, 5);
	EXPECT_EQ(parser::status_syntax, 6);
	EXPECT_EQ(parser::status_attribute_quote, 7);
	EXPECT_EQ(parser::status_expected_equals, 9);
	EXPECT_EQ(parser::status_no_root, 10);
	EXPECT_EQ(parser::status_file, 11);
	EXPECT_EQ(parser::status_bad_header, 12);
}

TEST(xml_stream_parser, shallow_elements_come_twice_and_deep_ones_when_they_are_closed) {
	expect({
	    {"<r a=\"1\"><s>t</s></r>", 1, {"r 1<0 1 @1 a=1", "s 2<1 0 @1 't'", "r 1<0 3 @1"}, 3},
	    {"<r><s>t</s></r>", 2, {"r 1<0 1 @1", "s 2<1 1 @1 't'", "s 2<0 0 @1", "r 1<0 3 @1"}, 3},
	    {"<r><s>t</s></r>", 99, {"r 1<0 1 @1", "s 2<1 1 @1 't'", "s 2<0 0 @1", "r 1<0 3 @1"}, 3},
	    {"<r><s>t</s></r>", 0, {"r 1<0 0 @1", "s 2<1 0 @1 't'"}, 0},
	    {"<r><s><t/><u>x</u></s><v/></r>",
	     1,
	     {"r 1<0 1 @1", "s 2<1 0 @1", "t 3<2 0 @1", "u 4<2 0 @1 'x'", "v 5<1 0 @1", "r 1<0 3 @1"},
	     3},
	    {"<r><s><t/></s></r>", 2, {"r 1<0 1 @1", "s 2<1 1 @1", "t 3<2 0 @1", "s 2<0 0 @1", "r 1<0 3 @1"}, 3},
	    // An empty shallow element leaves the path when it closes.
	    {"<r><s/><t/></r>", 2, {"r 1<0 1 @1", "s 2<1 0 @1", "t 3<1 0 @1", "r 1<0 3 @1"}, 3},
	    {"<r><s/><t>x</t></r>", 2, {"r 1<0 1 @1", "s 2<1 0 @1", "t 3<1 1 @1 'x'", "t 2<0 0 @1", "r 1<0 3 @1"}, 3},
	    // An empty root is the whole document.
	    {"<r/>", 1, {"r 1<0 0 @1"}, 3},
	    {"<r a='b'/><s/>", 1, {"r 1<0 0 @1 a=b"}, 3},
	    {"<r/>", 0, {"r 1<0 0 @1"}, 0},
	    {"<r/><s/>", 0, {"r 1<0 0 @1", "s 2<0 0 @1"}, 0},
	    {"<r></r>", 1, {"r 1<0 1 @1", "r 1<0 3 @1"}, 3},
	    // "include" is deep at any depth, and no root.
	    {"<include><r/></include>", 1, {}, 3},
	    {"<include><s/></include>", 0, {"include 1<0 0 @1", "s 2<1 0 @1"}, 0},
	    {"<include/><r/>", 1, {"include 1<0 0 @1", "r 2<0 0 @1"}, 3},
	    {"<r><include a='1'>x</include></r>", 9, {"r 1<0 1 @1", "include 2<1 0 @1 a=1 'x'", "r 1<0 3 @1"}, 3},
	    {"<r><include><s>x</s></include></r>",
	     2,
	     {"r 1<0 1 @1", "include 2<1 0 @1", "s 3<2 1 @1 'x'", "s 2<0 0 @1", "r 1<0 3 @1"},
	     3},
	    {"<r><includes/></r>", 2, {"r 1<0 1 @1", "includes 2<1 0 @1", "r 1<0 3 @1"}, 3},
	    // A shallow element with the root's name ends the document.
	    {"<r><r>x</r><s/></r>", 2, {"r 1<0 1 @1", "r 2<1 1 @1 'x'", "r 2<0 3 @1"}, 3},
	    {"<r><r/><s/></r>", 2, {"r 1<0 1 @1", "r 2<1 0 @1"}, 3},
	    {"<r><r>x</r><s/></r>", 1, {"r 1<0 1 @1", "r 2<1 0 @1 'x'", "s 3<1 0 @1", "r 1<0 3 @1"}, 3},
	});
}

TEST(xml_stream_parser, attributes_come_in_order) {
	expect({
	    {"<r a=\"1\" b='2'\tc=\"\"\nd=''/>", 1, {"r 1<0 0 @1 a=1 b=2 c= d="}, 3},
	    {"<r a=\"1\"b='2'c=\"3\"/>", 1, {"r 1<0 0 @1 a=1 b=2 c=3"}, 3},
	    {"<r a= \"1\" b=\n\t\r '2' />", 1, {"r 1<0 0 @1 a=1 b=2"}, 3},
	    {"<r a=\"it's\" b='a \"b\"' c=\"/>\"/>", 1, {"r 1<0 0 @1 a=it's b=a \"b\" c=/>"}, 3},
	    {"<r 9=\"1\" _=\"2\" \xC3\xA9=\"3\"/>", 1, {"r 1<0 0 @1 9=1 _=2 \xC3\xA9=3"}, 3},
	    {"<r a=\"1\" A=\"2\" aa=\"3\"/>", 1, {"r 1<0 0 @1 a=1 A=2 aa=3"}, 3},
	    {"<r a=\"1\"><s a=\"2\"/></r>", 1, {"r 1<0 1 @1 a=1", "s 2<1 0 @1 a=2", "r 1<0 3 @1"}, 3},
	});
}

TEST(xml_stream_parser, a_name_is_a_run_of_letters_digits_underscores_and_bytes_above_127) {
	stream_file const file;
	for (int byte = 0; byte != 256; ++byte) {
		std::string const text(1, static_cast<char>(byte));
		bool const in_name = (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
		                     (byte >= 'a' && byte <= 'z') || byte == '_' || byte >= 0x80;
		parser from = file.open(stream_header + "<r" + text + "x='1'/>" + std::string(10, ' '), 1);
		from.parse();
		EXPECT_EQ(from.root() == "r" + text + "x", in_name) << byte;
	}
}

TEST(xml_stream_parser, text_keeps_trailing_blanks_and_the_last_run) {
	expect({
	    {"<r><s> \n\t\r one two \n</s></r>", 1, {"r 1<0 1 @1", "s 2<1 0 @1 'one two \n'", "r 1<0 3 @2"}, 3},
	    {"<r><s>a<t/>b</s></r>", 1, {"r 1<0 1 @1", "s 2<1 0 @1 'b'", "t 3<2 0 @1", "r 1<0 3 @1"}, 3},
	    {"<r><s>a<!--c-->b</s></r>", 1, {"r 1<0 1 @1", "s 2<1 0 @1 'b'", "r 1<0 3 @1"}, 3},
	    {"<r><s>a<t/> </s></r>", 1, {"r 1<0 1 @1", "s 2<1 0 @1 'a'", "t 3<2 0 @1", "r 1<0 3 @1"}, 3},
	    {"<r><s>a > b / c</s></r>", 1, {"r 1<0 1 @1", "s 2<1 0 @1 'a > b / c'", "r 1<0 3 @1"}, 3},
	    {"<r><s>/x</s></r>", 1, {"r 1<0 1 @1", "s 2<1 0 @1 '/x'", "r 1<0 3 @1"}, 3},
	    {"<r><s>" + std::string("a\0b", 3) + "</s></r>",
	     1,
	     {"r 1<0 1 @1", "s 2<1 0 @1 '" + std::string("a\0b", 3) + "'", "r 1<0 3 @1"},
	     3},
	    {"<r><s><![CDATA[x]]></s></r>", 1, {"r 1<0 1 @1", "s 2<1 0 @1 '![CDATA[x]]>'", "r 1<0 3 @1"}, 3},
	    {"<r><s><t></t x></s></r>", 1, {"r 1<0 1 @1", "s 2<1 0 @1 'x>'", "t 3<2 0 @1", "r 1<0 3 @1"}, 3},
	});
}

TEST(xml_stream_parser, entities_are_one_byte) {
	struct entity {
		char const *text;
		std::string bytes;
	};
	for (auto const &[text, bytes] : std::vector<entity>{{"&lt;", "<"},
	                                                     {"&gt;", ">"},
	                                                     {"&amp;", "&"},
	                                                     {"&apos;", "'"},
	                                                     {"&quot;", "\""},
	                                                     {"&nbsp;", " "},
	                                                     {"&#x41;", "A"},
	                                                     {"&#65;", "A"},
	                                                     {"&#300;", "\xFF"},
	                                                     {"&#255;", "\xFF"},
	                                                     {"&#256;", "\xFF"},
	                                                     {"&#x100;", "\xFF"},
	                                                     {"&#xfF;", "\xFF"},
	                                                     {"&#010;", "\x08"},
	                                                     {"&#08;", "z"},
	                                                     {"&#;", "z"},
	                                                     {"&#x;", "z"},
	                                                     {"&#x010;", "\x10"},
	                                                     {"&#99999999999999;", "\xFF"},
	                                                     {"&#0377;", "\xFF"}}) {
		std::string const byte = bytes == "z" ? std::string(1, '\0') : bytes;
		expect({{"<r><s b='" + std::string(text) + "' c='-" + text + "-'>" + text + "</s></r>",
		         1,
		         {"r 1<0 1 @1", "s 2<1 0 @1 b=" + byte + " c=-" + byte + "- '" + byte + "'", "r 1<0 3 @1"},
		         3}});
	}
	for (char const *text : {"&lt", "&am;p", "& ", "&LT;", "&#x4g;", "&#4a;", "&#-1;", "&#X41;", "&copy;", "&quo;"}) {
		expect({{"<r><s>" + std::string(text) + "    </s></r>", 1, {"r 1<0 1 @1"}, 6},
		        {"<r><s b='" + std::string(text) + "    '/></r>", 1, {"r 1<0 1 @1"}, 6}});
	}
}

TEST(xml_stream_parser, comments_are_passed_over) {
	expect({
	    {"<!--a--><r><!----><!-- <x> --><!--->--><!-- - -- ---></r>", 1, {"r 1<0 1 @1", "r 1<0 3 @1"}, 3},
	    {"<r><!-->--></r>", 1, {"r 1<0 1 @1", "r 1<0 3 @1"}, 3},
	    {"<r><!-- a", 1, {"r 1<0 1 @1"}, 1},
	    {"<r></r <!--a--> >", 1, {"r 1<0 1 @1", "r 1<0 3 @1"}, 3},
	});
}

TEST(xml_stream_parser, faults_have_their_status_and_keep_what_was_queued) {
	nodes const root = {"r 1<0 1 @1"};
	expect({
	    {"<r><s></t></r>", 1, root, 4},
	    {"<r></s>", 1, root, 4},
	    {"</r>     ", 1, {}, 4},
	    {"<r><s></r></s>", 2, {"r 1<0 1 @1", "s 2<1 1 @1"}, 4},
	    {"<r><include></r></include>", 1, root, 4},
	    {"<r b='1' b='2'/>", 1, {"r 1<0 1 @1 b=1"}, 5},
	    {"<r b='1' c='2' b=''/>", 1, {"r 1<0 1 @1 b=1 c=2"}, 5},
	    {"<r>text</r>", 1, root, 6},
	    {"<r><s/>text</r>", 1, {"r 1<0 1 @1", "s 2<1 0 @1"}, 6},
	    {"text<r/>", 1, {}, 6},
	    {"<r/>text<s/>", 0, {"r 1<0 0 @1"}, 6},
	    {"<r><s>&bad;</s></r>", 1, root, 6},
	    {"<r>&bad;</r>", 1, root, 6},
	    {"<r a='<'/>", 1, root, 6},
	    {"<r <s/>", 1, root, 6},
	    {"<r / >", 1, root, 6},
	    {"<r \"b\"/>", 1, root, 6},
	    {"<r/b>", 1, root, 6},
	    {"< r/>", 1, {}, 6},
	    {"<?pi?>", 1, {}, 6},
	    {"<!DOCTYPE r><r/>", 1, {}, 6},
	    {"<r><!x></r>", 1, root, 6},
	    {"> <r/>", 1, {}, 6},
	    {">", 1, {}, 6},
	    {"<r>></r>", 1, root, 6},
	    {"<r-x/>", 1, root, 6},
	    {"<r b=1/>", 1, root, 7},
	    {"<r b= >", 1, root, 7},
	    {"<r b/>", 1, root, 9},
	    {"<r b ='1'/>", 1, root, 9},
	    {"<r b:c='1'/>", 1, root, 9},
	});
}

TEST(xml_stream_parser, parse_behind_a_fault_meets_it_again) {
	stream_file const file;
	for (auto const &[body, status] : std::vector<std::pair<std::string, int>>{
	         {"<r><s></t></r>", 4}, {"<r b='1' b='2'/>", 5}, {"<r>text</r>", 6}, {"<r b=1/>", 7}, {"<r b/>", 9}}) {
		parser from = file.open(stream_header + body, 1);
		for (int i = 0; i != 4; ++i) {
			EXPECT_EQ(static_cast<int>(from.parse()), status) << body;
			EXPECT_EQ(from.node_queue_size(), 1U) << body;
		}
	}
}

TEST(xml_stream_parser, a_file_that_ends_early_has_status_1) {
	std::string const whole = stream_header + "<r a=\"x&amp;\"><s b='1'>t&lt;</s><!--c--><u/></r >";
	stream_file const file;
	for (std::size_t size = 0; size <= whole.size(); ++size) {
		parser from = file.open(whole.substr(0, size), 1);
		stream_nodes(from);
		// Nothing is open behind the header. The root's name in its closing tag is the end.
		int const expected = size == stream_header.size() ? 0 : size + 2 >= whole.size() ? 3 : 1;
		EXPECT_EQ(static_cast<int>(from.error()), expected) << size;
	}
	expect({{"<r><s></s", 1, {"r 1<0 1 @1"}, 1},
	        {"<root></roo", 1, {"root 1<0 1 @1"}, 1},
	        {"<r></r", 0, {}, 1},
	        {"<r></r ", 0, {"r 1<0 0 @1"}, 1},
	        {"<r></r> \n", 0, {"r 1<0 0 @1"}, 0},
	        {"<r></r> x", 0, {"r 1<0 0 @1"}, 1},
	        {"<r></>", 1, {"r 1<0 1 @1"}, 1},
	        {"<r></ r>", 1, {"r 1<0 1 @1"}, 1},
	        {"<r><s>&xy<", 1, {"r 1<0 1 @1"}, 1},
	        {"<r><s>&xyz<", 1, {"r 1<0 1 @1"}, 6},
	        {"<r s='&xy<", 1, {"r 1<0 1 @1"}, 1},
	        {"<r><s>&lt;", 1, {"r 1<0 1 @1"}, 1},
	        {"<r>text", 1, {"r 1<0 1 @1"}, 1},
	        {"", 1, {}, 0},
	        {"\n", 1, {}, 0},
	        {"<!-", 1, {}, 1},
	        {"<!x", 1, {}, 1}});
}

TEST(xml_stream_parser, a_finished_document_stays_finished) {
	stream_file const file;
	for (std::string const body : {"<r></r>", "<r></r", "<r></r \n", "<r></r x", "<r></r x<y>", "<r></r <x></x> ",
	                               "<r></r <x></x <y/", "<r/>", "<r></r <", "<r/>junk"}) {
		parser from = file.open(stream_header + body, 1);
		for (int i = 0; i != 3; ++i) {
			EXPECT_EQ(from.parse(), parser::status_end_of_document) << body;
		}
		EXPECT_EQ(from.recover({"r"}), parser::status_end_of_document) << body;
		EXPECT_EQ(from.recover({}), parser::status_end_of_document) << body;
		EXPECT_EQ(from.error(), parser::status_end_of_document) << body;
	}
}

TEST(xml_stream_parser, the_header_has_to_be_there_whole) {
	stream_file const file;
	std::string const blanks(60, ' ');
	struct header_row {
		std::string content;
		int status;
		unsigned int line;
	};
	for (auto const &[content, status, line] : std::vector<header_row>{
	         {"<?xml?><r/>" + blanks, 3, 1},
	         {"\xEF\xBB\xBF<?xml?><r/>" + blanks, 3, 1},
	         {"abc<?xml?><r/>" + blanks, 3, 1},
	         {"\n\n\n<?xml?><r/>" + blanks, 3, 1},
	         {"\n\n<?xml?><r/>" + blanks, 3, 3},
	         {"\n<?xml?><r/>" + blanks, 3, 2},
	         {"\n\n\n\n<?xml?><r/>" + blanks, 3, 5},
	         {blanks + "\n<?xml?>\n<r/>", 3, 3},
	         {"<?xml a\nb\n?><r/>" + blanks, 3, 1},
	         {"<?xml?>\n\n<r/>" + blanks, 3, 3},
	         {"<?xml??\?><r/>" + blanks, 3, 1},
	         {"<?xmlx <r/>?><r/>" + blanks, 3, 1},
	         {"<r/>" + blanks, 12, 1},
	         {"<?XML?><r/>" + blanks, 12, 1},
	         {"ab<?xml?><r/>" + blanks, 12, 1},
	         {"abcd<?xml?><r/>" + blanks, 12, 1},
	         {"abc <?xml?><r/>" + blanks, 12, 1},
	         {"<?xm?><r/>" + blanks, 12, 1},
	         {blanks, 12, 1},
	         {blanks + "<?xml", 12, 1},
	         {blanks + "<?xml ", 1, 1},
	         {"<?xml" + blanks, 1, 1},
	         {"<?xml" + blanks + "?", 1, 1},
	         {"<?xml" + blanks + "? >", 1, 1},
	         {"", 1, 1},
	         {"<?xml?><r/>" + std::string(38, ' '), 1, 1},
	         {"<?xml?><r/>" + std::string(39, ' '), 3, 1},
	     }) {
		parser from = file.open(content, 1);
		EXPECT_EQ(from.error(), parser::status_ok);
		for (int i = 0; i != 3; ++i) {
			EXPECT_EQ(static_cast<int>(from.parse()), status) << content;
		}
		EXPECT_EQ(from.line(), line) << content;
		EXPECT_EQ(from.parse_offset() == 0, status == 12 || status == 1) << content;
		EXPECT_EQ(from.root(), status == 3 ? "r" : "") << content;
	}
}

TEST(xml_stream_parser, lines_are_those_outside_text_values_and_header) {
	expect({
	    {"\n<r\n a=\n'1\n2'\n>\n<s>\nx\ny\n</s>\n<!--\n\n-->\n<t/></r\n>",
	     1,
	     {"r 1<0 1 @2 a=1\n2", "s 2<1 0 @6 'x\ny\n'", "t 3<1 0 @11", "r 1<0 3 @11"},
	     3},
	});
	stream_file const file;
	parser from = file.open(stream_header + "\n\n<r>\n<s a='1' a=\n\n'2'/></r>", 1);
	EXPECT_EQ(from.line(), 1U);
	from.parse();
	EXPECT_EQ(from.line(), 4U) << "the fault's own lines are not committed";
}

TEST(xml_stream_parser, parse_offset_is_what_is_done) {
	stream_file const file;
	std::string const body = "<r><s>x</s>\n</r>\n";
	parser from = file.open(stream_header + body, 1);
	EXPECT_EQ(from.parse_offset(), 0U);
	EXPECT_EQ(from.file_length(), stream_header.size() + body.size());
	from.parse();
	EXPECT_EQ(from.parse_offset(), stream_header.size() + body.size() - 2) << "on the last \">\"";
	parser cut = file.open(stream_header + "<r><s a='1' b='2", 1);
	cut.parse();
	EXPECT_EQ(cut.parse_offset(), stream_header.size() + std::string("<r><s a='1' ").size() - 1 + 1);
	parser empty = file.open(stream_header + "<r/>", 1);
	empty.parse();
	EXPECT_EQ(empty.parse_offset(), stream_header.size() + 4);
}

TEST(xml_stream_parser, the_queue_is_held_to_about_100_nodes) {
	stream_file const file;
	std::string const body = "<r>" + repeated("<s/>", 1000) + "</r>";
	parser from = file.open(stream_header + body, 1);
	std::size_t total = 0;
	for (int i = 0; from.error() == parser::status_ok; ++i) {
		from.parse();
		std::size_t const size = from.node_queue_size();
		EXPECT_EQ(size, i < 9 ? 101U : 93U) << i;
		EXPECT_EQ(from.error(), i < 9 ? parser::status_ok : parser::status_end_of_document) << i;
		from.parse();
		EXPECT_EQ(from.node_queue_size(), size) << "nothing was taken out";
		total += size;
		while (!from.node_queue_empty()) {
			from.node_queue_pop();
		}
	}
	EXPECT_EQ(total, 1002U);
	// With one node at the front, or none, it goes on.
	parser nested = file.open(stream_header + "<r><s>" + repeated("<t/>", 1000) + "</s></r>", 1);
	EXPECT_EQ(nested.parse(), parser::status_end_of_document);
	EXPECT_EQ(nested.node_queue_size(), 1003U);
	parser all = file.open(stream_header + body, 0);
	EXPECT_EQ(all.parse(), parser::status_ok);
	EXPECT_EQ(all.node_queue_size(), 1001U);
}

TEST(xml_stream_parser, an_empty_queue_throws) {
	stream_file const file;
	parser from = file.open(stream_header + "<r><s>", 1);
	for (int i = 0; i != 2; ++i) {
		EXPECT_TRUE(from.node_queue_empty());
		EXPECT_EQ(from.node_queue_size(), 0U);
		EXPECT_THROW(from.node_queue_front(), parser::EmptyNodeQueue);
		try {
			from.node_queue_pop();
			ADD_FAILURE();
		} catch (std::exception const &error) {
			EXPECT_STREQ(error.what(), "empty node queue");
		}
		if (i == 0) {
			from.parse();
			EXPECT_FALSE(from.node_queue_empty());
			EXPECT_EQ(from.node_queue_front().tag(), "r");
			EXPECT_EQ(from.node_queue_pop().tag(), "r");
			// Now an element that is open and deep stands at the front.
		}
	}
}

TEST(xml_stream_parser, a_node_is_a_value) {
	parser::node const fresh;
	EXPECT_EQ(spelled(plain_node(fresh)), " 0<0 1 @0 not available");
	stream_file const file;
	parser from = file.open(stream_header + "<r><s a='1' b='2'>text</s></r>", 1);
	from.parse();
	from.node_queue_pop();
	parser::node const copy = from.node_queue_front();
	from.node_queue_front().attribs().front().second = "changed";
	from.node_queue_front().attribs().pop_back();
	parser::node popped = from.node_queue_pop();
	EXPECT_EQ(spelled(plain_node(copy)), "s 2<1 0 @1 a=1 b=2 'text'");
	EXPECT_EQ(spelled(plain_node(popped)), "s 2<1 0 @1 a=changed 'text'");
	popped = copy;
	EXPECT_EQ(spelled(plain_node(popped)), spelled(plain_node(copy)));
	parser::node const moved = std::move(popped);
	EXPECT_EQ(spelled(plain_node(moved)), spelled(plain_node(copy)));
	static_assert(!std::is_copy_constructible_v<parser> && !std::is_copy_assignable_v<parser>);
}

TEST(xml_stream_parser, a_node_that_was_taken_out_while_open_gets_nothing_more) {
	stream_file const file;
	std::string const start = stream_header + "<r><s a='1'";
	parser from = file.open(start, 2);
	EXPECT_EQ(from.parse(), parser::status_more_input);
	nodes got;
	drain(from, got);
	file.write(start + " b='2' c='3'");
	from.parse();
	EXPECT_TRUE(from.node_queue_empty());
	file.write(start + " b='2' c='3' a='4'/></r>");
	EXPECT_EQ(from.parse(), parser::status_duplicate_attribute) << "the names are known still";
	EXPECT_EQ(from.recover({"t"}), parser::status_no_position);
	EXPECT_EQ(got, (nodes{"r 1<0 1 @1", "s 2<1 1 @1 a=1"}));

	parser other = file.open(start, 2);
	other.parse();
	got.clear();
	drain(other, got);
	file.write(start + " b='2'>text<t/></s><u c='4'/></r>");
	EXPECT_EQ(other.parse(), parser::status_end_of_document);
	drain(other, got);
	EXPECT_EQ(got, (nodes{"r 1<0 1 @1", "s 2<1 1 @1 a=1", "t 3<2 0 @1", "s 2<0 0 @1", "u 4<1 0 @1 c=4", "r 1<0 3 @1"}));

	parser empty = file.open(start, 2);
	empty.parse();
	got.clear();
	drain(empty, got);
	file.write(start + " b='2'/></r>");
	EXPECT_EQ(empty.parse(), parser::status_end_of_document);
	drain(empty, got);
	EXPECT_EQ(got, (nodes{"r 1<0 1 @1", "s 2<1 1 @1 a=1", "r 1<0 3 @1"}));
}

TEST(xml_stream_parser, names_of_attributes_are_kept_whatever_the_caller_does_to_the_node) {
	stream_file const file;
	std::string const start = stream_header + "<r a='1' b='2'";
	parser from = file.open(start, 1);
	from.parse();
	from.node_queue_front().attribs().clear();
	file.write(start + " b='3'/>");
	EXPECT_EQ(from.parse(), parser::status_duplicate_attribute);
	// Many of them, and twice the first, one in the middle, the last.
	std::string many = stream_header + "<r";
	for (int i = 0; i != 40; ++i) {
		many += " a" + std::to_string(i) + "='1'";
	}
	for (char const *name : {"a0", "a14", "a15", "a16", "a17", "a39"}) {
		parser twice = file.open(many + " " + name + "='1'/>", 1);
		EXPECT_EQ(twice.parse(), parser::status_duplicate_attribute) << name;
		EXPECT_EQ(twice.node_queue_front().attribs().size(), 40U);
	}
	parser once = file.open(many + "/>", 1);
	EXPECT_EQ(once.parse(), parser::status_end_of_document);
	EXPECT_EQ(once.node_queue_front().attribs().size(), 40U);
}

TEST(xml_stream_parser, paths_come_in_three_widths) {
	stream_file const file;
	file.directory().write("caf\xC3\xA9.xml", stream_header + "<r/>");
	ustring8 const path = file.directory().path("caf\xC3\xA9.xml");
	parser narrow(path, 1);
	parser wide(quor::strings::utf8_to_utf16(path), 1);
	parser full(quor::strings::utf8_to_utf32(path), 1);
	for (parser *each : {&narrow, &wide, &full}) {
		EXPECT_EQ(each->parse(), parser::status_end_of_document);
		EXPECT_EQ(each->root(), "r");
	}
}

TEST(xml_stream_parser, the_status_is_one_object) {
	stream_file const file;
	parser from = file.open(stream_header + "<r>text</r>", 1);
	parser::error_type const &status = from.error();
	EXPECT_EQ(status, parser::status_ok);
	EXPECT_EQ(&from.parse(), &status);
	EXPECT_EQ(status, parser::status_syntax);
	EXPECT_EQ(&from.recover({"r"}), &status);
	EXPECT_EQ(status, parser::status_no_position);
}

// The routines that derived classes reach.
class derived : public parser {
public:
	using parser::parser;

	void run() {
		EXPECT_EQ(load(), stream_header.size() + 16);
		EXPECT_EQ(load(), 0U);
		EXPECT_TRUE(is_whitespace(' ') && is_whitespace('\t') && is_whitespace('\r') && is_whitespace('\n'));
		EXPECT_FALSE(is_whitespace('\v') || is_whitespace('x') || is_whitespace('\0'));
		EXPECT_TRUE(queue_size_less_than(1));
		EXPECT_FALSE(queue_size_less_than(0));
		skip_whitespace();
		EXPECT_EQ(parse_name(), "");
		EXPECT_THROW(parse_entity(), error_type);
		EXPECT_THROW(parse_attrib_value(), error_type);
		new_node("made", status_more_input, true);
		EXPECT_FALSE(queue_size_less_than(1));
		EXPECT_TRUE(queue_size_less_than(2));
		EXPECT_EQ(node_queue_front().status(), status_more_input);
		close_tag();
		EXPECT_EQ(node_queue_pop().status(), status_ok);
		EXPECT_THROW(close_tag(), error_type);
		new_node("other", status_more_input, false);
		end_of_open_node("other", status_end_of_document);
		EXPECT_TRUE(node_queue_empty());
		parse_next();
		EXPECT_EQ(error(), status_syntax) << "the header's \"?\"";
		EXPECT_FALSE(finish_comment());
		init(quor::strings::utf8_to_utf16("no such file"));
		EXPECT_EQ(error(), status_file);
		EXPECT_EQ(do_parse(), status_file);
	}
};

TEST(xml_stream_parser, routines_are_there_for_derived_classes) {
	stream_file const file;
	file.write(stream_header + "<r><s>txt</s>  x");
	derived from(file.path(), 1);
	from.run();
}

} // namespace
