#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include <quor/quor.hpp>

#include "platform/scripted/scripted_platform.hpp"

namespace {

using quor::xml_stream::xml_stream_parser;
using quor_test::fresh_disk;
using quor_test::scripted_file;

std::string const content = "<?xml version=\"1.0\" encoding=\"utf-8\"                 ?><r><s>x</s></r>";

TEST(stream_faults, a_short_read_is_continued_by_the_next_call) {
	auto &disk = fresh_disk();
	for (std::size_t limit = 0; limit <= content.size(); ++limit) {
		disk.files[QUOR_W("f")] = scripted_file::with(content);
		disk.files[QUOR_W("f")].read_limit = limit;
		xml_stream_parser parser("f", 1);
		int const status = parser.parse();
		bool const behind_header = limit == content.find("<r>");
		EXPECT_EQ(status, behind_header ? 0 : limit + 1 < content.size() ? 1 : 3) << limit;
		disk.files[QUOR_W("f")].read_limit = scripted_file::all;
		EXPECT_EQ(parser.parse(), xml_stream_parser::status_end_of_document) << limit;
		EXPECT_EQ(parser.node_queue_size(), 3U) << limit;
		EXPECT_EQ(parser.parse_offset(), content.size() - 1) << limit;
	}
	EXPECT_EQ(disk.opened, disk.closed);
}

TEST(stream_faults, a_file_without_a_size_is_empty) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with(content);
	disk.files[QUOR_W("f")].size = -1;
	xml_stream_parser parser("f", 1);
	EXPECT_EQ(parser.error(), xml_stream_parser::status_ok);
	EXPECT_EQ(parser.parse(), xml_stream_parser::status_more_input);
	EXPECT_EQ(parser.file_length(), 0U);
}

TEST(stream_faults, lengths_are_cut_to_32_bits) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with(content);
	disk.files[QUOR_W("f")].size = (std::int64_t(7) << 32) + 5;
	xml_stream_parser parser("f", 1);
	EXPECT_EQ(parser.file_length(), 5U);
	EXPECT_EQ(parser.parse(), xml_stream_parser::status_end_of_document);
}

TEST(stream_faults, a_file_that_may_not_be_opened_has_status_11) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with(content);
	disk.files[QUOR_W("f")].opens = false;
	xml_stream_parser closed("f", 1);
	EXPECT_EQ(closed.parse(), xml_stream_parser::status_file);
	disk.files[QUOR_W("f")].opens = true;
	xml_stream_parser parser("f", 1);
	disk.files[QUOR_W("f")].opens = false;
	EXPECT_EQ(parser.parse(), xml_stream_parser::status_file);
	disk.files[QUOR_W("f")].kind = scripted_file::device;
	EXPECT_EQ(xml_stream_parser("f", 1).error(), xml_stream_parser::status_file);
}

TEST(stream_faults, a_file_is_opened_once_for_each_piece) {
	auto &disk = fresh_disk();
	std::string large = content.substr(0, content.size() - 4);
	while (large.size() < 655360) {
		large += "<s a='1'>text</s>\n";
	}
	disk.files[QUOR_W("f")] = scripted_file::with(large + "</r>");
	xml_stream_parser parser("f", 1);
	do {
		parser.parse();
		while (!parser.node_queue_empty()) {
			parser.node_queue_pop();
		}
	} while (parser.error() == xml_stream_parser::status_ok);
	EXPECT_EQ(parser.error(), xml_stream_parser::status_end_of_document);
	EXPECT_LE(disk.opened, 13U);
	EXPECT_EQ(disk.opened, disk.closed);
}

} // namespace
