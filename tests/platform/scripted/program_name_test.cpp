#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "platform/scripted/scripted_platform.hpp"
#include "reference/config_sources.hpp"
#include "support/config_sources.hpp"

namespace {

using quor_test::string_block;

std::vector<quor_test::config_entry> names_of(std::string const &program) {
	string_block block({program});
	quor::config::commandline_item item(block.count(), block.pointers());
	EXPECT_TRUE(item.load());
	return quor_test::listing_of(item);
}

std::string name_of(std::string const &program) {
	string_block block({program});
	quor::config::commandline_item item(block.count(), block.pointers());
	EXPECT_TRUE(item.load());
	return item.get_value("application.name")->second.as_utf8();
}

TEST(program_name, is_cut_at_slashes_where_they_separate_directories) {
	struct {
		std::string program;
		std::string with_slashes;
		std::string without;
	} const rows[] = {
	    {"/usr/bin/tool.exe", "tool.exe", "/usr/bin/tool.exe"},
	    {"./tool", "tool", "./tool"},
	    {"tool", "tool", "tool"},
	    {"C:\\dir\\tool.exe", "tool.exe", "tool.exe"},
	    {"/a\\b/c", "c", "b/c"},
	    {"/a/b\\c", "c", "c"},
	    {"/usr/bin/", "bin", "/usr/bin/"},
	    {"/usr/bin//", "", "/usr/bin//"},
	    {"/usr/bin/\\", "", "/usr/bin/"},
	    {"/", "", "/"},
	    {"//", "", "//"},
	    {"", "", ""},
	};
	for (auto const &[program, with_slashes, without] : rows) {
		SCOPED_TRACE(program);
		auto &disk = quor_test::fresh_disk();
		EXPECT_EQ(name_of(program), with_slashes);
		disk.slash_separates = false;
		EXPECT_EQ(name_of(program), without);
	}
}

TEST(program_name, raw_name_is_made_of_the_file_name) {
	auto &disk = quor_test::fresh_disk();
	using quor_test::passage;
	using quor_test::value;
	EXPECT_EQ(names_of("/opt/my.app/bin/tool.test.exe"),
	          (std::vector<quor_test::config_entry>{passage("application"), value("application.name", "tool.test.exe"),
	                                                value("application.name.extention", "exe"),
	                                                value("application.name.raw", "tooltest")}));
	disk.slash_separates = false;
	EXPECT_EQ(names_of("/my.app/tool"),
	          (std::vector<quor_test::config_entry>{passage("application"), value("application.name", "/my.app/tool"),
	                                                value("application.name.extention", "app/tool"),
	                                                value("application.name.raw", "/my")}));
}

TEST(program_name, random_paths_are_cut_as_the_slow_reading_does) {
	std::mt19937 engine(20240819);
	for (int round = 0; round != 5000; ++round) {
		std::string program;
		for (auto count = engine() % 9; count != 0; --count) {
			program += "/\\..aB\xFF "[engine() % 8];
		}
		SCOPED_TRACE(program);
		auto &disk = quor_test::fresh_disk();
		for (bool const slashes : {true, false}) {
			disk.slash_separates = slashes;
			quor_reference::config_node tree;
			quor_reference::config_command_line({program}, slashes).load(tree);
			std::vector<quor_test::config_entry> expected;
			tree.list(expected);
			ASSERT_EQ(names_of(program), expected);
		}
	}
}

} // namespace
