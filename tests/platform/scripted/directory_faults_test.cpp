#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "platform/scripted/scripted_platform.hpp"
#include "support/allocation_counter.hpp"

namespace {

using quor::strings::ustring16;
using quor::strings::ustring8;
using quor::system::create_directory;
using quor::system::get_directory_files;
using quor::system::list_directory;
using quor_test::fresh_disk;
using quor_test::scripted_file;
using quor_test::wide_string;

using wide_paths = std::vector<wide_string>;
using paths = std::vector<ustring8>;

paths files_below(ustring8 const &path) {
	paths result;
	get_directory_files(path, result);
	return result;
}

TEST(directory_faults, create_directory_tries_each_prefix_in_turn) {
	struct row {
		char const *path;
		wide_paths asked;
		bool result;
	};
	for (auto const &[path, asked, result] : {
	         row{"x", {QUOR_W("x")}, true},
	         row{"x\\y\\z", {QUOR_W("x"), QUOR_W("x\\y"), QUOR_W("x\\y\\z")}, true},
	         row{"\\x\\y", {QUOR_W("\\x"), QUOR_W("\\x\\y")}, true},
	         row{"C:\\x", {QUOR_W("C:"), QUOR_W("C:\\x")}, true},
	         row{"x\\\\y", {QUOR_W("x"), QUOR_W("x\\"), QUOR_W("x\\\\y")}, true},
	         row{"x/y\\z", {QUOR_W("x/y"), QUOR_W("x/y\\z")}, true},
	         row{"\\\\x", {QUOR_W("\\"), QUOR_W("\\\\x")}, true},
	     }) {
		SCOPED_TRACE(path);
		auto &disk = fresh_disk();
		EXPECT_EQ(create_directory(path), result);
		EXPECT_EQ(disk.created, asked);
	}
}

TEST(directory_faults, create_directory_is_what_its_last_step_is) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("x")] = scripted_file::with("a file");
	disk.files[QUOR_W("x\\y")] = scripted_file::with("another");
	EXPECT_TRUE(create_directory("x\\y\\z"));
	EXPECT_EQ(disk.created.size(), 3U);
	disk.full = true;
	EXPECT_FALSE(create_directory("x\\y\\w"));
}

TEST(directory_faults, create_directory_of_an_existing_one_asks_for_nothing) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("x\\y")] = scripted_file::listing({}, 1);
	EXPECT_TRUE(create_directory("x\\y"));
	EXPECT_TRUE(disk.created.empty());
}

TEST(directory_faults, create_directory_of_the_empty_path_asks_for_the_empty_path) {
	auto &disk = fresh_disk();
	disk.full = true;
	auto const previous = quor::debug::set_invalid_parameter_handler(&quor::debug::ignore_invalid_parameter);
	EXPECT_FALSE(create_directory(""));
	quor::debug::set_invalid_parameter_handler(previous);
	EXPECT_EQ(disk.created, wide_paths{wide_string()});
}

TEST(directory_faults, list_directory_drops_the_first_entry_unseen) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] =
	    scripted_file::listing({QUOR_W("a"), QUOR_W("."), QUOR_W("b"), QUOR_W(".."), QUOR_W("...")}, 1);
	EXPECT_EQ(list_directory("d"), (paths{"d\\b", "d\\..."}));
	disk.files[QUOR_W("d")].names = {QUOR_W("."), QUOR_W(".."), QUOR_W("b"), QUOR_W("a")};
	EXPECT_EQ(list_directory("d"), (paths{"d\\b", "d\\a"}));
	disk.files[QUOR_W("d")].names = {QUOR_W("only")};
	EXPECT_EQ(list_directory("d"), paths());
	disk.files[QUOR_W("d")].names = {};
	EXPECT_EQ(list_directory("d"), paths());
}

TEST(directory_faults, list_directory_looks_at_no_entry) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("."), QUOR_W("nothing there")}, 1);
	EXPECT_EQ(list_directory("d"), paths{"d\\nothing there"});
	disk.files[QUOR_W("d")].opens = false;
	EXPECT_EQ(list_directory("d"), paths());
}

TEST(directory_faults, a_name_that_is_no_text_gives_minus_one_for_the_whole_path) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("."), wide_string(1, 0xD800)}, 1);
	EXPECT_EQ(list_directory("d"), paths{"-1"});
	EXPECT_EQ(list_directory(QUOR_U32("d")), std::vector<quor::strings::ustring32>{QUOR_U32("-1")});
	EXPECT_EQ(list_directory(QUOR_W("d")), std::vector<ustring16>{ustring16(QUOR_W("d\\")) + ustring16(1, 0xD800)});
}

TEST(directory_faults, get_directory_files_keeps_the_systems_order) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] =
	    scripted_file::listing({QUOR_W("z"), QUOR_W("."), QUOR_W("sub"), QUOR_W(".."), QUOR_W("a")}, 1);
	disk.files[QUOR_W("d\\sub")] = scripted_file::listing({QUOR_W("."), QUOR_W(".."), QUOR_W("y"), QUOR_W("b")}, 2);
	for (auto const *name : {QUOR_W("d\\z"), QUOR_W("d\\a"), QUOR_W("d\\sub\\y"), QUOR_W("d\\sub\\b")}) {
		disk.files[name] = scripted_file::with("");
	}
	EXPECT_EQ(files_below("d"), (paths{"d\\z", "d\\sub\\y", "d\\sub\\b", "d\\a"}));
}

TEST(directory_faults, get_directory_files_leaves_out_what_the_owner_may_not_read) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("f"), QUOR_W("sub"), QUOR_W("device"), QUOR_W("gone")}, 1);
	disk.files[QUOR_W("d\\f")].readable = false;
	disk.files[QUOR_W("d\\sub")] = scripted_file::listing({QUOR_W("g")}, 2);
	disk.files[QUOR_W("d\\sub")].readable = false;
	disk.files[QUOR_W("d\\sub\\g")] = scripted_file::with("");
	disk.files[QUOR_W("d\\device")].kind = scripted_file::device;
	EXPECT_EQ(files_below("d"), paths());
	disk.files[QUOR_W("d\\f")].readable = true;
	disk.files[QUOR_W("d\\sub")].readable = true;
	EXPECT_EQ(files_below("d"), (paths{"d\\f", "d\\sub\\g"}));
	// The start itself isn't asked.
	disk.files[QUOR_W("d")].readable = false;
	EXPECT_EQ(files_below("d").size(), 2U);
}

TEST(directory_faults, get_directory_files_passes_over_what_vanishes_meanwhile) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("a"), QUOR_W("sub"), QUOR_W("b")}, 1);
	disk.files[QUOR_W("d\\a")].looks = 0;
	disk.files[QUOR_W("d\\sub")] = scripted_file::listing({QUOR_W("c")}, 2);
	disk.files[QUOR_W("d\\sub")].looks = 1;
	disk.files[QUOR_W("d\\sub\\c")] = scripted_file::with("");
	disk.files[QUOR_W("d\\b")] = scripted_file::with("");
	EXPECT_EQ(files_below("d"), paths{"d\\b"});
}

TEST(directory_faults, get_directory_files_does_not_enter_a_directory_that_it_is_inside_of) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("sub"), QUOR_W("self"), QUOR_W("f")}, 1);
	disk.files[QUOR_W("d\\self")] = scripted_file::listing({QUOR_W("f")}, 1);
	disk.files[QUOR_W("d\\self\\f")] = scripted_file::with("");
	disk.files[QUOR_W("d\\f")] = scripted_file::with("");
	disk.files[QUOR_W("d\\sub")] = scripted_file::listing({QUOR_W("up"), QUOR_W("g")}, 2);
	disk.files[QUOR_W("d\\sub\\up")] = scripted_file::listing({QUOR_W("f")}, 1);
	disk.files[QUOR_W("d\\sub\\up\\f")] = scripted_file::with("");
	disk.files[QUOR_W("d\\sub\\g")] = scripted_file::with("");
	EXPECT_EQ(files_below("d"), (paths{"d\\sub\\g", "d\\f"}));
}

TEST(directory_faults, directories_without_identity_are_all_entered) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("a")}, 0);
	disk.files[QUOR_W("d\\a")] = scripted_file::listing({QUOR_W("b")}, 0);
	disk.files[QUOR_W("d\\a\\b")] = scripted_file::with("");
	EXPECT_EQ(files_below("d"), paths{"d\\a\\b"});
}

TEST(directory_faults, get_directory_files_enters_one_directory_twice_from_beside_it) {
	auto &disk = fresh_disk();
	disk.files[QUOR_W("d")] = scripted_file::listing({QUOR_W("a"), QUOR_W("link")}, 1);
	for (auto const *name : {QUOR_W("d\\a"), QUOR_W("d\\link")}) {
		disk.files[name] = scripted_file::listing({QUOR_W("f")}, 2);
		disk.files[wide_string(name) + QUOR_W("\\f")] = scripted_file::with("");
	}
	EXPECT_EQ(files_below("d"), (paths{"d\\a\\f", "d\\link\\f"}));
}

TEST(directory_faults, get_directory_files_of_a_deep_tree_is_not_deep_on_the_call_stack) {
	auto &disk = fresh_disk();
	wide_string path = QUOR_W("d");
	std::uint64_t const depth = 2000;
	for (std::uint64_t level = 0; level != depth; ++level) {
		disk.files[path] = scripted_file::listing({QUOR_W("."), QUOR_W(".."), QUOR_W("s")}, level + 1);
		path += QUOR_W("\\s");
	}
	disk.files[path] = scripted_file::with("");
	auto const found = files_below("d");
	ASSERT_EQ(found.size(), 1U);
	EXPECT_EQ(found[0].size(), 1 + 2 * depth);
}

std::size_t allocations_for_entries(std::size_t count) {
	auto &disk = fresh_disk();
	std::vector<wide_string> names;
	for (std::size_t i = 0; i != count; ++i) {
		names.push_back(QUOR_W("a name that is not short ") +
		                wide_string(1, static_cast<quor::types::wide_char>('0' + i)));
	}
	disk.files[QUOR_W("d")] = scripted_file::listing(names, 1);
	for (auto const &name : names) {
		disk.files[QUOR_W("d\\") + name] = scripted_file::with("");
	}
	quor_test::allocation_counter const counter;
	auto const listed = list_directory("d").size();
	auto const found = files_below("d").size();
	return listed + 1 == count && found == count ? counter.count() : 0;
}

TEST(directory_faults, listing_twice_the_entries_takes_at_most_twice_the_memory) {
	auto const once = allocations_for_entries(500);
	auto const twice = allocations_for_entries(1000);
	EXPECT_GT(once, 0U);
	EXPECT_GT(twice, 0U);
	EXPECT_LE(twice * 10, once * 22);
}

} // namespace
