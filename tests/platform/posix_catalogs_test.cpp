#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include <sys/stat.h>

#include <quor/quor.hpp>

#include "support/allocation_counter.hpp"
#include "support/temporary_directory.hpp"
#include "support/xmc_file_text.hpp"

namespace {

using quor::i18n::message_catalogs;
using quor::strings::ustring8;
using quor_test::temporary_directory;
using quor_test::xmc;
using quor_test::xmc_catalog;
using loader_t = quor::i18n::_private::xmc_file_loader;

TEST(posix_catalogs, loops_of_links_end) {
	temporary_directory const directory;
	directory.write("a/f.xmc", xmc(xmc_catalog("app", "en", {{"f", "f"}})));
	directory.write("b/g.xmc", xmc(xmc_catalog("app", "en", {{"g", "g"}})));
	for (auto const &[link, target] : {std::pair<char const *, char const *>("a/up", ".."),
	                                   {"a/up 2", ".."},
	                                   {"b/up", "../b"},
	                                   {"b/up 2", ".."},
	                                   {"a/to b", "../b"},
	                                   {"b/to a", "../a"}}) {
		std::filesystem::create_directory_symlink(target, directory.root() / link);
	}
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load(directory.path(), "en") == message_catalogs::no_error);
	EXPECT_EQ(catalogs.size("app"), 2U);
}

TEST(posix_catalogs, directories_are_descended_into_however_deep) {
	temporary_directory const directory;
	std::string name;
	for (int depth = 0; depth != 300; ++depth) {
		name += "d/";
	}
	directory.write(name + "f.xmc", xmc(xmc_catalog("app", "en", {{"f", "f"}})));
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load(directory.path(), "en") == message_catalogs::no_error);
	EXPECT_EQ(catalogs.size("app"), 1U);
}

TEST(posix_catalogs, pipes_are_passed_over_and_never_waited_for) {
	temporary_directory const directory;
	ASSERT_EQ(::mkfifo((directory.root() / "pipe.xmc").c_str(), 0600), 0);
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load(directory.path(), "en") == message_catalogs::no_error);
	EXPECT_TRUE(catalogs.load(directory.path("pipe.xmc"), "en") == message_catalogs::entity_not_found);
	EXPECT_TRUE(catalogs.load_file(directory.path("pipe.xmc"), "en") == message_catalogs::load_failed);
	directory.write("main.xmc", xmc("<include file=\"pipe.xmc\"/>"));
	EXPECT_TRUE(catalogs.load_file(directory.path("main.xmc"), "en") == message_catalogs::load_failed);
}

TEST(posix_catalogs, links_that_lead_nowhere_are_passed_over) {
	temporary_directory const directory;
	directory.write("f.xmc", xmc(xmc_catalog("app", "en", {{"f", "f"}})));
	for (char const *name : {"gone.xmc", "self.xmc"}) {
		std::filesystem::create_symlink(name[0] == 'g' ? "missing" : name, directory.root() / name);
	}
	message_catalogs catalogs;
	EXPECT_TRUE(catalogs.load(directory.path(), "en") == message_catalogs::no_error);
	EXPECT_EQ(catalogs.size("app"), 1U);
	EXPECT_TRUE(catalogs.load(directory.path("gone.xmc"), "en") == message_catalogs::entity_not_found);
	EXPECT_TRUE(catalogs.load_file(directory.path("gone.xmc"), "en") == message_catalogs::file_not_found);
}

// A file that doesn't fit into memory is told by an exception, from wherever it comes.
TEST(posix_catalogs, load_that_runs_out_of_memory_leaves_set_and_loader_usable) {
	temporary_directory const directory;
	std::vector<std::pair<std::string, std::string>> messages{{"k", "new"}};
	for (int i = 0; i != 80; ++i) {
		messages.emplace_back("text_" + std::to_string(i), "a text that takes a block of memory of its own");
	}
	directory.write("old.xmc", xmc(xmc_catalog("app", "en", {{"k", "old"}})));
	directory.write("s/inner.xmc", xmc(xmc_catalog("app", "en", messages)));
	std::string includes;
	for (int i = 0; i != 12; ++i) {
		includes += "<include file=\"s/inner.xmc\"/>";
	}
	directory.write("main.xmc", xmc(includes + "<include file=\"old.xmc\"/>"));
	ustring8 const main = directory.path("main.xmc");

	message_catalogs catalogs;
	ASSERT_TRUE(catalogs.load(directory.path("old.xmc"), "en") == message_catalogs::no_error);
	auto const *const held = &catalogs.message("app", "k");
	loader_t loader;
	std::size_t reading = 0;
	{
		quor_test::allocation_counter const counter;
		ASSERT_EQ(loader_t().parse(main, "en", "").type(), loader_t::load_none);
		reading = counter.count();
	}
	// Many of them inside of the included file, so that a level that isn't left would tell.
	ASSERT_GT(reading, 2 * loader_t::max_include_depth);
	for (std::size_t index = 0; index != reading; ++index) {
		SCOPED_TRACE(index);
		for (bool const whole_set : {true, false}) {
			quor_test::allocation_failure const failure(index);
			try {
				whole_set ? (void)catalogs.load_file(main, "en") : (void)loader.parse(main, "en", "");
			} catch (std::bad_alloc const &) {
			}
		}
		ASSERT_EQ(catalogs.size("app"), 1U);
		ASSERT_EQ(held->begin()->data(), "old");
		ASSERT_EQ(loader.parse(main).message(), "xmc_file_loader::load_error - No Error");
	}
	EXPECT_TRUE(catalogs.load_file(main, "en") == message_catalogs::no_error);
	EXPECT_EQ(held->begin()->data(), "new");
}

} // namespace
