#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <new>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <quor/quor.hpp>

#include "platform/directory_entries.hpp"
#include "platform/file_status.hpp"
#include "support/allocation_counter.hpp"
#include "support/temporary_directory.hpp"

namespace {

namespace io = quor::system::io;
namespace platform = QUOR_2_9::platform;
using quor::strings::ustring16;
using quor::strings::ustring8;
using quor_test::ascii_as;
using quor_test::temporary_directory;

class posix_files : public testing::Test {
protected:
	std::string native(std::string const &name) const { return (m_directory.root() / name).string(); }
	ustring8 path(std::string const &name = {}) const { return m_directory.path(name); }
	ustring16 wide(std::string const &name = {}) const { return ascii_as<ustring16>(path(name)); }
	void link(std::string const &name, std::string const &target) const {
		ASSERT_EQ(::symlink(target.c_str(), native(name).c_str()), 0);
	}

	temporary_directory m_directory;
};

TEST_F(posix_files, mode_bits_come_from_the_type_of_the_file) {
	m_directory.write("file", "x");
	m_directory.make_directory("directory");
	ASSERT_EQ(::mkfifo(native("pipe").c_str(), 0600), 0);
	int const socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
	ASSERT_NE(socket, -1);
	sockaddr_un address = {};
	address.sun_family = AF_UNIX;
	native("socket").copy(address.sun_path, sizeof(address.sun_path) - 1);
	ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr const *>(&address), sizeof(address)), 0);
	link("link to file", "file");
	link("link to directory", "directory");
	struct row {
		ustring8 path;
		bool is_file, is_directory;
	};
	for (auto const &[name, is_file, is_directory] :
	     {row{path("file"), true, false}, row{path("directory"), false, true}, row{path("pipe"), false, false},
	      row{path("socket"), false, false}, row{"\\dev\\null", false, false}, row{path("link to file"), true, false},
	      row{path("link to directory"), false, true}}) {
		SCOPED_TRACE(name);
		EXPECT_TRUE(io::exists(name));
		EXPECT_EQ(io::is_file(name), is_file);
		EXPECT_EQ(io::is_directory(name), is_directory);
	}
	::close(socket);
}

TEST_F(posix_files, a_link_without_target_does_not_exist) {
	link("dangling", "missing");
	link("loop", "loop");
	for (char const *name : {"dangling", "loop"}) {
		SCOPED_TRACE(name);
		std::string content = "old";
		EXPECT_FALSE(io::exists(path(name)));
		EXPECT_FALSE(io::is_file(path(name)));
		EXPECT_FALSE(quor::system::have_read_access(path(name)));
		EXPECT_EQ(quor::system::load_file(path(name), content), 1);
		EXPECT_EQ(quor::system::list_directory(path()).size(), 2U);
	}
	// Writing makes the target.
	EXPECT_EQ(quor::system::store_file(path("dangling"), "x"), 0);
	EXPECT_EQ(m_directory.read("missing"), "x");
	EXPECT_EQ(quor::system::store_file(path("loop"), "x"), 1);
}

TEST_F(posix_files, a_last_separator_asks_for_a_directory) {
	m_directory.write("f", "x");
	m_directory.make_directory("d");
	EXPECT_TRUE(io::is_directory(path("d\\")));
	EXPECT_TRUE(io::exists(path("d\\\\")));
	EXPECT_TRUE(quor::system::create_directory(path("d\\")));
	EXPECT_FALSE(io::exists(path("f\\")));
	std::string content = "old";
	EXPECT_EQ(quor::system::load_file(path("f\\"), content), 1);
	EXPECT_EQ(quor::system::store_file(path("f\\"), "y"), 1);
	EXPECT_EQ(quor::system::store_file(path("new\\"), "y"), 1);
	io::remove_file(path("f\\"));
	io::remove_file(path("d\\"));
	io::move(path("g\\"), path("f"));
	EXPECT_EQ(m_directory.read("f"), "x");
	EXPECT_EQ(quor::system::list_directory(path()).size(), 2U);
	io::remove_dir(path("d\\"));
	EXPECT_FALSE(m_directory.has("d"));
}

TEST_F(posix_files, read_access_is_the_owners_bit_whoever_asks) {
	m_directory.write("f", "x");
	struct row {
		mode_t mode;
		bool readable;
	};
	for (auto const &[mode, readable] :
	     {row{0, false}, row{0400, true}, row{0377, false}, row{0044, false}, row{0644, true}}) {
		SCOPED_TRACE(mode);
		ASSERT_EQ(::chmod(native("f").c_str(), mode), 0);
		EXPECT_EQ(quor::system::have_read_access(path("f")), readable);
		std::vector<ustring8> files;
		quor::system::get_directory_files(path(), files);
		EXPECT_EQ(files.size(), readable ? 1U : 0U);
		EXPECT_EQ(quor::system::list_directory(path()).size(), 1U);
	}
}

TEST_F(posix_files, identity_is_that_of_the_file_and_not_of_the_path) {
	m_directory.write("a", "x");
	m_directory.write("b", "x");
	link("to a", "a");
	ASSERT_EQ(::link(native("a").c_str(), native("hard").c_str()), 0);
	auto const identity = [this](std::string const &name) { return platform::status(wide(name))->identity; };
	EXPECT_TRUE(identity("a").is_same_as(identity("to a")));
	EXPECT_TRUE(identity("a").is_same_as(identity("hard")));
	EXPECT_TRUE(identity("").is_same_as(identity(".")));
	EXPECT_FALSE(identity("a").is_same_as(identity("b")));
	EXPECT_FALSE(identity("a").is_same_as(identity("")));
}

TEST_F(posix_files, load_file_opens_regular_files_only_and_never_waits) {
	ASSERT_EQ(::mkfifo(native("pipe").c_str(), 0600), 0);
	m_directory.write("f", "content");
	link("link", "f");
	std::string content = "old";
	EXPECT_EQ(quor::system::load_file(path("pipe"), content), 1);
	EXPECT_EQ(quor::system::load_file("\\dev\\zero", content), 1);
	EXPECT_EQ(quor::system::load_file("\\dev\\null", content), 1);
	EXPECT_EQ(content, "old");
	EXPECT_EQ(quor::system::load_file(path("link"), content), 0);
	EXPECT_EQ(content, "content");
}

TEST_F(posix_files, store_file_into_a_pipe_gives_1_and_never_waits) {
	ASSERT_EQ(::mkfifo(native("pipe").c_str(), 0600), 0);
	EXPECT_EQ(quor::system::store_file(path("pipe"), "x"), 1);
	int const reader = ::open(native("pipe").c_str(), O_RDONLY | O_NONBLOCK);
	ASSERT_NE(reader, -1);
	EXPECT_EQ(quor::system::store_file(path("pipe"), "x"), 1);
	::close(reader);
}

TEST_F(posix_files, a_pipe_is_not_opened_even_for_a_moment) {
	ASSERT_EQ(::mkfifo(native("pipe").c_str(), 0600), 0);
	int const watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
	ASSERT_NE(watch, -1);
	ASSERT_NE(::inotify_add_watch(watch, native("pipe").c_str(), IN_OPEN), -1);
	int const reader = ::open(native("pipe").c_str(), O_RDONLY | O_NONBLOCK);
	ASSERT_NE(reader, -1);
	alignas(inotify_event) char events[1024];
	EXPECT_GT(::read(watch, events, sizeof(events)), 0);
	std::string content = "old";
	EXPECT_EQ(quor::system::load_file(path("pipe"), content), 1);
	EXPECT_EQ(quor::system::store_file(path("pipe"), "x"), 1);
	EXPECT_EQ(::read(watch, events, sizeof(events)), -1);
	::close(reader);
	::close(watch);
}

TEST_F(posix_files, store_file_into_a_device_gives_0) {
	EXPECT_EQ(quor::system::store_file("\\dev\\null", "x"), 0);
	EXPECT_EQ(quor::system::store_file("\\dev\\full", "x"), 0);
}

TEST_F(posix_files, load_file_of_a_sparse_file_beyond_all_memory_throws) {
	int const handle = ::open(native("huge").c_str(), O_WRONLY | O_CREAT, 0600);
	ASSERT_NE(handle, -1);
	ASSERT_EQ(::ftruncate(handle, off_t(1) << 42), 0);
	::close(handle);
	ustring16 const huge = wide("huge");
	// The first allocation is the path's, the second the content's.
	for (std::size_t index : {0U, 1U}) {
		SCOPED_TRACE(index);
		std::string content = "old";
		bool thrown = false;
		{
			quor_test::allocation_failure const failure(index);
			try {
				quor::system::load_file(huge, content);
			} catch (std::bad_alloc const &) {
				thrown = true;
			}
		}
		EXPECT_TRUE(thrown);
		EXPECT_EQ(content, "old");
	}
}

TEST_F(posix_files, move_replaces_not_even_a_dangling_link) {
	m_directory.write("a", "x");
	link("dangling", "missing");
	io::move(path("dangling"), path("a"));
	EXPECT_TRUE(m_directory.has("a"));
	EXPECT_FALSE(m_directory.has("missing"));
}

TEST_F(posix_files, move_moves_a_link_itself) {
	link("link", "missing");
	io::move(path("moved"), path("link"));
	EXPECT_TRUE(std::filesystem::is_symlink(m_directory.root() / "moved"));
	EXPECT_FALSE(std::filesystem::is_symlink(m_directory.root() / "link"));
}

TEST_F(posix_files, remove_file_removes_a_link_and_not_its_target) {
	m_directory.make_directory("d");
	link("link", "d");
	io::remove_file(path("link"));
	EXPECT_FALSE(std::filesystem::is_symlink(m_directory.root() / "link"));
	EXPECT_TRUE(m_directory.has("d"));
}

TEST_F(posix_files, listings_begin_with_this_and_parent) {
	for (char const *name : {"a", "b", "-", "z"}) {
		m_directory.write(name, "");
	}
	auto const names = platform::directory_entries(wide());
	ASSERT_EQ(names.size(), 6U);
	EXPECT_EQ(names[0], u".");
	EXPECT_EQ(names[1], u"..");
	EXPECT_EQ(quor::system::list_directory(path()).size(), 4U);
}

TEST_F(posix_files, names_that_no_path_can_spell_are_left_out) {
	m_directory.write("good", "");
	m_directory.write("back\\slash", "");
	m_directory.write("not utf-8 \xFF", "");
	EXPECT_EQ(quor::system::list_directory(path()), std::vector<ustring8>{path("good")});
	std::vector<ustring8> files;
	quor::system::get_directory_files(path(), files);
	EXPECT_EQ(files, std::vector<ustring8>{path("good")});
}

TEST_F(posix_files, a_path_with_an_unpaired_surrogate_names_nothing) {
	ustring16 const bad = wide() + ustring16(QUOR_W("\\")) + ustring16(1, 0xD800);
	EXPECT_FALSE(io::exists(bad));
	EXPECT_EQ(quor::system::store_file(bad, "x"), 1);
	std::string content;
	EXPECT_EQ(quor::system::load_file(bad, content), 1);
	EXPECT_FALSE(quor::system::create_directory(bad));
	m_directory.write("f", "x");
	io::move(bad, wide("f"));
	io::move(wide("f"), bad);
	io::remove_file(bad);
	io::remove_dir(bad);
	EXPECT_TRUE(m_directory.has("f"));
	EXPECT_TRUE(quor::system::list_directory(bad).empty());
}

TEST_F(posix_files, loops_of_links_end) {
	m_directory.write("a/f", "");
	m_directory.write("b/g", "");
	link("a/up", "..");
	link("a/self", ".");
	link("a/to b", "../b");
	link("b/to a", "../a");
	std::vector<ustring8> files;
	quor::system::get_directory_files(path(), files);
	std::sort(files.begin(), files.end());
	EXPECT_EQ(files, (std::vector<ustring8>{path("a\\f"), path("a\\to b\\g"), path("b\\g"), path("b\\to a\\f")}));
}

TEST_F(posix_files, a_directory_without_access_adds_nothing) {
	m_directory.write("d/f", "");
	m_directory.write("g", "");
	ASSERT_EQ(::chmod(native("d").c_str(), 0), 0);
	std::vector<ustring8> files;
	quor::system::get_directory_files(path(), files);
	ASSERT_EQ(::chmod(native("d").c_str(), 0700), 0);
	EXPECT_EQ(files, std::vector<ustring8>{path("g")});
}

TEST_F(posix_files, listings_leave_no_handle_open) {
	m_directory.write("d/e/f", "");
	int const before = ::dup(0);
	::close(before);
	for (int round = 0; round != 10; ++round) {
		std::vector<ustring8> files;
		quor::system::get_directory_files(path(), files);
		std::string content;
		quor::system::load_file(path("d\\e\\f"), content);
		quor::system::load_file(path("d"), content);
		quor::system::store_file(path("d\\e\\f"), ustring8("x"));
		EXPECT_EQ(quor::system::list_directory(path("d")).size(), 1U);
	}
	int const after = ::dup(0);
	::close(after);
	EXPECT_EQ(after, before);
}

} // namespace
