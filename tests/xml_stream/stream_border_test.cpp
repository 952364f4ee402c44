// Tokens of every kind, cut by the buffer's end at every place, give the nodes that they
// give in a small file.

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include <quor/xml_stream/xml_stream_parser.hpp>

#include "support/joined.hpp"
#include "support/stream_file.hpp"

namespace {

namespace quor = QUOR_2_9;
using parser = quor::xml_stream::xml_stream_parser;
using quor_test::joined;
using quor_test::stream_file;
using quor_test::stream_header;
using quor_test::stream_nodes;
using quor_test::stream_pair;
using nodes = std::vector<std::string>;

constexpr std::size_t window = 65536;

TEST(stream_border, tokens_of_every_kind_are_the_same_across_it) {
	std::string const body = "<ss aa=\"1&amp;&#x41;\" bb= '' \n c='&quot;\n'>text &lt;&apos;&#65;&nbsp; end</ss>\n"
	                         "<!-- a - -- comment\n --->\n<t/><u x='1'/><include></include \n></r\n>";
	stream_file const file;
	for (unsigned int depth = 0; depth != 3; ++depth) {
		parser small = file.open(joined({stream_header, "<r>", body}), depth);
		nodes const expected = stream_nodes(small);
		ASSERT_EQ(small.error(), depth == 0 ? parser::status_ok : parser::status_end_of_document);
		ASSERT_GE(expected.size(), 5U);
		for (std::size_t at = 0; at <= body.size(); ++at) {
			std::string const blanks(window - stream_header.size() - 3 - at, ' ');
			std::string const content = joined({stream_header, "<r>", blanks, body});
			parser large = file.open(content, depth);
			EXPECT_EQ(stream_nodes(large), expected) << "cut before " << body.substr(at, 10);
			EXPECT_EQ(large.error(), small.error());
			EXPECT_EQ(large.line(), small.line());
			EXPECT_EQ(large.file_length() - large.parse_offset(), small.parse_offset() == 0 ? 0U
			                                                      : depth == 0              ? 0U
			                                                                                : 1U);
			stream_pair pair(file.directory(), content, depth);
			for (int i = 0; i != 5; ++i) {
				pair.parse();
				while (pair.pop()) {
				}
			}
			ASSERT_EQ(pair.difference(), "") << at;
		}
	}
}

TEST(stream_border, faults_are_the_same_across_it) {
	stream_file const file;
	for (std::string const fault : {"<s a='1' a='2'>", "<s a=1>", "<s a ='1'>", "<s>&bad; </s>", "<s></t>", "text<s>",
	                                "<s a='<'>", "<s / >", "<!x> <s>", "< s>", "<s>&#1x;   </s>"}) {
		parser small = file.open(joined({stream_header, "<r>", fault}), 1);
		nodes const expected = stream_nodes(small);
		ASSERT_GE(small.error(), parser::status_tag_mismatch) << fault;
		for (std::size_t at = 0; at <= fault.size(); ++at) {
			std::string const blanks(window - stream_header.size() - 3 - at, ' ');
			parser large = file.open(joined({stream_header, "<r>", blanks, fault}), 1);
			EXPECT_EQ(stream_nodes(large), expected) << fault << at;
			EXPECT_EQ(large.error(), small.error()) << fault << at;
			EXPECT_EQ(large.parse_offset(), small.parse_offset() + blanks.size()) << fault << at;
		}
	}
}

TEST(stream_border, batches_are_those_of_the_reference) {
	stream_file const file;
	std::string body = "<r>";
	for (int i = 0; i != 6000; ++i) {
		body += "<e n='" + std::to_string(i) + "'>" + (i % 7 == 0 ? "<f/>" : "text") + "</e>\n";
	}
	for (unsigned int depth = 0; depth != 3; ++depth) {
		for (std::size_t shift = 0; shift != 4; ++shift) {
			stream_pair pair(file.directory(), joined({stream_header, std::string(shift * 5, ' '), body, "</r>"}),
			                 depth);
			for (int calls = 0; calls != 1000 && pair.status() == 0; ++calls) {
				pair.parse();
				std::size_t keep = depth == 0 ? 0 : (shift * 7 + static_cast<std::size_t>(calls)) % 3;
				for (std::size_t size = 0; size != 150 - keep && pair.pop(); ++size) {
				}
				ASSERT_EQ(pair.difference(), "");
			}
			EXPECT_EQ(pair.status(), depth == 0 ? 0 : 3);
		}
	}
}

// A queue that is nearly full and records that are nearly as large as the buffer: what stops
// a call is now the queue, now the buffer's end.
TEST(stream_border, calls_stop_where_the_reference_stops) {
	stream_file const file;
	std::string body = "<r>";
	for (int i = 0; i != 105; ++i) {
		body += "<e/>";
	}
	for (int i = 0; i != 160; ++i) {
		body.append("<!--").append(static_cast<std::size_t>(i * 7919 % 40000), 'c');
		body.append("--><e n='").append(std::to_string(i)).append("'>text</e>");
	}
	for (unsigned int seed = 0; seed != 16; ++seed) {
		std::mt19937 random(seed);
		stream_pair pair(file.directory(), joined({stream_header, body, "</r>"}), 1);
		for (int calls = 0; calls != 400 && pair.status() == 0; ++calls) {
			pair.parse();
			for (std::size_t i = 1 + random() % 3; i != 0 && pair.pop(); --i) {
			}
			if (random() % 40 == 0) {
				// Begins where the last call stopped, if only in the midst of a tag.
				pair.recover({"e"});
			}
			ASSERT_EQ(pair.difference(), "") << seed;
		}
	}
}

struct size_row {
	char const *what;
	std::string before;
	char fill;
	std::string behind;
	std::size_t largest; // bytes of the fill that fit
};

TEST(stream_border, tokens_fit_up_to_the_size_of_the_buffer) {
	stream_file const file;
	for (auto const &[what, before, fill, behind, largest] : std::vector<size_row>{
	         {"text", "<r><s>", 't', "</s></r>", 65535},
	         {"value", "<r><s ", '1', "'/></r>", 65532},
	         {"name", "<r><", 'n', "/></r>", 65534},
	         {"attribute's name", "<r><s ", 'n', "=''/></r>", 65533},
	     }) {
		std::string const value_start = std::string(what) == "value" ? "b='" : "";
		for (std::size_t size = largest - 1; size <= largest + 2; ++size) {
			parser from = file.open(joined({stream_header, before, value_start, std::string(size, fill), behind}), 1);
			nodes const got = stream_nodes(from);
			bool const fits = size <= largest;
			EXPECT_EQ(from.error(), fits ? parser::status_end_of_document : parser::status_more_input) << what << size;
			unsigned int const offset = from.parse_offset();
			if (!fits) {
				for (int i = 0; i != 3; ++i) {
					EXPECT_EQ(from.parse(), parser::status_more_input) << what << size;
					EXPECT_EQ(from.parse_offset(), offset);
				}
			}
		}
	}
	// A closing name that needs the byte behind it.
	for (std::size_t size : {std::size_t(65533), std::size_t(65534)}) {
		std::string const name(size, 'n');
		parser from = file.open(joined({stream_header, "<", name, "></", name, ">"}), 1);
		stream_nodes(from);
		EXPECT_EQ(from.error(), size == 65533 ? parser::status_end_of_document : parser::status_more_input) << size;
	}
}

TEST(stream_border, recover_gets_over_what_doesnt_fit) {
	stream_file const file;
	for (std::string const &damage :
	     std::vector<std::string>{"<e>" + std::string(200000, 't') + "</e>",
	                              "<e b='" + std::string(200000, 't') + "'/>", "<e></>", "<e></ e>"}) {
		parser from = file.open(joined({stream_header, "<r>", damage, "<e n='2'/></r>"}), 1);
		stream_nodes(from);
		ASSERT_EQ(from.error(), parser::status_more_input);
		ASSERT_EQ(from.recover({"e"}), parser::status_ok);
		EXPECT_EQ(stream_nodes(from).size(), 2U);
		EXPECT_EQ(from.error(), parser::status_end_of_document);
	}
}

TEST(stream_border, comments_and_blanks_of_any_length_pass) {
	stream_file const file;
	for (std::size_t size : {std::size_t(65400), std::size_t(65530), std::size_t(65536), std::size_t(200000)}) {
		parser from = file.open(
		    stream_header + "<r><!--" + std::string(size, '\n') + "-->" + std::string(size, '\n') + "<s/></r>", 1);
		EXPECT_EQ(stream_nodes(from), (nodes{"r 1<0 1 @1", "s 2<1 0 @" + std::to_string(1 + 2 * size),
		                                     "r 1<0 3 @" + std::to_string(1 + 2 * size)}));
	}
	// A header must fit, and stays pending else.
	for (std::size_t size : {std::size_t(65536 - 7), std::size_t(65536 - 6)}) {
		parser from = file.open("<?xml" + std::string(size, ' ') + "?><r/>", 1);
		EXPECT_EQ(from.parse(), size == 65536 - 7 ? parser::status_end_of_document : parser::status_more_input);
	}
}

} // namespace
