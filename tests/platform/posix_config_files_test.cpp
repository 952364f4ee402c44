#include <gtest/gtest.h>

#include <string>

#include <sys/stat.h>
#include <unistd.h>

#include <quor/quor.hpp>

#include "support/config_listing.hpp"
#include "support/temporary_directory.hpp"

namespace {

using quor::config::base_config_item;
using quor::config::file_item;
using quor::config::user_item;
using quor::strings::ustring8;
using quor_test::listing_text;

class posix_config_files : public testing::Test {
protected:
	std::string native(std::string const &name) const { return (m_directory.root() / name).string(); }
	ustring8 path(std::string const &name) const { return m_directory.path(name); }

	// An item that names a file under a key.
	static quor::memory::pointers::rc_pointer<base_config_item> names(ustring8 const &key, ustring8 const &value) {
		quor::memory::pointers::rc_pointer<base_config_item> item(
		    quor::generic::abilities::create_dynamic<user_item>());
		item->set(key, value, 0);
		return item;
	}

	quor_test::temporary_directory m_directory;
};

TEST_F(posix_config_files, only_regular_files_are_candidates) {
	m_directory.write("good.cfg", "from = good\n");
	m_directory.make_directory("directory.cfg");
	ASSERT_EQ(::mkfifo(native("pipe.cfg").c_str(), 0600), 0);
	ASSERT_EQ(::symlink("missing", native("dangling.cfg").c_str()), 0);
	ASSERT_EQ(::symlink("good.cfg", native("link.cfg").c_str()), 0);
	for (ustring8 const &bad : {path("pipe"), path("directory"), path("dangling"), path("missing")}) {
		SCOPED_TRACE(bad);
		file_item item("");
		EXPECT_TRUE(item.load({names("cfg_file", bad + ".cfg"), names("application.name.raw", bad)}));
		EXPECT_EQ(item.get_filename(), "");
		EXPECT_TRUE(item.load({names("cfg_file", bad + ".cfg"), names("cfg_file", path("good.cfg"))}));
		EXPECT_EQ(item.get_filename(), path("good.cfg"));
		EXPECT_EQ(listing_text(item), "from:1=good");
	}
	file_item item("");
	item.load({names("cfg_file", "/dev/zero"), names("cfg_file", "\\dev\\tty"), names("cfg_file", path("link.cfg"))});
	EXPECT_EQ(item.get_filename(), path("link.cfg"));
	EXPECT_EQ(listing_text(item), "from:1=good");
}

TEST_F(posix_config_files, nothing_waits_for_a_pipe) {
	ASSERT_EQ(::mkfifo(native("pipe").c_str(), 0600), 0);
	file_item item(path("pipe"));
	item.set("s.key", "value", 0);
	EXPECT_TRUE(item.load());
	EXPECT_TRUE(item.save());
	EXPECT_EQ(listing_text(item), "s:0= s.key:1=value");
}

TEST_F(posix_config_files, devices_are_no_files) {
	for (char const *name : {"/dev/zero", "/dev/null"}) {
		SCOPED_TRACE(name);
		file_item item(name);
		EXPECT_TRUE(item.load());
		EXPECT_EQ(listing_text(item), "");
	}
}

TEST_F(posix_config_files, a_sparse_file_beyond_all_positions_takes_no_memory) {
	m_directory.write("huge.cfg", "aa = 1\n");
	for (off_t const size : {off_t(0xFFFFFFFE), off_t(1) << 40}) {
		SCOPED_TRACE(size);
		ASSERT_EQ(::truncate(native("huge.cfg").c_str(), size), 0);
		file_item item(path("huge.cfg"));
		EXPECT_TRUE(item.load());
		EXPECT_EQ(listing_text(item), "");
	}
}

TEST_F(posix_config_files, slashes_and_backslashes_reach_the_same_file) {
	m_directory.write("a/b.cfg", "from = there\n");
	for (ustring8 const &name : {ustring8(native("a/b.cfg")), path("a\\b.cfg")}) {
		file_item item("");
		item.load({names("cfg_file", name)});
		EXPECT_EQ(item.get_filename(), name);
		EXPECT_EQ(listing_text(item), "from:1=there");
	}
}

} // namespace
