// Work and memory: what the open elements and the current tag take, and nothing of the file.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <quor/xml_stream/xml_stream_parser.hpp>

#include "support/allocation_counter.hpp"
#include "support/joined.hpp"
#include "support/stream_file.hpp"

namespace {

namespace quor = QUOR_2_9;
using parser = quor::xml_stream::xml_stream_parser;
using quor_test::allocation_counter;
using quor_test::joined;
using quor_test::stream_file;
using quor_test::stream_header;

std::string repeated(std::string const &piece, std::size_t count) {
	std::string text;
	for (std::size_t i = 0; i != count; ++i) {
		text += piece;
	}
	return text;
}

struct cost {
	std::size_t live; // blocks, at most, behind any call
	std::size_t calls;
	std::size_t nodes;
	int status;
};

cost cost_of(stream_file const &file, std::string const &body, unsigned int open_depth) {
	file.write(stream_header + body);
	allocation_counter const counter;
	parser from(file.path(), open_depth);
	cost result = {};
	unsigned int before = 0;
	do {
		before = from.parse_offset();
		from.parse();
		++result.calls;
		result.live = std::max(result.live, static_cast<std::size_t>(counter.live()));
		while (!from.node_queue_empty()) {
			from.node_queue_pop();
			++result.nodes;
		}
	} while (from.error() <= 1 && from.parse_offset() != before);
	result.status = from.error();
	return result;
}

TEST(stream_growth, memory_is_the_same_whatever_the_size) {
	struct shape {
		char const *name;
		std::string before, piece, behind;
		int status;
	};
	stream_file const file;
	for (auto const &[name, before, piece, behind, status] : std::vector<shape>{
	         {"records", "<r>",
	          "<e a='1' b='a value that is longer than a short string'>a text that is longer too</e>\n", "</r>", 3},
	         {"records with children", "<r>", "<e><f a='1'/><g>x</g></e>", "</r>", 3},
	         {"comments", "<r>", "<!-- comment -->", "</r>", 3},
	         {"one comment", "<r><!--", "0123456789\n", "--></r>", 3},
	         {"one comment without end", "<r><!--", "0123456789\n", "", 1},
	         {"blanks", "<r>", "        \n", "</r>", 3},
	         {"text of an element", "<r><s>", "text<!---->", "</s></r>", 3},
	         {"a text that doesn't fit", "<r><s>", "a long text", "</s></r>", 1},
	         {"a value that doesn't fit", "<r a='", "a long text", "'/>", 1},
	         {"a name that doesn't fit", "<", "name", "/>", 1},
	         {"a name that can't be", "<r><s>", "</>", "", 1},
	     }) {
		for (unsigned int depth = 1; depth != 4; ++depth) {
			cost const small = cost_of(file, joined({before, repeated(piece, 100000 / piece.size()), behind}), depth);
			cost const large = cost_of(file, joined({before, repeated(piece, 1600000 / piece.size()), behind}), depth);
			EXPECT_EQ(small.status, status) << name << depth;
			EXPECT_EQ(large.status, status) << name << depth;
			EXPECT_LE(large.live, small.live + 16) << name << depth;
			EXPECT_LE(large.calls, small.calls * 17 + 2) << name << depth;
			EXPECT_LT(large.live, 2500U) << name << depth;
		}
	}
}

TEST(stream_growth, open_elements_and_the_current_tag_take_what_they_are) {
	stream_file const file;
	constexpr std::size_t count = 100000;
	cost const open = cost_of(file, repeated("<a>", count), 0);
	EXPECT_EQ(open.status, parser::status_more_input);
	EXPECT_EQ(open.calls, 2U) << "one, and one that shows that there is no more";
	EXPECT_LE(open.live, count + 100) << "a node for each";
	cost const closed = cost_of(file, repeated("<a>", count) + repeated("</a>", count), 0);
	EXPECT_EQ(closed.status, parser::status_ok);
	EXPECT_EQ(closed.nodes, count);
	cost const shallow = cost_of(file, repeated("<a>", count) + repeated("</b>", count), 4000000000U);
	EXPECT_EQ(shallow.status, parser::status_tag_mismatch);
	std::string attributes = "<r";
	for (std::size_t i = 0; i != count; ++i) {
		attributes += " a" + std::to_string(i) + "='1'";
	}
	cost const tag = cost_of(file, attributes + "/>", 1);
	EXPECT_EQ(tag.status, parser::status_end_of_document);
	EXPECT_EQ(tag.nodes, 1U);
	EXPECT_LE(tag.live, 2 * count + 100) << "a place in the list and one among the names";
}

TEST(stream_growth, records_cost_the_caller_what_they_hold) {
	stream_file const file;
	std::string const record = "<e a='1' b='2'>short</e>";
	file.write(stream_header + "<r>" + repeated(record, 2000) + "</r>");
	parser from(file.path(), 1);
	from.parse();
	while (!from.node_queue_empty()) {
		from.node_queue_pop();
	}
	allocation_counter const counter;
	std::size_t seen = 0;
	while (from.parse() == parser::status_ok) {
		while (!from.node_queue_empty()) {
			seen += from.node_queue_pop().attribs().size();
		}
	}
	EXPECT_GT(seen, 3000U);
	EXPECT_LE(counter.count(), seen + seen / 10 + 200) << "one for each attribute";
}

TEST(stream_growth, want_of_memory_surfaces_and_leaks_nothing) {
	stream_file const file;
	std::string const name(40, 'n');
	std::string const text =
	    "<" + name + " a" + name + "='" + name + "&amp;'><s>" + name + "</s><s>&lt;" + name + "</s></" + name + ">";
	file.write(stream_header + text);
	for (unsigned int depth = 0; depth != 3; ++depth) {
		bool failed = true;
		for (std::size_t index = 0; failed; ++index) {
			quor::strings::ustring8 const path = file.path();
			allocation_counter const counter;
			try {
				quor_test::allocation_failure const failure(index);
				parser from(path, depth);
				from.parse();
				while (!from.node_queue_empty()) {
					from.node_queue_pop();
				}
				failed = failure.happened();
			} catch (std::bad_alloc const &) {
			}
			EXPECT_EQ(counter.live(), 0) << index;
			ASSERT_LT(index, 1000U);
		}
	}
}

} // namespace
