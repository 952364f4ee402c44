#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "platform/directory_entries.hpp"
#include "platform/file_status.hpp"
#include "platform/windows/windows_api.hpp"
#include "support/temporary_directory.hpp"

namespace {

namespace io = quor::system::io;
namespace platform = QUOR_2_9::platform;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::system::create_directory;
using quor::system::get_directory_files;
using quor::system::have_read_access;
using quor::system::list_directory;
using quor::system::load_file;
using quor::system::store_file;
using quor_test::temporary_directory;
using quor_test::working_directory;

/// A file that somebody else has open.
class open_file {
public:
	open_file(ustring16 const &path, DWORD access, DWORD share)
	    : m_handle(CreateFileW(path.c_str(), access, share, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
	~open_file() { CloseHandle(m_handle); }
	open_file(open_file const &) = delete;
	open_file &operator=(open_file const &) = delete;

	bool is_open() const { return m_handle != INVALID_HANDLE_VALUE; }

private:
	HANDLE m_handle;
};

class windows_files : public testing::Test {
protected:
	ustring16 wide(std::string const &name = {}) const {
		ustring16 const root = m_directory.root().wstring();
		return name.empty() ? root : root + L'\\' + std::filesystem::path(name).wstring();
	}
	ustring8 path(std::string const &name = {}) const { return m_directory.path(name); }

	/// What a path that leads nowhere answers to everything.
	void expect_nowhere(ustring16 const &bad) const {
		SCOPED_TRACE(testing::PrintToString(bad.substr(0, 100)));
		auto const before = list_directory(wide());
		std::string content = "old";
		EXPECT_FALSE(io::exists(bad));
		EXPECT_FALSE(io::is_file(bad));
		EXPECT_FALSE(io::is_directory(bad));
		EXPECT_FALSE(have_read_access(bad));
		EXPECT_EQ(load_file(bad, content), 1);
		EXPECT_EQ(content, "old");
		EXPECT_EQ(store_file(bad, "x"), 1);
		EXPECT_FALSE(create_directory(bad));
		EXPECT_TRUE(list_directory(bad).empty());
		std::vector<ustring16> files;
		get_directory_files(bad, files);
		EXPECT_TRUE(files.empty());
		io::remove_file(bad);
		io::remove_dir(bad);
		io::move(bad, wide("keep"));
		io::move(wide("moved"), bad);
		EXPECT_EQ(list_directory(wide()), before);
	}

	/// Whatever the system makes of a name, all operations agree on it.
	void expect_agreement(ustring16 const &name) const {
		SCOPED_TRACE(testing::PrintToString(name.substr(0, 100)));
		std::string content = "old";
		if (store_file(name, "content") == 1) {
			EXPECT_FALSE(io::is_file(name));
			EXPECT_EQ(load_file(name, content), 1);
			EXPECT_EQ(content, "old");
			return;
		}
		EXPECT_TRUE(io::exists(name));
		if (io::is_file(name)) {
			EXPECT_EQ(load_file(name, content), 0);
			EXPECT_EQ(content, "content");
			io::remove_file(name);
			EXPECT_FALSE(io::exists(name));
		} else {
			EXPECT_EQ(load_file(name, content), 1);
			EXPECT_EQ(content, "old");
		}
	}

	temporary_directory m_directory;
};

// ---- what others do with a file ------------------------------------------------------------

TEST_F(windows_files, a_file_that_another_keeps_for_itself_does_not_open) {
	m_directory.write("f", "x");
	{
		open_file const kept(wide("f"), GENERIC_READ | GENERIC_WRITE, 0);
		ASSERT_TRUE(kept.is_open());
		std::string plain = "old";
		ustring8 text = "old";
		EXPECT_EQ(load_file(path("f"), plain), 1);
		EXPECT_EQ(load_file(path("f"), text), 1);
		EXPECT_EQ(plain + text, "oldold");
		EXPECT_EQ(store_file(path("f"), "y"), 1);
		io::remove_file(path("f"));
		io::move(path("g"), path("f"));
		// Looking at it is no opening.
		EXPECT_TRUE(io::is_file(path("f")));
		EXPECT_TRUE(have_read_access(path("f")));
		EXPECT_EQ(list_directory(path()), std::vector<ustring8>{path("f")});
	}
	EXPECT_EQ(m_directory.read("f"), "x");
	EXPECT_EQ(store_file(path("f"), "y"), 0);
	io::move(path("g"), path("f"));
	EXPECT_EQ(m_directory.read("g"), "y");
}

TEST_F(windows_files, a_file_that_another_reads_or_writes_opens) {
	m_directory.write("f", "x");
	open_file const shared(wide("f"), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
	ASSERT_TRUE(shared.is_open());
	std::string content;
	EXPECT_EQ(load_file(path("f"), content), 0);
	EXPECT_EQ(content, "x");
	EXPECT_EQ(store_file(path("f"), "yz"), 0);
	EXPECT_EQ(m_directory.read("f"), "yz");
	// Only its name is held fast.
	io::remove_file(path("f"));
	io::move(path("g"), path("f"));
	EXPECT_EQ(m_directory.read("f"), "yz");
}

TEST_F(windows_files, a_directory_that_is_in_use_stays) {
	m_directory.make_directory("d");
	working_directory const here(m_directory.root() / "d");
	io::remove_dir(path("d"));
	io::move(path("e"), path("d"));
	EXPECT_TRUE(io::is_directory(path("d")));
	EXPECT_FALSE(io::exists(path("e")));
}

TEST_F(windows_files, a_read_only_file_is_read_and_moved_but_not_written_or_removed) {
	m_directory.write("f", "x");
	ASSERT_TRUE(SetFileAttributesW(wide("f").c_str(), FILE_ATTRIBUTE_READONLY));
	std::string content;
	EXPECT_TRUE(have_read_access(path("f")));
	EXPECT_EQ(load_file(path("f"), content), 0);
	EXPECT_EQ(content, "x");
	// Some users may write to every file.
	bool const is_writable = open_file(wide("f"), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE).is_open();
	EXPECT_EQ(store_file(path("f"), "x"), is_writable ? 0 : 1);
	EXPECT_EQ(m_directory.read("f"), "x");
	SetFileAttributesW(wide("f").c_str(), FILE_ATTRIBUTE_READONLY);
	io::remove_file(path("f"));
	EXPECT_EQ(m_directory.read("f"), "x");
	std::vector<ustring8> files;
	get_directory_files(path(), files);
	EXPECT_EQ(files, std::vector<ustring8>{path("f")});
	io::move(path("g"), path("f"));
	EXPECT_EQ(m_directory.read("g"), "x");
	EXPECT_FALSE(m_directory.has("f"));
	SetFileAttributesW(wide("g").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(windows_files, a_hidden_file_is_a_file) {
	m_directory.write("f", "x");
	ASSERT_TRUE(SetFileAttributesW(wide("f").c_str(), FILE_ATTRIBUTE_HIDDEN));
	EXPECT_TRUE(io::is_file(path("f")));
	EXPECT_EQ(list_directory(path()), std::vector<ustring8>{path("f")});
}

// ---- paths -----------------------------------------------------------------------------------

TEST_F(windows_files, backslashes_are_native_and_slashes_separate_too) {
	EXPECT_TRUE(create_directory(path("a\\b")));
	EXPECT_EQ(store_file(path("a\\b\\f"), "x"), 0);
	EXPECT_EQ(m_directory.read("a/b/f"), "x");
	for (char const *name : {"a/b/f", "a\\b/f", "a/b\\f", "a\\\\b\\f", "a//b\\/f", "a\\.\\b\\..\\b\\f", "A\\B\\F"}) {
		SCOPED_TRACE(name);
		std::string content;
		EXPECT_TRUE(io::is_file(path(name)));
		EXPECT_EQ(load_file(path(name), content), 0);
		EXPECT_EQ(content, "x");
	}
	// Only the text in front is the caller's.
	EXPECT_EQ(list_directory(path("a/b")), std::vector<ustring8>{path("a/b\\f")});
}

TEST_F(windows_files, a_last_separator_asks_for_a_directory) {
	m_directory.write("f", "x");
	m_directory.make_directory("d");
	for (char const *name : {"d\\", "d/", "d\\\\"}) {
		SCOPED_TRACE(name);
		EXPECT_TRUE(io::is_directory(path(name)));
		EXPECT_TRUE(create_directory(path(name)));
	}
	std::string content = "old";
	for (char const *name : {"f\\", "f/", "f\\\\"}) {
		SCOPED_TRACE(name);
		EXPECT_FALSE(io::exists(path(name)));
		EXPECT_EQ(load_file(path(name), content), 1);
		EXPECT_EQ(store_file(path(name), "y"), 1);
		io::remove_file(path(name));
	}
	EXPECT_EQ(store_file(path("new\\"), "y"), 1);
	EXPECT_FALSE(create_directory(path("made\\")));
	EXPECT_TRUE(m_directory.has("made"));
	EXPECT_EQ(m_directory.read("f"), "x");
	io::remove_dir(path("d\\"));
	EXPECT_FALSE(m_directory.has("d"));
}

TEST_F(windows_files, drive_letters) {
	m_directory.write("f", "x");
	ustring16 const full = wide("f");
	ASSERT_EQ(full[1], L':');
	ustring16 other = full;
	other[0] = static_cast<wchar_t>(full[0] ^ 0x20);
	EXPECT_TRUE(io::is_file(other)) << "the other case";
	EXPECT_TRUE(io::is_directory(ustring16(full.substr(0, 3))));
	EXPECT_FALSE(create_directory(ustring16(full.substr(0, 3) + L"\\?")));
	EXPECT_TRUE(create_directory(ustring16(full.substr(0, 3))));
	EXPECT_TRUE(create_directory(wide("x\\y\\z")));
	EXPECT_TRUE(m_directory.has("x/y/z"));
	{
		// Without a separator: in the working directory of that drive.
		working_directory const here(m_directory.root());
		ustring16 const drive = full.substr(0, 2);
		EXPECT_TRUE(io::is_file(ustring16(drive + L"f")));
		EXPECT_TRUE(io::is_file(ustring16(drive + L".\\f")));
		EXPECT_EQ(list_directory(ustring16(drive + L"x")), std::vector<ustring16>{drive + L"x\\y"});
		EXPECT_TRUE(io::is_directory(drive));
	}
	m_directory.write("keep", "x");
	for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
		ustring16 const root{letter, L':', L'\\'};
		if (GetDriveTypeW(root.c_str()) == DRIVE_NO_ROOT_DIR) {
			expect_nowhere(root + L"f");
			expect_nowhere(root + L"d\\f");
			break;
		}
	}
	expect_nowhere(L"::");
}

TEST_F(windows_files, network_and_literal_prefixes) {
	m_directory.write("keep", "x");
	m_directory.write("d/f", "x");
	for (wchar_t const *prefix : {L"\\\\?\\", L"\\\\.\\"}) {
		SCOPED_TRACE(prefix);
		ustring16 const literal = prefix + wide("d");
		std::string content;
		EXPECT_TRUE(io::is_directory(literal));
		EXPECT_EQ(load_file(ustring16(literal + L"\\f"), content), 0);
		EXPECT_EQ(content, "x");
		EXPECT_EQ(list_directory(literal), std::vector<ustring16>{literal + L"\\f"});
		EXPECT_TRUE(create_directory(ustring16(literal + L"\\new")));
		EXPECT_TRUE(m_directory.has("d/new"));
		io::remove_dir(ustring16(literal + L"\\new"));
		EXPECT_FALSE(m_directory.has("d/new"));
	}
	for (wchar_t const *name :
	     {L"\\\\", L"\\\\.", L"\\\\?", L"\\\\?\\", L"\\\\?\\f", L"\\\\no-such-server.invalid\\share\\f",
	      L"\\\\no-such-server.invalid\\share", L"\\\\no-such-server.invalid", L"\\\\\\f",
	      L"\\\\?\\UNC\\no-such-server.invalid\\share\\f", L"\\\\.\\no such device"}) {
		expect_nowhere(name);
	}
}

TEST_F(windows_files, names_of_devices_are_no_files) {
	working_directory const here(m_directory.root());
	std::string content = "old";
	for (wchar_t const *name : {L"NUL", L"nul", L"CON", L"\\\\.\\NUL", L"CONIN$", L"COM9", L"LPT9", L"AUX", L"PRN"}) {
		SCOPED_TRACE(testing::PrintToString(std::wstring(name)));
		EXPECT_FALSE(io::is_file(ustring16(name)));
		EXPECT_FALSE(io::is_directory(ustring16(name)));
		EXPECT_EQ(load_file(ustring16(name), content), 1);
		create_directory(ustring16(name)); // Wine says that it made NUL, and makes nothing
		EXPECT_FALSE(io::is_directory(ustring16(name)));
		EXPECT_TRUE(list_directory(ustring16(name)).empty());
		io::remove_file(ustring16(name));
		io::remove_dir(ustring16(name));
	}
	EXPECT_EQ(content, "old");
	EXPECT_EQ(store_file(ustring16(L"NUL"), "x"), 0);
	EXPECT_TRUE(list_directory(wide()).empty());
	// Which of these are devices differs from one version of the system to the next.
	for (char const *name : {"NUL.txt", "nul ", "aux.c", "COM1.log", "sub\\NUL", "COM0", "LPT1 ."}) {
		expect_agreement(wide(name));
	}
}

TEST_F(windows_files, long_paths) {
	std::string name;
	for (int level = 0; level != 8; ++level) {
		name += (level == 0 ? "" : "/") + std::string(50, static_cast<char>('a' + level));
	}
	// As it stands the system may refuse it for its length, and then it leads nowhere.
	std::replace(name.begin(), name.end(), '/', '\\');
	create_directory(wide(name));
	expect_agreement(wide(name + "\\f"));
	// Spelled literally it doesn't.
	ustring16 const literal = L"\\\\?\\" + wide(name);
	ASSERT_GT(literal.size(), 400U);
	create_directory(literal);
	ASSERT_TRUE(io::is_directory(literal));
	EXPECT_EQ(store_file(ustring16(literal + L"\\f"), "x"), 0);
	std::string content;
	EXPECT_EQ(load_file(ustring16(literal + L"\\f"), content), 0);
	EXPECT_EQ(content, "x");
	EXPECT_EQ(list_directory(literal), std::vector<ustring16>{literal + L"\\f"});
	ustring16 const top = L"\\\\?\\" + wide();
	std::vector<ustring16> files;
	get_directory_files(top, files);
	EXPECT_EQ(files, std::vector<ustring16>{literal + L"\\f"});
	io::remove_file(ustring16(literal + L"\\f"));
	EXPECT_TRUE(list_directory(literal).empty());
	// From the innermost on, so that nothing is left over.
	for (ustring16 inner = literal; inner.size() > top.size(); inner.resize(inner.rfind(L'\\'))) {
		io::remove_dir(inner);
	}
	EXPECT_TRUE(list_directory(wide()).empty());
}

TEST_F(windows_files, names_too_long_for_any_system_lead_nowhere) {
	m_directory.write("keep", "x");
	expect_nowhere(wide(std::string(256, 'x')));
	expect_nowhere(wide(std::string(40000, 'x')));
	expect_nowhere(L"\\\\?\\" + wide(std::string(40000, 'x')));
}

TEST_F(windows_files, wildcards_stand_for_nothing) {
	m_directory.write("keep", "x");
	m_directory.write("a1", "x");
	m_directory.write("dir/f", "x");
	for (char const *name : {"a*", "a?", "*", "d*r", "dir\\*", "a<", "a>", "a|b", "a\"b"}) {
		expect_nowhere(wide(name));
	}
}

TEST_F(windows_files, unpaired_surrogates_are_units_of_names) {
	m_directory.write("keep", "x");
	for (ustring16 const &name :
	     {ustring16{0xD800}, ustring16{0xDC00}, ustring16{L'a', 0xDBFF, L'b'}, ustring16{0xDC00, 0xD800}}) {
		ustring16 const full = wide() + L'\\' + name;
		expect_agreement(full);
		if (create_directory(full)) {
			EXPECT_TRUE(io::is_directory(full));
			auto const listed = list_directory(wide());
			EXPECT_NE(std::find(listed.begin(), listed.end(), full), listed.end());
			// In the other classes such a name can't be spelled.
			EXPECT_EQ(list_directory(path()).size(), 2U);
			io::remove_dir(full);
		}
		EXPECT_FALSE(io::exists(full));
	}
	EXPECT_EQ(list_directory(wide()).size(), 1U);
}

// ---- the platform layer ------------------------------------------------------------------------

TEST_F(windows_files, identity_is_that_of_the_file_and_not_of_the_path) {
	m_directory.write("a", "x");
	m_directory.write("b", "x");
	std::filesystem::create_hard_link(m_directory.root() / "a", m_directory.root() / "hard");
	auto const identity = [this](std::string const &name) { return platform::status(wide(name))->identity; };
	EXPECT_TRUE(identity("a").is_same_as(identity("A")));
	EXPECT_TRUE(identity("a").is_same_as(identity(".\\a")));
	EXPECT_TRUE(identity("a").is_same_as(identity("hard")));
	EXPECT_TRUE(identity("").is_same_as(identity(".")));
	EXPECT_FALSE(identity("a").is_same_as(identity("b")));
	EXPECT_FALSE(identity("a").is_same_as(identity("")));
}

TEST_F(windows_files, entries_are_the_systems_and_end_with_the_search) {
	for (char const *name : {"a", "b", "c"}) {
		m_directory.write(name, "");
	}
	auto names = platform::directory_entries(wide());
	std::sort(names.begin(), names.end());
	EXPECT_EQ(names, (std::vector<std::wstring>{L".", L"..", L"a", L"b", L"c"}));
	EXPECT_TRUE(platform::directory_entries(wide("a")).empty());
	EXPECT_TRUE(platform::directory_entries(wide("missing")).empty());
}

TEST_F(windows_files, operations_leave_no_handle_open) {
	m_directory.write("d/e/f", "");
	DWORD before = 0;
	GetProcessHandleCount(GetCurrentProcess(), &before);
	for (int round = 0; round != 10; ++round) {
		std::vector<ustring8> files;
		get_directory_files(path(), files);
		std::string content;
		load_file(path("d\\e\\f"), content);
		load_file(path("d"), content);
		load_file(ustring8("NUL"), content);
		store_file(path("d\\e\\f"), "x");
		store_file(path("d"), "x");
		EXPECT_EQ(list_directory(path("d")).size(), 1U);
	}
	DWORD after = 0;
	GetProcessHandleCount(GetCurrentProcess(), &after);
	EXPECT_EQ(after, before);
	io::remove_file(path("d\\e\\f"));
	io::remove_dir(path("d\\e"));
	io::remove_dir(path("d"));
	EXPECT_FALSE(io::exists(path("d")));
}

} // namespace
