#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include <quor/xml_stream/xml_stream_parser.hpp>

#include "support/stream_pair.hpp"
#include "support/temporary_directory.hpp"

namespace {

namespace quor = QUOR_2_9;
using parser = quor::xml_stream::xml_stream_parser;
using quor_test::plain_node;
using quor_test::spelled;
using quor_test::temporary_directory;

// 53 bytes, so that any file that begins with it is long enough.
std::string const header = "<?xml version=\"1.0\" encoding=\"utf-8\"                 ?>";

class xml_stream_parser_test : public testing::Test {
protected:
	// The nodes of all calls up to the first one that changes nothing.
	std::vector<std::string> nodes(parser &from) {
		std::vector<std::string> result;
		unsigned int before = 0;
		do {
			before = from.parse_offset();
			from.parse();
			while (!from.node_queue_empty()) {
				result.push_back(spelled(plain_node(from.node_queue_pop())));
			}
		} while (from.error() <= 1 && from.parse_offset() != before);
		return result;
	}

	parser open(std::string const &content, unsigned int open_depth = 1) {
		m_directory.write("file.xml", content);
		return {m_directory.path("file.xml"), open_depth};
	}

	temporary_directory m_directory;
};

TEST_F(xml_stream_parser_test, nodes_tell_the_elements_in_order) {
	struct row {
		std::string body;
		unsigned int open_depth;
		std::vector<std::string> nodes;
		int status;
	};
	std::vector<row> const rows = {
	    {"<r a=\"1\"><s>t</s></r>", 1, {"r 1<0 1 @1 a=1", "s 2<1 0 @1 't'", "r 1<0 3 @1"}, 3},
	    {"<r><s>t</s></r>", 2, {"r 1<0 1 @1", "s 2<1 1 @1 't'", "s 2<0 0 @1", "r 1<0 3 @1"}, 3},
	    {"<r><s>t</s></r>", 0, {"r 1<0 0 @1", "s 2<1 0 @1 't'"}, 0},
	};
	for (row const &each : rows) {
		parser from = open(header + each.body, each.open_depth);
		EXPECT_EQ(nodes(from), each.nodes) << each.body << ", depth " << each.open_depth;
		EXPECT_EQ(static_cast<int>(from.error()), each.status) << each.body << ", depth " << each.open_depth;
	}
}

} // namespace
