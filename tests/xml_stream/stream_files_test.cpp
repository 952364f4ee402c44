#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <quor/xml_stream/xml_stream_parser.hpp>

#include "support/stream_file.hpp"

namespace {

namespace quor = QUOR_2_9;
using parser = quor::xml_stream::xml_stream_parser;
using quor_test::drain;
using quor_test::stream_file;
using quor_test::stream_header;
using quor_test::stream_nodes;
using nodes = std::vector<std::string>;

TEST(stream_files, what_is_no_file_has_status_11) {
	stream_file const file;
	file.directory().make_directory("directory");
	for (auto const &path : {file.directory().path("missing"), file.directory().path("directory"),
	                         file.directory().path("missing\\file"), quor::strings::ustring8()}) {
		parser from(path, 1);
		EXPECT_EQ(from.error(), parser::status_file) << path;
		EXPECT_EQ(from.parse(), parser::status_file) << path;
		EXPECT_EQ(from.file_length(), 0U) << path;
		EXPECT_EQ(from.parse_offset(), 0U) << path;
		EXPECT_EQ(from.line(), 1U) << path;
	}
	// A file that comes later doesn't help.
	parser from(file.directory().path("later"), 1);
	file.directory().write("later", stream_header + "<r/>");
	EXPECT_EQ(from.parse(), parser::status_file);
	EXPECT_EQ(from.file_length(), stream_header.size() + 4);
}

TEST(stream_files, a_file_that_grows_byte_by_byte_gives_the_same_nodes) {
	stream_file const file;
	std::string const body = "\n<r a='1'>\n<s b='&amp;' c= ''>te&lt;xt</s><!-- c\n --><t/><u>x</u></r >";
	for (unsigned int depth = 0; depth != 3; ++depth) {
		parser at_once = file.open(stream_header + body, depth);
		nodes const expected = stream_nodes(at_once);
		parser from = file.open("", depth);
		nodes got;
		for (std::size_t size = 0; size <= stream_header.size() + body.size(); ++size) {
			file.write((stream_header + body).substr(0, size));
			from.parse();
			// A node that is open waits, as it may get more.
			while (!from.node_queue_empty() && (from.node_queue_front().status() != parser::status_more_input ||
			                                    size == stream_header.size() + body.size())) {
				got.push_back(quor_test::spelled(quor_test::plain_node(from.node_queue_pop())));
			}
		}
		drain(from, got);
		EXPECT_EQ(got, expected) << depth;
		EXPECT_EQ(from.error(), at_once.error()) << depth;
		EXPECT_EQ(from.line(), at_once.line()) << depth;
	}
}

TEST(stream_files, a_file_that_vanishes_is_missed_when_the_buffer_is_used_up) {
	stream_file const file;
	std::string body = "<r>";
	for (int i = 0; i != 400; ++i) {
		body += "<e/>";
	}
	parser from = file.open(stream_header + body, 1);
	EXPECT_EQ(from.parse(), parser::status_ok);
	file.remove();
	nodes got;
	for (int i = 0; i != 3; ++i) {
		drain(from, got);
		EXPECT_EQ(from.parse(), i < 2 ? parser::status_ok : parser::status_file) << i;
	}
	drain(from, got);
	EXPECT_EQ(got.size(), 401U);
	EXPECT_EQ(from.file_length(), 0U);
	EXPECT_EQ(from.parse(), parser::status_file);
	// There was a root, so a recovery is tried.
	EXPECT_EQ(from.recover({"e"}), parser::status_no_position);
	file.write(stream_header + body + "<e n='1'/></r>");
	EXPECT_EQ(from.recover({"e"}), parser::status_ok);
	EXPECT_EQ(stream_nodes(from), (nodes{"e 402<1 0 @1 n=1", "r 1<0 3 @1"}));
}

TEST(stream_files, a_file_that_shrinks_has_ended) {
	stream_file const file;
	parser from = file.open(stream_header + "<r><s>x</s>", 1);
	EXPECT_EQ(stream_nodes(from).size(), 2U);
	unsigned int const offset = from.parse_offset();
	for (std::string const &content : {stream_header, std::string(), stream_header + "<r><s>x</s>"}) {
		file.write(content);
		EXPECT_EQ(from.parse(), parser::status_more_input);
		EXPECT_EQ(from.parse_offset(), offset);
		EXPECT_EQ(from.file_length(), content.size());
	}
	file.write(stream_header + "<R><S>y</S></r>");
	EXPECT_EQ(stream_nodes(from), (nodes{"r 1<0 3 @1"})) << "what was read isn't read again";
}

TEST(stream_files, a_file_is_not_kept_open) {
	stream_file const file;
	parser from = file.open(stream_header + "<r><s>x</s>", 1);
	from.parse();
	file.write(stream_header + "<r><s>x</s></r>");
	EXPECT_EQ(from.parse(), parser::status_end_of_document);
	file.remove();
	EXPECT_FALSE(file.directory().has("file.xml"));
}

} // namespace
