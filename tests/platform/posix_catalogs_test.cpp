#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <sys/stat.h>

#include <quor/quor.hpp>

#include "support/temporary_directory.hpp"
#include "support/xmc_file_text.hpp"

namespace {

using quor::i18n::message_catalogs;
using quor_test::temporary_directory;
using quor_test::xmc;
using quor_test::xmc_catalog;

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

} // namespace
