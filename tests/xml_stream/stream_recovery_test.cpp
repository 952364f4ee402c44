#include <gtest/gtest.h>

#include <list>
#include <string>
#include <vector>

#include <quor/xml_stream/xml_stream_parser.hpp>

#include "support/stream_file.hpp"

namespace {

namespace quor = QUOR_2_9;
using parser = quor::xml_stream::xml_stream_parser;
using quor::strings::ustring8;
using quor_test::stream_file;
using quor_test::stream_header;
using quor_test::stream_nodes;
using nodes = std::vector<std::string>;

TEST(stream_recovery, recover_goes_on_at_the_next_tag_behind_every_fault) {
	struct row {
		char const *damage;
		int status;
	};
	stream_file const file;
	for (auto const &[damage, status] : std::vector<row>{
	         {"<e><t></u></e>", 4},
	         {"<e a='1' a='2'>x</e>", 5},
	         {"<e>&bad;</e>", 6},
	         {"<e <!-- -->", 6},
	         {"</e", 4},
	         {"text", 6},
	         {"<e a=1>x</e>", 7},
	         {"<e a>x</e>", 9},
	         {"<e a='", 6}, // up to the "<" of the next record
	     }) {
		parser from = file.open(stream_header + "<r><e>1</e>" + damage + "<e n='2'>2</e>\n<e>3</e></r>", 1);
		nodes before = stream_nodes(from);
		ASSERT_EQ(static_cast<int>(from.error()), status) << damage;
		EXPECT_EQ(before, (nodes{"r 1<0 1 @1", "e 2<1 0 @1 '1'"})) << damage;
		EXPECT_EQ(from.recover({"x", "e"}), parser::status_ok) << damage;
		EXPECT_TRUE(from.node_queue_empty());
		nodes const after = stream_nodes(from);
		EXPECT_EQ(from.error(), parser::status_end_of_document) << damage;
		ASSERT_EQ(after.size(), 3U) << damage;
		EXPECT_NE(after[0].find("@1 n=2 '2'"), std::string::npos) << after[0];
		EXPECT_NE(after[1].find("@2 '3'"), std::string::npos) << after[1];
		EXPECT_EQ(after[2], "r 1<0 3 @2") << damage;
	}
}

TEST(stream_recovery, recover_drops_the_queue_and_the_deep_elements) {
	stream_file const file;
	parser from = file.open(stream_header + "<r><s><t>1</t><t><u>></u></t><t>2</t></s></r>", 2);
	EXPECT_EQ(from.parse(), parser::status_syntax);
	EXPECT_EQ(from.node_queue_size(), 3U);
	EXPECT_EQ(from.recover({"t"}), parser::status_ok);
	EXPECT_EQ(from.node_queue_size(), 0U);
	// The ids of the elements that were given up stay where parents are looked up.
	EXPECT_EQ(stream_nodes(from), (nodes{"t 6<5 0 @1 '2'", "s 2<0 0 @1", "r 1<0 3 @1"}));
}

TEST(stream_recovery, recover_forgets_what_is_half_read) {
	stream_file const file;
	struct row {
		char const *damage;
		nodes after;
	};
	for (auto const &[damage, after] : std::vector<row>{
	         {"<e a='1' b", {"e 3<2 0 @1 a=2", "r 1<0 3 @1"}}, // in a tag, with an attribute's name
	         {"<!-- <f/> ", {"e 2<1 0 @1 a=2", "r 1<0 3 @1"}}, // in a comment
	         {"<e/></", {"e 3<1 0 @1 a=2", "r 1<0 3 @1"}},     // in a closing tag
	     }) {
		parser from = file.open(stream_header + "<r>" + damage, 1);
		from.parse();
		EXPECT_EQ(from.error(), parser::status_more_input) << damage;
		EXPECT_EQ(from.recover({"e"}), parser::status_no_position) << damage;
		file.write(stream_header + "<r>" + damage + "<e a='2'/></r>");
		EXPECT_EQ(from.recover({"e"}), parser::status_ok) << damage;
		EXPECT_EQ(stream_nodes(from), after) << damage;
		EXPECT_EQ(from.error(), parser::status_end_of_document) << damage;
	}
}

TEST(stream_recovery, recover_forgets_a_closing_tag_that_isnt_finished) {
	stream_file const file;
	parser from = file.open(stream_header + "<r><a></a </b><e/>></r>", 1);
	EXPECT_EQ(from.parse(), parser::status_tag_mismatch);
	EXPECT_EQ(from.recover({"e"}), parser::status_ok);
	EXPECT_EQ(from.parse(), parser::status_syntax) << "the second \">\" belongs to nothing";
}

TEST(stream_recovery, recover_compares_whole_names_of_opening_tags) {
	stream_file const file;
	std::string const tail = "<ee/></e><!e><e1/><?e?>< e/><!--<e x='in a comment'/></r>";
	parser from = file.open(stream_header + "<r>text" + tail, 1);
	EXPECT_EQ(from.parse(), parser::status_syntax);
	EXPECT_EQ(from.recover({"e"}), parser::status_ok);
	EXPECT_EQ(from.parse_offset(), stream_header.size() + 7 + tail.find("<e x"));
	EXPECT_EQ(stream_nodes(from), (nodes{"e 2<1 0 @1 x=in a comment", "r 1<0 3 @1"}));
	// An empty name is that of "<" with something else behind it.
	parser other = file.open(stream_header + "<r>text<e/>< e/>", 1);
	other.parse();
	EXPECT_EQ(other.recover({""}), parser::status_ok);
	EXPECT_EQ(other.parse(), parser::status_syntax);
	EXPECT_EQ(other.parse_offset(), stream_header.size() + 7 + 4);
}

TEST(stream_recovery, recover_without_tags_doesnt_stop_parse_and_one_that_finds_nothing_does) {
	stream_file const file;
	parser from = file.open(stream_header + "<r><e/><f b/></r>", 1);
	EXPECT_EQ(from.parse(), parser::status_expected_equals);
	EXPECT_EQ(from.recover({}), parser::status_no_position);
	EXPECT_EQ(from.node_queue_size(), 2U) << "nothing else happens";
	EXPECT_EQ(from.recover(std::list<ustring8>()), parser::status_no_position);
	EXPECT_EQ(from.recover(std::list<std::string>()), parser::status_no_position);
	EXPECT_EQ(from.parse(), parser::status_expected_equals);
	EXPECT_EQ(from.recover({"g"}), parser::status_no_position);
	for (int i = 0; i != 3; ++i) {
		EXPECT_EQ(from.parse(), parser::status_no_position);
	}
	EXPECT_EQ(from.parse_offset(), from.file_length());
	file.write(stream_header + "<r><e/><f b/></r><g/></r>");
	EXPECT_EQ(from.recover({"g"}), parser::status_ok);
	EXPECT_EQ(stream_nodes(from).size(), 2U);
	EXPECT_EQ(from.error(), parser::status_end_of_document);
}

TEST(stream_recovery, recover_before_a_root_is_final) {
	stream_file const file;
	for (std::string const &content :
	     {stream_header, stream_header + "<r b/>", std::string("<r/>") + std::string(60, ' '), std::string()}) {
		parser from = file.open(content, 0);
		from.parse();
		for (int i = 0; i != 2; ++i) {
			EXPECT_EQ(from.recover({"r"}), parser::status_no_root) << content;
			EXPECT_EQ(from.recover({}), parser::status_no_root) << content;
			EXPECT_EQ(from.parse(), parser::status_no_root) << content;
		}
	}
	parser missing(file.directory().path("missing"), 1);
	EXPECT_EQ(missing.recover({"r"}), parser::status_no_root);
}

TEST(stream_recovery, recover_without_a_fault_moves_on_from_where_it_is) {
	stream_file const file;
	std::string body = "<r>";
	for (int i = 0; i != 150; ++i) {
		body += "<e/>";
	}
	parser from = file.open(stream_header + body + "<f/></r>", 1);
	EXPECT_EQ(from.parse(), parser::status_ok);
	EXPECT_EQ(from.recover({"f"}), parser::status_ok);
	EXPECT_EQ(stream_nodes(from), (nodes{"f 102<1 0 @1", "r 1<0 3 @1"}));
}

TEST(stream_recovery, recover_counts_no_lines) {
	stream_file const file;
	parser from = file.open(stream_header + "<r>\n<e b/>\n\n<e>\n</e></r>", 1);
	EXPECT_EQ(from.parse(), parser::status_expected_equals);
	EXPECT_EQ(from.recover({"e"}), parser::status_ok);
	EXPECT_EQ(from.line(), 2U);
	EXPECT_EQ(stream_nodes(from).back(), "r 1<0 3 @3");
}

TEST(stream_recovery, recover_takes_both_kinds_of_lists) {
	stream_file const file;
	for (int kind = 0; kind != 3; ++kind) {
		parser from = file.open(stream_header + "<r><e b/><f/></r>", 1);
		from.parse();
		parser::error_type const status = kind == 0   ? from.recover(std::list<ustring8>{"g", "f"})
		                                  : kind == 1 ? from.recover(std::list<std::string>{"g", "f"})
		                                              : from.recover({"g", "f"});
		EXPECT_EQ(status, parser::status_ok) << kind;
		EXPECT_EQ(stream_nodes(from).size(), 2U) << kind;
	}
}

TEST(stream_recovery, recover_gives_up_shallow_elements_inside_an_include_too) {
	stream_file const file;
	parser from = file.open(stream_header + "<r><include><s><t b/></s></include><u/></r>", 3);
	EXPECT_EQ(from.parse(), parser::status_expected_equals);
	EXPECT_EQ(from.recover({"u"}), parser::status_ok);
	nodes const got = stream_nodes(from);
	EXPECT_EQ(from.error(), parser::status_end_of_document);
	ASSERT_EQ(got.size(), 2U);
	EXPECT_EQ(got.back(), "r 1<0 3 @1");
}

TEST(stream_recovery, recover_finds_a_tag_wherever_the_buffer_ends) {
	stream_file const file;
	for (std::size_t shift = 0; shift != 14; ++shift) {
		// The first fault comes before the second buffer: the buffer's end is
		// that of the file's first 65536 bytes.
		std::string const start = stream_header + "<r>text<x/>";
		std::string const filler(65536 - start.size() - shift, '.');
		parser from = file.open(start + filler + "<event/><even/><event/></r>", 1);
		EXPECT_EQ(from.parse(), parser::status_syntax);
		EXPECT_EQ(from.recover({"even"}), parser::status_ok) << shift;
		EXPECT_EQ(from.parse_offset(), start.size() + filler.size() + 8) << shift;
		EXPECT_EQ(stream_nodes(from).size(), 3U) << shift;
	}
}

} // namespace
