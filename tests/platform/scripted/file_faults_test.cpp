#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <stdexcept>
#include <string>

#include <quor/quor.hpp>

#include "platform/scripted/scripted_platform.hpp"
#include "support/allocation_counter.hpp"

namespace {

using quor::strings::ustring8;
using quor::system::load_file;
using quor::system::store_file;
using quor_test::fresh_disk;
using quor_test::scripted_file;

TEST(file_faults, load_file_that_may_not_be_opened_gives_1) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with("content");
	disk.files[QUOR_W("f")].opens = false;
	std::string content = "old";
	EXPECT_EQ(load_file("f", content), 1);
	EXPECT_EQ(content, "old");
}

TEST(file_faults, load_file_of_a_device_gives_1) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")].kind = scripted_file::device;
	std::string content = "old";
	EXPECT_EQ(load_file("f", content), 1);
	EXPECT_EQ(content, "old");
}

TEST(file_faults, load_file_with_a_short_read_gives_0_and_zeros) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with("content");
	for (std::size_t limit = 0; limit <= 8; ++limit) {
		SCOPED_TRACE(limit);
		disk.files[QUOR_W("f")].read_limit = limit;
		std::string content;
		EXPECT_EQ(load_file("f", content), 0);
		std::string expected = std::string("content").substr(0, limit);
		expected.resize(7);
		EXPECT_EQ(content, expected);
	}
	EXPECT_EQ(disk.opened, 9U);
	EXPECT_EQ(disk.closed, 9U);
}

TEST(file_faults, load_file_of_a_file_that_shrank_or_grew_keeps_the_first_size) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with("content");
	for (std::int64_t size : {0, 3, 7, 10}) {
		SCOPED_TRACE(size);
		disk.files[QUOR_W("f")].size = size;
		ustring8 content;
		EXPECT_EQ(load_file("f", content), 0);
		std::string expected = "content";
		expected.resize(static_cast<std::size_t>(size));
		EXPECT_EQ(content, expected);
	}
}

TEST(file_faults, load_file_that_reads_less_leaves_what_the_resizing_left) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with("content");
	disk.files[QUOR_W("f")].read_limit = 2;
	std::string content = "OLD T";
	EXPECT_EQ(load_file("f", content), 0);
	EXPECT_EQ(content, std::string("coD T\0\0", 7));
}

TEST(file_faults, load_file_of_impossible_size_throws_and_leaves_the_content) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with("content");
	std::size_t tries = 0;
	for (std::int64_t size : {std::int64_t(-1), std::numeric_limits<std::int64_t>::min()}) {
		SCOPED_TRACE(size);
		disk.files[QUOR_W("f")].size = size;
		std::string content = "old";
		EXPECT_THROW(load_file("f", content), std::length_error);
		EXPECT_EQ(content, "old");
		++tries;
	}
	disk.files[QUOR_W("f")].size = std::numeric_limits<std::int64_t>::max();
	std::string content = "old";
	try {
		load_file("f", content);
		ADD_FAILURE() << "nothing was thrown";
	} catch (std::length_error const &) {
		++tries;
	} catch (std::bad_alloc const &) {
		++tries;
	}
	EXPECT_EQ(content, "old");
	EXPECT_EQ(disk.closed, tries);
}

TEST(file_faults, load_file_without_memory_throws_and_leaves_the_content) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with(std::string(5000, 'x'));
	quor::strings::ustring16 const path(QUOR_W("f"));
	std::string content = "old";
	bool thrown = false;
	{
		quor_test::allocation_failure const failure(0, true);
		try {
			load_file(path, content);
		} catch (std::bad_alloc const &) {
			thrown = true;
		}
	}
	EXPECT_TRUE(thrown);
	EXPECT_EQ(content, "old");
	EXPECT_EQ(disk.closed, disk.opened);
}

TEST(file_faults, store_file_on_a_disk_that_fills_up_gives_0_all_the_same) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")].write_limit = 3;
	EXPECT_EQ(store_file("f", "content"), 0);
	EXPECT_EQ(disk.files[QUOR_W("f")].content, "con");
	EXPECT_EQ(disk.closed, 1U);
}

TEST(file_faults, store_file_that_can_create_nothing_gives_1) {
	auto &disk = fresh_disk();
	disk.full = true;
	EXPECT_EQ(store_file("f", "content"), 1);
	EXPECT_TRUE(disk.files.empty());
}

TEST(file_faults, store_file_that_may_not_be_opened_gives_1) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")] = scripted_file::with("old");
	disk.files[QUOR_W("f")].opens = false;
	EXPECT_EQ(store_file("f", "content"), 1);
	EXPECT_EQ(disk.files[QUOR_W("f")].content, "old");
}

TEST(file_faults, have_read_access_is_the_bit_and_no_attempt) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")].readable = false;
	EXPECT_FALSE(quor::system::have_read_access("f"));
	disk.files[QUOR_W("f")].readable = true;
	disk.files[QUOR_W("f")].opens = false;
	EXPECT_TRUE(quor::system::have_read_access("f"));
	EXPECT_EQ(disk.opened, 0U);
}

TEST(file_faults, a_device_exists_and_is_neither_file_nor_directory) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("f")].kind = scripted_file::device;
	EXPECT_TRUE(quor::system::io::exists("f"));
	EXPECT_FALSE(quor::system::io::is_file("f"));
	EXPECT_FALSE(quor::system::io::is_directory("f"));
}

TEST(file_faults, move_passes_old_and_new_path_in_the_systems_order) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("old")] = scripted_file::with("content");
	quor::system::io::move("new", "old");
	EXPECT_EQ(disk.moved, (std::vector<quor_test::wide_string>{QUOR_W("old"), QUOR_W("new")}));
	EXPECT_EQ(disk.files.count(QUOR_W("new")), 1U);
}

TEST(file_faults, paths_reach_the_system_as_utf_16) {
	auto &disk = fresh_disk();
	quor::types::wide_char const moved[] = {0xD840, 0xDC00, 0};
	disk.files[moved] = scripted_file::with("x");
	disk.files[QUOR_W("-1")] = scripted_file::with("x");
	EXPECT_TRUE(quor::system::io::exists(ustring8("\xF0\x90\x80\x80")));
	EXPECT_TRUE(quor::system::io::exists(ustring8("a\xE2")));
}

} // namespace
